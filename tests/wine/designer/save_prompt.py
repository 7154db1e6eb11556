#!/usr/bin/env python3
"""What the clerk has not saved is asked about on closing: Yes saves it, No drops it. Pressing a field is enough."""
from clerk import NO, YES, Clerk, expect, run

QUESTION = "Se ha modificado el modelo... ¿desea grabar las modificaciones?"


def close_with(clerk, answer):
    clerk.key("alt+F4")
    clerk.answer(answer, QUESTION)
    clerk.expect_end()


def act(clerk):
    models = clerk.models
    with open(models, "rb") as file:
        before = file.read()

    clerk.drag((1500, 2400), 40, 10)  # NOMBRE (CLIEN)
    close_with(clerk, NO)
    with open(models, "rb") as file:
        expect("the file after No", before, file.read())

    clerk = Clerk("save_prompt_yes", models=models)
    clerk.drag((1500, 2400), 40, 10)
    close_with(clerk, YES)
    field = clerk.fields()[6]
    expect("the field after Yes", ("1620", "2490"), (field["Left"], field["Top"]))

    clerk = Clerk("save_prompt_pressed", models=models)
    clerk.click_page(2200, 2600)
    close_with(clerk, NO)


run("save_prompt", act)
