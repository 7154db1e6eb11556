#!/usr/bin/env python3
"""pictures.py PAGE.pdf WHAT:LEFT,TOP,WIDTH,HEIGHT ...: the picture of four colours fills each of these boxes, in
twips, within half a millimetre: red and green above, blue and yellow below. WHAT is a name."""
import sys

from page_image import Checks, Page

MARGIN = 300
QUARTERS = [((1, 1), (230, 20, 20)), ((3, 1), (20, 160, 20)), ((1, 3), (20, 20, 230)), ((3, 3), (240, 230, 20))]


def main():
    page, checks = Page(sys.argv[1]), Checks()
    for argument in sys.argv[2:]:
        what, numbers = argument.split(":")
        left, top, width, height = map(float, numbers.split(","))
        drawn = page.drawn(left - MARGIN, top - MARGIN, left + width + MARGIN, top + height + MARGIN)
        if drawn is None:
            checks.that(False, f"{what} is not on the page")
            continue
        for edge, expected, actual in zip(("left", "top", "right", "bottom"),
                                          (left, top, left + width, top + height), drawn):
            checks.near_mm(f"{what}: its {edge} edge", expected, actual)
        for (column, row), colour in QUARTERS:
            checks.colour(f"{what}: its quarter {column},{row}", colour,
                          page.dot(left + width * column / 4, top + height * row / 4))
    sys.exit(checks.finish())


main()
