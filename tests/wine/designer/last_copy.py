#!/usr/bin/env python3
"""A damaged model file: the designer offers its last good copy, and nothing is saved over what could not be read."""
from clerk import LAB_POS, NO, OK, YES, Clerk, expect, run

QUESTION = ("El archivo de modelos está dañado y no se puede leer. ¿Desea recuperar su última copia buena? "
            "El archivo dañado se conservará a su lado, con la terminación .danado.")
UNREAD = "El archivo de modelos no se puede leer. No se grabará nada en él."


def contents(path):
    with open(path, "rb") as file:
        return file.read()


def act(clerk):
    models = clerk.models
    good = contents(models)
    clerk.close()
    damaged = good[:len(good) // 3]
    with open(models, "wb") as file:
        file.write(damaged)

    # Refused: the page is empty, and saving it is refused.
    def refuse(self):
        self.answer(NO, QUESTION)
        self.answer(OK, UNREAD)
    clerk = Clerk("last_copy_refused", models=models, meets=refuse)
    clerk.key("ctrl+s")
    clerk.answer(OK, UNREAD)
    clerk.close()
    expect("the file that was not restored", damaged, contents(models))

    # Accepted: everything is there again, and the damaged file beside it.
    clerk = Clerk("last_copy_restored", models=models, meets=lambda self: self.answer(YES, QUESTION))
    expect("the file restored", good, contents(models))
    expect("the damaged file", damaged, contents(models + ".danado"))
    clerk.click_page(9000, 900)
    clerk.wait_text(LAB_POS, "Posicion Ancho:12,44; Posición Alto:1,23")
    clerk.screenshot()
    clerk.key("alt+F4")
    clerk.answer(NO, "Se ha modificado el modelo... ¿desea grabar las modificaciones?")
    clerk.expect_end()


run("last_copy", act)
