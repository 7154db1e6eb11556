#!/usr/bin/env python3
"""ink.py BITMAP LEFT TOP WIDTH HEIGHT: where something is drawn inside that box of twips: left, top, right and
bottom in points."""
import struct
import sys

TWIPS_A_PIXEL, POINTS_A_PIXEL = 15, 0.75
path = sys.argv[1]
left, top, width, height = (int(value) // TWIPS_A_PIXEL for value in sys.argv[2:6])
with open(path, "rb") as file:
    data = file.read()
offset, = struct.unpack_from("<I", data, 10)
columns, rows = struct.unpack_from("<ii", data, 18)
stride = (columns * 3 + 3) // 4 * 4


def inked(x, y):
    start = offset + (rows - 1 - y) * stride + x * 3
    return data[start:start + 3] != b"\xff\xff\xff"


points = [(x, y) for y in range(top, min(top + height, rows)) for x in range(left, min(left + width, columns))
          if inked(x, y)]
xs, ys = zip(*points)
print(*(value * POINTS_A_PIXEL for value in (min(xs), min(ys), max(xs) + 1, max(ys) + 1)))
