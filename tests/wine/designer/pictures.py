#!/usr/bin/env python3
"""A logo and a background through the system's file dialog: the files are copied beside the models; the logo is
dragged and sized like a field; the background is taken off the page and its file stays."""
import os
import shutil
import subprocess

from clerk import INSERTAR, SCRATCH, expect, run, until, windows_path

BACKGROUND, LOGO, REMOVE = 0, 1, 2  # in "Imagen"
FIRST_ENTRY = 200  # of the dialog "Cambiar Tamaño"
ELSEWHERE = os.path.join(SCRATCH, "escritorio")


def act(clerk):
    folder = os.path.dirname(clerk.models)
    os.makedirs(ELSEWHERE, exist_ok=True)
    logo = os.path.join(ELSEWHERE, "Logo nuevo.bmp")
    subprocess.run(["convert", "-size", "80x40", "xc:#204080", f"BMP3:{logo}"], check=True)
    photo = os.path.join(ELSEWHERE, "impreso.jpg")
    subprocess.run(["convert", "-size", "210x297", "xc:#f0e0d0", photo], check=True)

    def choose_image(entry):
        """By the keyboard: Insertar, Imagen, and the entry of that place; the line between them is passed over."""
        clerk.open_menu(INSERTAR, 1)
        clerk.key("Right")
        clerk.popup(4, number=2)
        clerk.key(*["Down"] * entry, "Return")
        clerk.no_menu()

    def open_file(path):
        dialog = until("the file dialog", lambda: clerk.windows("#32770"))[0]
        clerk.type(windows_path(path))
        clerk.screenshot()
        clerk.key("Return")
        clerk.gone(dialog)

    def attribute(name):
        return clerk.attributes().get(name)

    choose_image(LOGO)
    open_file(logo)
    clerk.save()
    # The picture's own size; a free place at the top left.
    expect("the logo", "Logo nuevo.bmp|567|567|1200|600", attribute("ImagenLogo"))
    with open(logo, "rb") as original, open(os.path.join(folder, "Logo nuevo.bmp"), "rb") as copy:
        expect("the logo's copy", original.read(), copy.read())
    clerk.drag((700, 650), 100, -20)
    clerk.save()
    expect("the logo dragged", "Logo nuevo.bmp|2067|267|1200|600", attribute("ImagenLogo"))

    # Twice pressed, it shows its size in centimetres.
    x, y = clerk.point(2500, 500)
    clerk.click_at(x, y)
    clerk.click_at(x, y)
    dialog = clerk.dialog("Cambiar Tamaño")
    clerk.wait_focus(FIRST_ENTRY, dialog)
    clerk.retype("4")
    clerk.key("Tab")
    clerk.retype("2,5")
    clerk.key("Return")
    clerk.gone(dialog)
    clerk.save()
    expect("the logo sized", "Logo nuevo.bmp|2067|267|2268|1417,5", attribute("ImagenLogo"))

    choose_image(BACKGROUND)
    open_file(photo)
    clerk.save()
    expect("the background", "impreso.jpg", attribute("Imagen"))
    clerk.screenshot()
    choose_image(REMOVE)
    clerk.save()
    expect("no background", None, attribute("Imagen"))
    expect("the pictures kept", ["Logo nuevo.bmp", "fondo_factura.gif", "impreso.jpg"],
           sorted(name for name in os.listdir(folder) if name[-4:] in (".bmp", ".gif", ".jpg")))
    clerk.close()
    shutil.rmtree(ELSEWHERE)


run("pictures", act)
