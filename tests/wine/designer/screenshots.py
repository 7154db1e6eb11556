#!/usr/bin/env python3
"""screenshots.py FOLDER [NAME ...]: pictures of the designer's window and of its dialogs, for the guide, as
FOLDER/NAME.png; without names, all of them."""
import os
import subprocess
import sys

from clerk import CAMPOS_DISPONIBLES, ELEGIR_PAPEL, NO, SCRATCH, example_models, run

FOLDER = sys.argv[1]
COLOURS = 64  # few enough for small files, enough for smooth letters
LOGO = (1150, 410)                 # a place within the logo that the model is given


def keep(clerk, name, window):
    """The window alone, in few colours."""
    os.makedirs(FOLDER, exist_ok=True)
    path = clerk.screenshot(f"guia-{name}")
    left, top, right, bottom = (window[side] for side in ("left", "top", "right", "bottom"))
    subprocess.run(["convert", path, "-crop", f"{right - left}x{bottom - top}+{left}+{top}", "+repage", "-strip",
                    "+dither", "-colors", str(COLOURS), "-define", "png:compression-level=9",
                    f"PNG8:{FOLDER}/{name}.png"], check=True)
    print(f"{FOLDER}/{name}.png")


def cancel(clerk, dialog):
    clerk.key("Escape")
    clerk.gone(dialog)


def disenador(clerk):
    clerk.click_page(2000, 2480)
    keep(clerk, "disenador", clerk.form)


def menu(clerk):
    clerk.click_page(2000, 2480, button=3)
    popup = clerk.popup(5)
    clerk.pick(popup, 3)
    clerk.popup(6, number=2)
    left, top = clerk.point(500, 1900)
    keep(clerk, "menu_editar", {"left": left, "top": top, "right": left + 430, "bottom": top + 230})
    clerk.key("Escape", "Escape")
    clerk.no_menu()


def propiedades(clerk):
    clerk.click_page(1500, 1000)
    clerk.key("Return")
    dialog = clerk.dialog("Propiedades Avanzadas")
    keep(clerk, "propiedades", dialog)
    cancel(clerk, dialog)


def mensaje(clerk):
    clerk.pick_last(clerk.open_menu(CAMPOS_DISPONIBLES, 7), 0)
    dialog = clerk.dialog("Mensaje")
    clerk.type("Entregado por:")
    keep(clerk, "mensaje", dialog)
    clerk.key("Return")
    clerk.gone(dialog)
    clerk.key("ctrl+z")


def papel(clerk):
    clerk.click(clerk.control(ELEGIR_PAPEL))
    dialog = clerk.dialog("Elegir tamaño de papel")
    keep(clerk, "papel", dialog)
    clerk.key("Home", "End")  # the first key begins the selection
    clerk.key("Return")
    clerk.gone(dialog)
    special = clerk.dialog("Tamaño especial")
    keep(clerk, "papel_especial", special)
    cancel(clerk, special)


def logotipo(clerk):
    x, y = clerk.point(*LOGO)
    clerk.click_at(x, y)
    clerk.click_at(x, y)
    dialog = clerk.dialog("Cambiar Tamaño")
    keep(clerk, "logotipo", dialog)
    cancel(clerk, dialog)


def copiar(clerk):
    clerk.click_page(2000, 2480, button=3)
    clerk.pick(clerk.popup(5), 3)
    clerk.pick_last({**clerk.popup(1, number=2), "items": 6}, 5)
    dialog = clerk.dialog("Propiedad a Copiar")
    keep(clerk, "copiar", dialog)
    cancel(clerk, dialog)


def guardar(clerk):
    clerk.key("alt+F4")
    dialog = clerk.dialog("Modelos de impresión")
    keep(clerk, "guardar", dialog)
    clerk.click(clerk.control(NO, dialog))
    clerk.expect_end()


def models_with_logo():
    path = example_models()
    subprocess.run(["convert", "-size", "96x96", "xc:white", "-fill", "#1f3864", "-draw", "roundrectangle 4,4 91,91 18,18",
                    "-fill", "white", "-draw", "polygon 24,70 24,26 48,52 72,26 72,70", "BMP3:" +
                    os.path.join(os.path.dirname(path), "logo.bmp")], check=True)
    with open(path, encoding="cp1252", newline="") as file:
        text = file.read()
    text = text.replace('Imagen="fondo_factura.gif"',
                        'Imagen="fondo_factura.gif" Printer="Impresora A4" ImagenLogo="logo.bmp|850|110|600|600"', 1)
    with open(path, "w", encoding="cp1252", newline="") as file:
        file.write(text)
    return path


# In the order in which they are taken; the last one ends the visit.
PICTURES = [disenador, menu, propiedades, mensaje, papel, logotipo, copiar, guardar]


def act(clerk):
    wanted = sys.argv[2:] or [picture.__name__ for picture in PICTURES]
    for picture in PICTURES:
        if picture.__name__ in wanted:
            picture(clerk)
    if guardar.__name__ not in wanted:
        clerk.key("alt+F4")
        clerk.click(clerk.control(NO, clerk.dialog("Modelos de impresión")))
        clerk.expect_end()


os.makedirs(SCRATCH, exist_ok=True)
run("screenshots", act, models=models_with_logo())
