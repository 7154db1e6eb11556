#!/usr/bin/env python3
"""The clerk opens the designer, chooses a model in the toolbar, drags a field and saves."""
from clerk import ALTO, ANCHO, GRABAR, LAB_POS, MODELOS, expect_models, read_models, run


def act(clerk):
    before = read_models(clerk.models)
    clerk.wait_text(ANCHO, "10,49912")
    clerk.choose(MODELOS, 0, 9)
    clerk.wait_text(ANCHO, "20,99824")
    clerk.wait_text(ALTO, "29,69665")

    # "#FACTURA" stands at 7056, 700.
    clerk.drag((9000, 900), -100, 20)
    clerk.wait_text(LAB_POS, "Posicion Ancho:9,80; Posición Alto:1,76")
    clerk.screenshot()
    expect_models(before, read_models(clerk.models))
    clerk.save(lambda: clerk.click(clerk.control(GRABAR)))

    after = read_models(clerk.models)
    before["1"][0].update(Copias="02", Printer="")  # as the lists show them
    before["1"][1][2].update(Left="5556", Top="1000")
    expect_models(before, after)
    clerk.close()


run("place", act, number=3)
