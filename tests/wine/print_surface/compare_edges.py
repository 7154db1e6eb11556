#!/usr/bin/env python3
"""compare_edges.py EXPECTED BBOX: compares texts on a printed page with where they must stand.

EXPECTED is what print_scene wrote (text, edge, twips of the edge, twips of the top); BBOX the output of
pdftotext -bbox. Prints the largest differences; fails where one is beyond its tolerance.
"""
import html
import re
import sys

TWIPS_PER_POINT = 20
TWIPS_PER_MM = 1440 / 25.4
EDGE_TOLERANCE_MM = 0.5
TOP_TOLERANCE_MM = 1.5  # a word's box begins at its font's ascent, not at the top of the line


def words_of(bbox):
    pattern = r'<word xMin="([^"]+)" yMin="([^"]+)" xMax="([^"]+)" yMax="[^"]+">([^<]*)</word>'
    words = {}
    for left, top, right, text in re.findall(pattern, bbox):
        text = html.unescape(text)
        if text in words:
            sys.exit(f"FAILED: the word {text} stands on the page twice")
        words[text] = [float(value) * TWIPS_PER_POINT for value in (left, top, right)]
    return words


def main():
    expected = [line.rstrip("\r\n").split("\t") for line in open(sys.argv[1], encoding="utf-8")]
    words = words_of(open(sys.argv[2], encoding="utf-8").read())
    if len(expected) != 60:
        sys.exit(f"FAILED: expected 60 texts, print_scene wrote {len(expected)}")
    failures = 0
    worst = {"left": 0.0, "right": 0.0, "centre": 0.0, "top": 0.0}
    for text, edge, where, top in expected:
        boxes = [words.get(word) for word in text.split(" ")]
        if None in boxes:
            print(f"FAILED: {text} is not on the page")
            failures += 1
            continue
        left, right = boxes[0][0], boxes[-1][2]
        actual = {"left": left, "right": right, "centre": (left + right) / 2}[edge]
        for name, difference, tolerance in (
            (edge, (actual - float(where)) / TWIPS_PER_MM, EDGE_TOLERANCE_MM),
            ("top", (boxes[0][1] - float(top)) / TWIPS_PER_MM, TOP_TOLERANCE_MM),
        ):
            worst[name] = max(worst[name], abs(difference))
            if abs(difference) > tolerance:
                print(f"FAILED: {name} of {text} is {difference:+.2f} mm away")
                failures += 1
    print("largest differences in mm:", ", ".join(f"{name} {value:.3f}" for name, value in worst.items()))
    sys.exit(1 if failures else 0)


main()
