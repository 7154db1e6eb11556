#!/usr/bin/env python3
"""Arrow keys, undo and redo; zoom by the wheel with Ctrl, where the mouse still moves twips; Shift keeps an axis."""
from clerk import MARKS, Failed, colours_within, expect, run, until, xdotool

NOMBRE, FORMA_PAGO = 6, 16
WHEEL_UP, WHEEL_DOWN = 4, 5


def act(clerk):
    before = clerk.fields()
    clerk.click_page(1500, 2400)
    clerk.key("Right", "Right", "Right", "ctrl+Down", "ctrl+Down", "shift+Right", "shift+Up")
    clerk.save()
    clerk.expect_field("the field moved by keys", NOMBRE, Left="1065", Top="2342", Width="5215", Height="285")
    clerk.key(*["ctrl+z"] * 7)
    clerk.save()
    expect("the fields after undo", before, clerk.fields())
    clerk.key(*["ctrl+y"] * 4)
    clerk.save()
    clerk.expect_field("the field after redo", NOMBRE, Left="1065", Top="2341", Width="5200", Height="300")

    # Three steps are 200 percent: a pixel is seven and a half twips. The place under the mouse stays there, so
    # the field is where the mouse is.
    under_mouse = clerk.point(10000, 3330)

    def zoom(button):
        xdotool("mousemove", *under_mouse)
        with clerk.held("ctrl"):
            xdotool("click", "--repeat", 3, "--delay", 20, button)

    def expect_place(what, left, top):
        clerk.save()
        field = clerk.fields()[FORMA_PAGO]
        if max(abs(int(field["Left"]) - left), abs(int(field["Top"]) - top)) > 1:
            raise Failed(f"{what}: expected {left}, {top} within a twip, got {field['Left']}, {field['Top']}")

    zoom(WHEEL_UP)
    # Straight after another field has changed; neither keeps a frame.
    clerk.key("ctrl+y", "ctrl+z")
    clerk.drag_at(*under_mouse, 40, 20)
    until("the marks on the page to go", lambda: MARKS not in colours_within(clerk.screenshot("keys"), clerk.page()))
    expect_place("zoomed", 9200, 3350)
    zoom(WHEEL_DOWN)
    clerk.drag((10000, 3480), -40, -30)
    expect_place("at actual size", 8600, 2900)
    with clerk.held("shift"):
        clerk.drag((10000, 3030), -30, 8)
    expect_place("along one axis", 8150, 2900)
    clerk.close()


run("keys", act)
