#!/usr/bin/env python3
"""The dialog "Propiedades Avanzadas" by the keyboard only: a fixed text's own properties, then a font for all."""
from clerk import expect, run

LEFT, SIZE, UNDERLINE, SAMPLE = 120, 103, 105, 111  # controls of the dialog


def act(clerk):
    before = clerk.fields()

    def open_properties():
        clerk.key("Return")
        dialog = clerk.dialog("Propiedades Avanzadas")
        clerk.wait_focus(LEFT, dialog)
        return dialog

    def accept(dialog):
        clerk.key("Return")
        clerk.gone(dialog)
        clerk.save()

    # The first field, a fixed text in bold. The order of the Tab key: position and size, alignment, format,
    # fonts, styles, size, sizes, underline, colour, sample.
    clerk.key("Tab")
    dialog = open_properties()
    clerk.retype("1134")
    clerk.key(*["Tab"] * 4, "Down")  # "Derecha"
    clerk.key(*["Tab"] * 3, "Up")    # from "Negrita" to "Cursiva"
    clerk.key("Tab")
    clerk.wait_focus(SIZE, dialog)
    clerk.retype("14")
    clerk.key("Tab", "Tab", "space")
    clerk.wait_focus(UNDERLINE, dialog)
    clerk.key("Tab", "Tab")
    clerk.wait_focus(SAMPLE, dialog)
    clerk.retype("Casa Gil")
    clerk.screenshot()
    accept(dialog)
    clerk.expect_field("the first field", 0, Descripcion="#Casa Gil", Left="1134", Top="760", Width="6400",
                       Height="520", Alignment="1", Bold="Falso", FontItalic="Verdadero", Underline="Verdadero",
                       FontSize="14", FontName="Arial", ForeColor="6567967")
    expect("the other fields", before[1:], clerk.fields()[1:])

    # Cancelled: nothing changes, so that nothing is left to undo but the acceptance.
    dialog = open_properties()
    clerk.retype("5000")
    clerk.key("Escape")
    clerk.gone(dialog)
    clerk.key("ctrl+z")
    clerk.save()
    expect("the fields after undo", before, clerk.fields())

    # For all: the font, and nothing of where the fields stand.
    dialog = open_properties()
    clerk.retype("5000")
    clerk.key(*["Tab"] * 8)
    clerk.wait_focus(SIZE, dialog)
    clerk.retype("11")
    clerk.key("alt+p")
    clerk.screenshot()
    accept(dialog)
    font = {"FontName": "Arial", "FontSize": "11", "Bold": "Verdadero", "FontItalic": "Falso", "Underline": "Falso",
            "ForeColor": "6567967"}
    expect("every field", [{**field, **font} for field in before], clerk.fields())
    clerk.close()


run("properties", act)
