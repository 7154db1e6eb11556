#!/usr/bin/env python3
"""Laid out by mouse, saved, printed by a host: on the page every text stands where the mouse left it, within half a
millimetre. The page is printed before as well, so that the movement is measured, not only the place."""
import glob
import os
import re
import subprocess

from clerk import IMPRESORAS, LIMIT, SCRATCH, SOURCE, Failed, expect, run, windows_path, windows_program

TWIPS_PER_POINT = 20
TOLERANCE_TWIPS = 0.5 * 56.7  # half a millimetre
LEFT, RIGHT, CENTRE = 0, 1, 2
# Text, left, top, width, alignment; and how far the mouse drags it, in pixels.
FIELDS = [("Izquierda", 1500, 1200, 3000, LEFT, (120, 45)),
          ("Derecha", 1500, 2400, 3000, RIGHT, (-31, 200)),
          ("Centro", 1500, 3600, 3000, CENTRE, (253, -57)),
          ("Quieto", 1500, 4800, 3000, LEFT, None)]


def write_models():
    path = os.path.join(SCRATCH, "modelos.xml")
    fields = "".join(
        f"<Campo><Descripcion>#{text}</Descripcion><Top>{top}</Top><Left>{left}</Left><Width>{width}</Width>"
        f"<Height>400</Height><Alignment>{alignment}</Alignment><FontSize>12</FontSize><FontName>Arial</FontName></Campo>"
        for text, left, top, width, alignment, _ in FIELDS)
    with open(path, "w", encoding="cp1252") as file:
        file.write(f'<Modelos><Modelo Numero="1" Width="11906" Height="16838" Copias="1">{fields}</Modelo></Modelos>')
    return path


def printed_words(models, jobs_before):
    """Where the words of the next job stand: left, top, right in twips."""
    host = subprocess.run(
        windows_program("cscript", "//nologo", windows_path(os.path.join(SOURCE, "tests/wine/documents/imprimir.js")),
                        windows_path(models), "1"), capture_output=True, check=False, timeout=LIMIT)
    expect("what the host says", ["impreso", "fin"], host.stdout.decode("cp850").split())
    jobs = sorted(glob.glob(os.path.join(os.environ["QM_PRINT_JOBS"], "*.ps")))
    expect("printed jobs", jobs_before + 1, len(jobs))
    page = os.path.join(SCRATCH, f"page-{jobs_before}.pdf")
    subprocess.run(["ps2pdf", "-dAutoRotatePages=/None", jobs[-1], page], check=True)
    html = subprocess.run(["pdftotext", "-bbox", page, "-"], check=True, capture_output=True, encoding="utf-8").stdout
    return {word: tuple(float(number) * TWIPS_PER_POINT for number in (left, top, right))
            for left, top, right, word in
            re.findall(r'<word xMin="([^"]+)" yMin="([^"]+)" xMax="([^"]+)" yMax="[^"]+">([^<]*)</word>', html)}


def expect_near(what, expected, actual):
    if abs(expected - actual) > TOLERANCE_TWIPS:
        raise Failed(f"{what}: expected {expected:.0f} twips, got {actual:.0f}")


def act(clerk):
    before = printed_words(clerk.models, 0)
    # A model that names no printer asks for one on printing.
    clerk.choose(IMPRESORAS, 0, 3)
    clerk.wait_text(IMPRESORAS, "Impresora A4")
    for text, left, top, width, _, drag in FIELDS:
        if drag:
            clerk.drag((left + width / 2, top + 200), *drag)
    # The last one becomes wider on its left, and its text starts there.
    clerk.click_page(1500 + 1500, 4800 + 200)
    clerk.drag((1500 - 45, 4800 + 200), -40, 0)
    clerk.screenshot()
    clerk.save()
    clerk.close()
    after = printed_words(clerk.models, 1)

    for text, left, top, width, alignment, drag in FIELDS:
        right, down = (15 * pixels for pixels in drag or (-40, 0))
        expect_near(f"{text}: to the right", right, after[text][0] - before[text][0])
        expect_near(f"{text}: down", down, after[text][1] - before[text][1])
        start, end = left + right, left + right + width
        edge, place = {LEFT: (after[text][0], start), RIGHT: (after[text][2], end),
                       CENTRE: ((after[text][0] + after[text][2]) / 2, (start + end) / 2)}[alignment]
        expect_near(f"{text}: its place", place, edge)


run("round_trip", act, models=write_models())
