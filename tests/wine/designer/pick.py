#!/usr/bin/env python3
"""The clerk places a field from a picker menu and a text from "#", deletes a field and takes that back."""
from clerk import CAMPOS_DISPONIBLES, CLIENTES, expect, run


def act(clerk):
    before = clerk.fields()

    # From the menu of a table, whose entries are those of its definition file.
    menu = clerk.open_menu(CLIENTES, 6)
    clerk.screenshot()
    clerk.pick_last(menu, 1)
    # From the host's fields: a text of the clerk's own, asked for.
    clerk.pick_last(clerk.open_menu(CAMPOS_DISPONIBLES, 7), 0)
    prompt = clerk.dialog("Mensaje")
    clerk.type("Entregado por: J. Gil")
    clerk.screenshot()
    clerk.key("Return")
    clerk.gone(prompt)

    # "#Gracias por su confianza" cannot be seen at once: another one goes.
    clerk.click_page(1500, 2200)  # "#Cliente"
    clerk.key("Delete")
    clerk.save()
    after = clerk.fields()
    expect("the fields kept", before[:5] + before[6:], after[:-2])
    expect("what the new fields say", ["DIRECCION (CLIEN)", "#Entregado por: J. Gil"],
           [field["Descripcion"] for field in after[-2:]])

    # The deletion is taken back, then the text, then the first field.
    clerk.key("ctrl+z")
    clerk.save()
    expect("the fields after one undo", before, clerk.fields()[:-2])
    clerk.key("ctrl+z", "ctrl+z")
    clerk.save()
    expect("the fields after three", before, clerk.fields())
    clerk.close()


run("pick", act)
