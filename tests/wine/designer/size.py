#!/usr/bin/env python3
"""The clerk sizes a field by each of its four edge handles; a corner handle does nothing."""
from clerk import expect, run

LEFT, TOP, WIDTH, HEIGHT = 1020, 2660, 5200, 560  # DIRECCION (CLIEN)
INDEX = 7


def act(clerk):
    box = {"Left": LEFT, "Top": TOP, "Width": WIDTH, "Height": HEIGHT}

    def drag_and_save(what, start, right, down, **changes):
        clerk.drag(start, right, down)
        clerk.save()
        box.update(changes)
        expect(what, {name: str(value) for name, value in box.items()},
               {name: clerk.fields()[INDEX][name] for name in box})

    # Handles are six pixels wide and lie outside, at the middles of the edges. Only a click shows them; the
    # first drag would move the field if they were not there.
    clerk.click_page(LEFT + 2000, TOP + 280)
    clerk.screenshot()
    drag_and_save("the bottom edge", (LEFT + WIDTH / 2, TOP + HEIGHT + 45), 3, 10, Height=710)
    drag_and_save("the top edge", (LEFT + WIDTH / 2, TOP - 45), -7, 4, Top=2720, Height=650)
    drag_and_save("the right edge", (LEFT + WIDTH + 45, 2720 + 650 / 2), -60, 9, Width=4300)
    drag_and_save("the left edge", (LEFT - 45, 2720 + 650 / 2), 20, -5, Left=1320, Width=4000)
    drag_and_save("a corner", (1320 + 4000 + 45, 2720 + 650 + 45), 30, 30)

    # No further than to the opposite edge.
    drag_and_save("past the opposite edge", (1320 + 4000 / 2, 2720 - 45), 0, 90, Top=3370, Height=0)
    clerk.screenshot()
    clerk.close()


run("size", act)
