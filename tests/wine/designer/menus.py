#!/usr/bin/env python3
"""Right-click menus: the clerk copies a property of one field and pastes it onto two others; the page has a menu of
its own."""
from clerk import expect, run

PROPERTIES, COPY, PASTE = 1, 3, 4  # in "Editar"
TOP, WIDTH = 0, 2                  # in "Copiar Propiedades"


def act(clerk):
    def copy(place, what):
        clerk.click_page(*place, button=3)
        clerk.pick(clerk.popup(5), COPY)
        clerk.pick_last({**clerk.popup(1, number=2), "items": 6}, what)

    def paste(place):
        clerk.click_page(*place, button=3)
        clerk.pick_last(clerk.popup(5), PASTE)

    copy((9500, 2200), TOP)  # Numero, 2120
    clerk.screenshot()
    paste((7400, 2600))      # "#Fecha"
    paste((1500, 2400))      # NOMBRE (CLIEN)
    # Once pasted, the field is elsewhere: it is pressed there.
    copy((1500, 2200), WIDTH)
    paste((9500, 2950))      # VENCE (FACTU)
    clerk.save()
    fields = clerk.fields()
    expect("the tops", ["2120", "2120", "2120"], [fields[index]["Top"] for index in (10, 11, 6)])
    expect("the width", ("5200", "2840"), (fields[14]["Width"], fields[14]["Top"]))

    # The empty page.
    clerk.click_page(600, 300, button=3)
    menu = clerk.popup(1)
    clerk.screenshot()
    clerk.pick(menu, 0)
    clerk.popup(4, number=2)
    clerk.key("Escape", "Escape")
    clerk.no_menu()
    clerk.close()


run("menus", act)
