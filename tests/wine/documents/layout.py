#!/usr/bin/env python3
"""layout.py PAGE.pdf: compares the page of layout.sh with where its texts have to stand and how they look."""
import html
import re
import subprocess
import sys

from page_image import Checks, Page

TWIPS_PER_POINT = 20


class Words:
    def __init__(self, pdf):
        text = subprocess.run(["pdftotext", "-bbox", pdf, "-"], check=True, capture_output=True,
                              encoding="utf-8").stdout
        pattern = r'<word xMin="([^"]+)" yMin="([^"]+)" xMax="([^"]+)" yMax="([^"]+)">([^<]*)</word>'
        self.boxes = {}
        for left, top, right, bottom, word in re.findall(pattern, text):
            self.boxes[html.unescape(word)] = [float(v) * TWIPS_PER_POINT for v in (left, top, right, bottom)]

    def __getitem__(self, word):
        if word not in self.boxes:
            sys.exit(f"FAILED: {word} is not on the page, which has {sorted(self.boxes)}")
        return self.boxes[word]

    def __contains__(self, word):
        return word in self.boxes

    def only(self, letter):
        """The one word that is made of this letter alone."""
        return next(word for word in self.boxes if set(word) == {letter})

    def width(self, word):
        return self[word][2] - self[word][0]


def check_alignment(words, checks):
    checks.near_mm("left edge", 1000, words["izquierda"][0])
    checks.near_mm("right edge", 8000, words["derecha"][2])
    left, _, right, _ = words["centro"]
    checks.near_mm("centre of a text trimmed", 8000 + 3001 / 2, (left + right) / 2)


def check_cut_texts(words, checks, page_width):
    """As many letters as fit: the next one would stand out."""
    for letter, left, room in (("A", 1000, 1500), ("B", 10500, page_width - 10500)):
        word = words.only(letter)
        one = words.width(word) / len(word)
        checks.near_mm(f"left edge of {letter}", left, words[word][0])
        checks.that(words.width(word) <= room + 10, f"{word} is wider than its room")
        checks.that(words.width(word) + one > room, f"{word} leaves room for another letter")


def check_wrapped_texts(words, checks):
    """Two lines of a box of 500 twips: a line of this font is 230 twips high, and 10 lie between lines."""
    checks.that("tres" in words and "cinco" in words and "seis" not in words and "siete" not in words,
                "the wrapped text does not end with its second line")
    checks.near_mm("first line", words["uno"][1], words["tres"][1], 0.1)
    checks.near_mm("second line", words["uno"][1] + 240, words["cuatro"][1], 0.2)
    pieces = [word for word in words.boxes if words[word][0] > 3900 and words[word][0] < 4100
              and 1700 < words[word][1] < 4000]
    checks.that("".join(sorted(pieces, key=lambda w: words[w][1])) == "unapalabrasinblancosquenocabe",
                f"a word without blanks came out as {pieces}")
    checks.that(all(words.width(piece) <= 710 for piece in pieces), "a piece is wider than its box")


def check_inheritance(words, checks):
    checks.near_mm("inherited top", words["uno"][1], words["heredado"][1])
    checks.near_mm("right edge", 11000, words["heredado"][2])
    checks.near_mm("inherited left, width and alignment", 11000, words["sigue"][2])
    checks.near_mm("a top of its own", words["heredado"][1] + 400, words["sigue"][1])


def check_letters_and_sizes(words, checks):
    checks.near_mm("letters of a font with a digit", 1000, words["¥and£"][0])
    checks.near_mm("letters of a font without", 5000, words["Ñandúes"][0])
    size = words.width("centesimas")
    checks.that(abs(words.width("centésimas") - size) < 8, "a size of 825 is not 8.25")
    checks.that(abs(words.width("centesimaz") - 2 * size) < 16, "a size of 16.5 is not twice 8,25")


def check_looks(page, checks):
    checks.that(page.longest_line(1000, 7150, 4000, 7600) > 700, "a text is not underlined")
    checks.that(page.longest_line(5000, 7150, 8000, 7600) < 100, "a text is underlined")
    for what, left, top, colour in (("rojo", 1000, 8000, (255, 0, 0)), ("tambien", 5000, 8000, (255, 0, 0)),
                                    ("verde", 1000, 9000, (0, 255, 0)), ("azul", 5000, 9000, (0, 0, 255))):
        colours = page.colours(left, top, left + 3000, top + 900)
        checks.that(colours[:1] == [colour] and len(colours) == 1, f"{what} is printed in {colours}")


def main():
    words, page, checks = Words(sys.argv[1]), Page(sys.argv[1]), Checks()
    check_alignment(words, checks)
    check_cut_texts(words, checks, 11906)
    check_wrapped_texts(words, checks)
    check_inheritance(words, checks)
    check_letters_and_sizes(words, checks)
    check_looks(page, checks)
    sys.exit(checks.finish())


main()
