#!/usr/bin/env python3
"""Labels of two fields, and where they have to stand on the printed sheets.

sheets.py model WIDTH HEIGHT OUT.xml     writes the model of a label (sizes in twips)
sheets.py check WIDTH HEIGHT ROWS ACROSS DOWN TOP LEFT MARGIN SHEETS.pdf
    compares the sheets. TOP and LEFT are the margins of the options in cm, MARGIN the printer's own in points.
"""
import re
import subprocess
import sys

EDGE_TOLERANCE_MM = 0.5
TOP_TOLERANCE_MM = 1.5  # a word's box begins at its font's ascent, not at the top of the line
TWIPS_PER_MM = 1440 / 25.4
TWIPS_PER_POINT = 20
FIELD = ("<Campo><Descripcion>{}</Descripcion><Top>{}</Top><Left>{}</Left><Width>{}</Width><Height>300</Height>"
         "<FontSize>9</FontSize><Alignment>{}</Alignment><FontName>{}</FontName></Campo>")
NAME = (150, 120)  # left and top, left-aligned
AMOUNT = (300, 600, 2000)  # left, top and width, right-aligned


def model(width, height):
    fields = (FIELD.format("NOMBRE (CLIEN)", NAME[1], NAME[0], 2500, 0, "Arial") +
              FIELD.format("SALDO (CLIEN)", AMOUNT[1], AMOUNT[0], AMOUNT[2], 1, "Times New Roman"))
    return (f'<Modelos><Modelo Numero="1" Width="{width}" Height="{height}" Copias="1" EsEtiqueta="1">'
            f"{fields}</Modelo></Modelos>")


def words_of_sheets(pdf):
    """For each sheet its words with left, top and right edge in twips, in the order of the page."""
    text = subprocess.run(["pdftotext", "-bbox", pdf, "-"], check=True, capture_output=True, encoding="utf-8").stdout
    word = re.compile(r'<word xMin="([^"]+)" yMin="([^"]+)" xMax="([^"]+)" yMax="[^"]+">([^<]*)</word>')
    return [[(m[3], *(float(value) * TWIPS_PER_POINT for value in m[:3])) for m in word.findall(sheet)]
            for sheet in text.split("<page ")[1:]]


def amount(number):
    return f"{number},50"


def expected_sheets(width, height, rows, across, down, top, left):
    sheets, column, row, number = [[]], 1, 1, 1
    for label in range(1, rows + 1):
        if number > across * down:
            sheets.append([])
            number = 1
        if column > across:
            column = 1
            row = row % down + 1
        x = (column - 1) * width + left * 567
        y = (row - 1) * height + row * top * 567
        sheets[-1].append((f"Ñandú{label}", "left", x + NAME[0], y + NAME[1]))
        sheets[-1].append((amount(label), "right", x + AMOUNT[0] + AMOUNT[2], y + AMOUNT[1]))
        column += 1
        number += 1
    return sheets


def check(expected, actual, margin):
    if len(expected) != len(actual):
        print(f"FAILED: {len(actual)} sheets, {len(expected)} expected")
        return 1
    bad, worst = 0, {"left": 0.0, "right": 0.0, "top": 0.0}
    for sheet, (fields, words) in enumerate(zip(expected, actual), 1):
        if sorted(text for text, *_ in fields) != sorted(text for text, *_ in words):
            print(f"FAILED: sheet {sheet} has the words {[text for text, *_ in words]}")
            bad += 1
            continue
        boxes = {text: box for text, *box in words}
        for text, edge, x, y in fields:
            left, top, right = boxes[text]
            for name, difference, tolerance in (
                    (edge, {"left": left, "right": right}[edge] - x - margin, EDGE_TOLERANCE_MM),
                    ("top", top - y - margin, TOP_TOLERANCE_MM)):
                off = abs(difference) / TWIPS_PER_MM
                worst[name] = max(worst[name], off)
                if off > tolerance:
                    print(f"FAILED: {name} of {text} on sheet {sheet} is {off:.2f} mm off")
                    bad += 1
    print(f"{len(actual)} sheets, largest differences in mm:",
          ", ".join(f"{name} {value:.3f}" for name, value in worst.items()))
    return 1 if bad else 0


if __name__ == "__main__":
    if sys.argv[1] == "model":
        with open(sys.argv[4], "wb") as file:
            file.write(model(int(sys.argv[2]), int(sys.argv[3])).encode("cp1252"))
    else:
        *numbers, cm_top, cm_left, points = sys.argv[2:10]
        sys.exit(check(expected_sheets(*map(int, numbers), float(cm_top), float(cm_left)),
                       words_of_sheets(sys.argv[10]), float(points) * TWIPS_PER_POINT))
