"""A printed page as an image, looked at in twips: what stands where, and in what colour."""
import re
import subprocess

DOTS_PER_INCH = 150
TWIPS_PER_DOT = 1440 / DOTS_PER_INCH
TWIPS_PER_MM = 1440 / 25.4


class Page:
    def __init__(self, pdf):
        data = subprocess.run(["pdftoppm", "-r", str(DOTS_PER_INCH), "-aa", "no", "-aaVector", "no", pdf],
                              check=True, capture_output=True).stdout
        header = re.match(rb"P6\s(\d+)\s(\d+)\s255\s", data)
        self.width, self.height = int(header[1]), int(header[2])
        self.rows = data[header.end():]

    def dot(self, x, y):
        """The colour (red, green, blue) at a place in twips."""
        return self._at(int(x / TWIPS_PER_DOT), int(y / TWIPS_PER_DOT))

    def _at(self, column, row):
        start = 3 * (row * self.width + column)
        return tuple(self.rows[start:start + 3])

    def _dots(self, left, top, right, bottom):
        for row in range(max(0, int(top / TWIPS_PER_DOT)), min(self.height, int(bottom / TWIPS_PER_DOT))):
            for column in range(max(0, int(left / TWIPS_PER_DOT)), min(self.width, int(right / TWIPS_PER_DOT))):
                if min(self._at(column, row)) < 250:
                    yield column, row

    def drawn(self, left, top, right, bottom):
        """The box in twips around all that is drawn within a part of the page; None for nothing."""
        dots = list(self._dots(left, top, right, bottom))
        if not dots:
            return None
        columns, rows = [c for c, _ in dots], [r for _, r in dots]
        return [edge * TWIPS_PER_DOT for edge in (min(columns), min(rows), max(columns) + 1, max(rows) + 1)]

    def colours(self, left, top, right, bottom):
        """How often each colour is drawn within a part of the page, the commonest first."""
        counts = {}
        for column, row in self._dots(left, top, right, bottom):
            colour = self._at(column, row)
            counts[colour] = counts.get(colour, 0) + 1
        return sorted(counts, key=counts.get, reverse=True)

    def longest_line(self, left, top, right, bottom):
        """The longest unbroken row of dots within a part of the page, in twips."""
        longest = 0
        drawn = {}
        for column, row in self._dots(left, top, right, bottom):
            drawn.setdefault(row, []).append(column)
        for columns in drawn.values():
            run = 1
            for before, after in zip(columns, columns[1:]):
                run = run + 1 if after == before + 1 else 1
                longest = max(longest, run)
        return longest * TWIPS_PER_DOT


class Checks:
    """Collects what is wrong; `finish` prints it and gives the exit code."""

    def __init__(self):
        self.wrong = []

    def that(self, holds, what):
        if not holds:
            self.wrong.append(what)

    def near_mm(self, what, expected_twips, actual_twips, tolerance_mm=0.5):
        off = (actual_twips - expected_twips) / TWIPS_PER_MM
        self.that(abs(off) <= tolerance_mm, f"{what} is {off:+.2f} mm off")

    def colour(self, what, expected, actual, tolerance=40):
        self.that(actual is not None and all(abs(e - a) <= tolerance for e, a in zip(expected, actual)),
                  f"{what}: expected the colour {expected}, got {actual}")

    def finish(self):
        for line in self.wrong:
            print("FAILED:", line)
        return 1 if self.wrong else 0
