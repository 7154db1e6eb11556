#!/usr/bin/env python3
"""Sixty fields in eight font mixes, and where their texts have to stand on the printed page.

positions.py model WIDTH HEIGHT PRINTER OUT.xml      writes the model (WIDTH and HEIGHT in twips)
positions.py values WIDTH HEIGHT                     prints what the host assigns, one CAMPO=VALOR a line
positions.py check WIDTH HEIGHT MARGIN PAGE.pdf      compares the page; MARGIN is the printer's, in points
"""
import re
import subprocess
import sys
from xml.sax.saxutils import escape, quoteattr

TOLERANCE_MM = 0.5
POINTS_PER_TWIP = 72 / 1440
POINTS_PER_MM = 72 / 25.4
LEFT, RIGHT, CENTRE = 0, 1, 2
FONTS = [  # face, points, bold, italic
    ("Arial", "9", False, False),
    ("Arial", "10", True, False),
    ("Times New Roman", "11", False, False),
    ("Times New Roman", "8,25", False, True),
    ("Courier New", "9", False, False),
    ("Courier New", "8", True, False),
    ("Arial", "7,5", False, True),
    ("Times New Roman", "12", True, False),
]


def fields(width, height):
    """Left, top, width of each box in twips, its font, alignment and a text that occurs once."""
    columns, rows = 3, 20
    box = (width - 1200) // columns
    for index in range(columns * rows):
        column, row = index % columns, index // columns
        left = 300 + column * (box + 150)
        top = 150 + row * ((height - 900) // rows)
        text = (f"Ñandú{index}", f"{index}.234.567,89", f"Çañón/{index}")[index % 3]
        yield left, top, box, FONTS[index % len(FONTS)], (LEFT, RIGHT, CENTRE)[index % 3], text


def description(text):
    """Amounts come from the host: a fixed text that begins with a digit would belong to one copy only."""
    return "Campo " + text if text[0].isdigit() else "#" + text


def values(width, height):
    for *_, text in fields(width, height):
        if text[0].isdigit():
            print(f"{description(text)}={text}")


def model(width, height, printer):
    parts = [f'<Modelos><Modelo Numero="1" Width="{width}" Height="{height}" Copias="1" Printer={quoteattr(printer)}>']
    for left, top, box, (face, points, bold, italic), alignment, text in fields(width, height):
        children = {
            "Descripcion": description(text), "Top": top, "Left": left, "Width": box,
            "Height": 300, "ForeColor": 0, "Bold": "Verdadero" if bold else "Falso", "FontSize": points,
            "FontItalic": "Verdadero" if italic else "Falso", "Alignment": alignment, "Underline": "Falso",
            "FontName": face}
        parts.append("<Campo>" + "".join(f"<{k}>{escape(str(v))}</{k}>" for k, v in children.items()) + "</Campo>")
    return "".join(parts) + "</Modelo></Modelos>"


def check(width, height, margin, page):
    html = subprocess.run(["pdftotext", "-bbox", page, "-"], check=True, capture_output=True, encoding="utf-8").stdout
    boxes = {word: (float(left), float(right)) for left, right, word in
             re.findall(r'<word xMin="([^"]+)" yMin="[^"]+" xMax="([^"]+)" yMax="[^"]+">([^<]*)</word>', html)}
    worst, bad, count = 0.0, 0, 0
    for left, _, box, _, alignment, text in fields(width, height):
        count += 1
        if text not in boxes:
            print(f"missing on the page: {text}")
            bad += 1
            continue
        x_min, x_max = boxes[text]
        start, end = margin + left * POINTS_PER_TWIP, margin + (left + box) * POINTS_PER_TWIP
        expected, actual = {LEFT: (start, x_min), RIGHT: (end, x_max),
                            CENTRE: ((start + end) / 2, (x_min + x_max) / 2)}[alignment]
        off = abs(expected - actual) / POINTS_PER_MM
        worst = max(worst, off)
        if off > TOLERANCE_MM:
            print(f"{text}: {off:.2f} mm off")
            bad += 1
    print(f"{count} fields, the worst {worst:.3f} mm off")
    return 1 if bad or count != 60 else 0


if __name__ == "__main__":
    if sys.argv[1] == "model":
        with open(sys.argv[5], "wb") as file:
            file.write(model(int(sys.argv[2]), int(sys.argv[3]), sys.argv[4]).encode("cp1252"))
    elif sys.argv[1] == "values":
        values(int(sys.argv[2]), int(sys.argv[3]))
    else:
        sys.exit(check(int(sys.argv[2]), int(sys.argv[3]), float(sys.argv[4]), sys.argv[5]))
