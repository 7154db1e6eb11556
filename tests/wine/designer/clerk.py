"""A clerk before the designer, with a real mouse and a real keyboard (xdotool), on a private display.

A run makes a Clerk on a copy of the example models, acts, and checks what the model file says afterwards. Nothing
waits for a fixed time: every wait names what it waits for and gives up after LIMIT seconds.
Units: twips on the page; pixels on the screen, 15 twips each at 96 dots per inch while nothing is zoomed.
"""
import atexit
import contextlib
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import time
import xml.etree.ElementTree as ElementTree

LIMIT = 40
PAUSE = 0.02
DPI = int(os.environ.get("QM_SCREEN_DPI", "96"))  # what the prefix's screen is set to
TWIPS_PER_PIXEL = 1440 / DPI
PAGE_MARGIN = round(14 * DPI / 96)  # pixels of desk around the page

SOURCE = os.environ["QM_SOURCE_DIR"]
BINARY = os.environ["QM_BINARY_DIR"]
SCRATCH = os.environ["QM_SCRATCH"]
FLAGS = os.environ.get("QM_RUN_FLAGS", "").split()
HERE = os.path.join(SOURCE, "tests/wine/designer")

# Ids of the designer's controls, and of the buttons that every dialog has.
GRABAR, IMPRIMIR_PRUEBA, ELEGIR_PAPEL, TAMAÑO_PAPEL = 150, 151, 152, 153
MODELOS, IMPRESORAS, ANCHO, ALTO, COPIAS, ES_ETIQUETA, LAB_POS = range(200, 207)
OK, CANCEL, YES, NO = 1, 2, 6, 7
MARKS = "#005FB8"  # the colour of handles and of the frame of what is selected or dragged
INSERTAR, CAMPOS_DISPONIBLES, CLIENTES = 2, 3, 4  # places in the menu bar, from 0


class Failed(Exception):
    pass


def windows_path(path):
    return "Z:" + os.path.realpath(path).replace("/", "\\")


def windows_program(*command):
    return [os.path.join(SOURCE, "scripts/wine-run.sh"), *FLAGS, *command]


def until(what, condition):
    """The first true value of the condition."""
    end = time.monotonic() + LIMIT
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failed(f"waited {LIMIT} seconds for {what}")
        time.sleep(PAUSE)


def expect(what, expected, actual):
    if expected != actual:
        raise Failed(f"{what}: expected {expected!r}, got {actual!r}")


def expect_models(expected, actual):
    """Whole files of models; what differs is told, not the whole."""
    for number in sorted(expected.keys() | actual.keys()):
        attributes, fields = expected.get(number, ({}, []))
        expect(f"the attributes of model {number}", attributes, actual.get(number, ({}, []))[0])
        after = actual.get(number, ({}, []))[1]
        expect(f"the fields of model {number}", len(fields), len(after))
        for index, field in enumerate(fields):
            expect(f"field {index + 1} of model {number}", field, after[index])


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def example_models():
    """A folder of the run's own with the example models, their pictures and definitions."""
    folder = os.path.join(SCRATCH, "modelos")
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    for name in ("modelos.xml", "fondo_factura.gif", "CLIEN.Qma"):
        shutil.copy(os.path.join(SOURCE, "examples", name), folder)
    return os.path.join(folder, "modelos.xml")


def read_models(path):
    """The models of a file by number: their attributes, and their fields in order as name and text."""
    with open(path, encoding="cp1252", newline="") as file:
        root = ElementTree.fromstring(file.read())
    return {model.get("Numero"): (dict(model.attrib), [{part.tag: part.text or "" for part in field}
                                                      for field in model.findall("Campo")])
            for model in root}


class Clerk:
    def __init__(self, name, number=1, models=None, meets=None):
        """MEETS is done before the window comes, for dialogs that stand in front of it."""
        self.name = name
        self.models = models or example_models()
        self.pictures = 0
        self.closed = False
        atexit.register(self.leave)
        self.watcher = subprocess.Popen(windows_program(os.path.join(BINARY, "screen_watcher.exe")),
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")
        self.host = subprocess.Popen(
            windows_program("cscript", "//nologo", windows_path(os.path.join(HERE, "mostrar.js")),
                            windows_path(self.models), str(number)), stdout=subprocess.PIPE)
        if meets:
            meets(self)
        self.form = until("the designer", self.opened)[0]
        until("the page to have the focus", lambda: self.look()["focus"] == self.page()["handle"])

    def opened(self):
        if self.host.poll() is not None:
            raise Failed(f"the host ended: {self.host.stdout.read().decode('cp850')}")
        return self.windows("ModeloPrint")

    def leave(self):
        """Whatever happened, nothing stays behind."""
        self.watcher.stdin.close()
        for process in (self.watcher, self.host):
            try:
                process.wait(timeout=1 if process is self.host else 5)
            except subprocess.TimeoutExpired:
                process.kill()

    # ---- What is on the screen

    def look(self):
        self.watcher.stdin.write("\n")
        self.watcher.stdin.flush()
        line = self.watcher.stdout.readline()
        if not line:
            raise Failed("the screen watcher has gone")
        return json.loads(line)

    def windows(self, class_name, title=None):
        return [window for window in self.look()["windows"]
                if window["class"] == class_name and title in (None, window["text"])]

    def window(self, class_name, title=None):
        return until(f"a window {title or class_name}", lambda: self.windows(class_name, title))[0]

    def dialog(self, title):
        return self.window("#32770", title)

    def answer(self, button, *said):
        """A message that says so is answered by that button."""
        message = self.dialog("Modelos de impresión")
        texts = [control["text"] for control in message["controls"] if control["class"] == "Static" and control["text"]]
        expect("the message", list(said), texts)
        self.screenshot()
        self.click(self.control(button, message))
        self.gone(message)

    def gone(self, window):
        until(f"the window {window['text']} to go",
              lambda: all(other["handle"] != window["handle"] for other in self.look()["windows"]))

    def control(self, number, window=None):
        wanted = (window or self.form)["handle"]
        for shown in self.look()["windows"]:
            if shown["handle"] == wanted:
                return next((control for control in shown["controls"] if control["id"] == number), None)
        return None

    def page(self):
        return next(control for control in self.windows("ModeloPrint")[0]["controls"]
                    if control["class"] == "ModeloPrintPagina")

    def text_of(self, number, window=None):
        control = self.control(number, window)
        return control and control["text"]

    def wait_focus(self, number, window):
        """A control that the keyboard acts on now."""
        def has_focus():
            control = self.control(number, window)
            return control and self.look()["focus"] == control["handle"]
        until(f"control {number} to have the focus", has_focus)

    def wait_text(self, number, expected, window=None):
        try:
            until("a text", lambda: self.text_of(number, window) == expected)
        except Failed:
            expect(f"the text of control {number}", expected, self.text_of(number, window))

    # ---- Mouse and keyboard

    def click_at(self, x, y, button=1):
        xdotool("mousemove", x, y, "click", button)

    def click(self, control, button=1):
        """The middle of a control or window."""
        self.click_at((control["left"] + control["right"]) // 2, (control["top"] + control["bottom"]) // 2, button)

    def point(self, left, top):
        """Where a place of the page is on the screen, while nothing is scrolled or zoomed."""
        page = self.page()
        return (page["left"] + PAGE_MARGIN + round(left / TWIPS_PER_PIXEL),
                page["top"] + PAGE_MARGIN + round(top / TWIPS_PER_PIXEL))

    def click_page(self, left, top, button=1):
        self.click_at(*self.point(left, top), button)

    def drag(self, start, right, down):
        """From a place of the page, by whole pixels."""
        self.drag_at(*self.point(*start), right, down)

    @staticmethod
    def drag_at(x, y, right, down):
        """In several movements, as a hand does."""
        xdotool("mousemove", x, y, "mousedown", 1)
        steps = 4
        for step in range(1, steps + 1):
            xdotool("mousemove", x + right * step // steps, y + down * step // steps)
        xdotool("mouseup", 1)

    @contextlib.contextmanager
    def held(self, key):
        xdotool("keydown", key)
        try:
            yield
        finally:
            xdotool("keyup", key)

    def key(self, *keys):
        xdotool("key", "--delay", 20, *keys)

    def retype(self, text):
        """In place of what the box with the focus says."""
        self.key("Home", "shift+End")
        self.type(text)

    def type(self, text):
        xdotool("type", "--delay", 20, text)

    def choose(self, number, position, count):
        """An entry of a drop-down list of that many."""
        self.click(self.control(number))
        entries = self.window("ComboLBox")
        height = (entries["bottom"] - entries["top"]) / count
        self.click_at(entries["left"] + 10, round(entries["top"] + height * (position + 0.5)))
        self.gone(entries)

    def open_menu(self, position, items):
        """A menu of the bar by the keyboard, as the pop-up that has come, of that many equally high items."""
        self.key("F10", *["Right"] * position, "Down")
        return self.popup(items)

    def popup(self, items, number=1):
        """The menu that has been opened last, when that many are open."""
        menus = until(f"{number} open menus", lambda: (lambda open_now: open_now if len(open_now) == number else None)(
            self.windows("#32768")))
        return {**menus[0], "items": items}

    def pick(self, menu, position):
        """Clicks the item at that position, counted from 0."""
        border = 3
        height = (menu["bottom"] - menu["top"] - 2 * border) / menu["items"]
        self.click_at(menu["left"] + 30, round(menu["top"] + border + height * (position + 0.5)))

    def pick_last(self, menu, position):
        """An item that ends the menu."""
        self.pick(menu, position)
        self.no_menu()

    def no_menu(self):
        until("the menus to close", lambda: not self.windows("#32768"))

    # ---- What a run is about

    def fields(self, number=1):
        return read_models(self.models)[str(number)][1]

    def save(self, act=None):
        """By the keyboard or as the caller does it; waits until the file has been written anew."""
        before = os.stat(self.models)
        (act or (lambda: self.key("ctrl+s")))()
        until("the model file to be written", lambda: self.written_since(before))

    def written_since(self, before):
        now = os.stat(self.models)
        return (now.st_ino, now.st_mtime_ns) != (before.st_ino, before.st_mtime_ns)

    def attributes(self, number=1):
        return read_models(self.models)[str(number)][0]

    def expect_field(self, what, index, **values):
        field = self.fields()[index]
        expect(what, values, {name: field[name] for name in values})

    def close(self):
        """The window, with nothing left to save; the host comes to its end."""
        self.key("alt+F4")
        self.expect_end()

    def expect_end(self):
        try:
            output = self.host.communicate(timeout=LIMIT)[0].decode("cp850")
        except subprocess.TimeoutExpired:
            raise Failed("the designer did not close") from None
        expect("what the host says", ["cerrado", "fin"], output.split())

    def screenshot(self, name=None):
        """As it is once two looks agree, kept as an artefact of the build."""
        folder = os.path.join(BINARY, "screenshots")
        os.makedirs(folder, exist_ok=True)
        self.pictures += 1
        path = os.path.join(folder, f"{name or f'{self.name}-{self.pictures}'}.png")
        seen = []

        def settled():
            subprocess.run(["import", "-window", "root", path], check=True)
            with open(path, "rb") as file:
                seen.append(hashlib.sha256(subprocess.run(["convert", path, "rgb:-"], check=True,
                                                          capture_output=True).stdout).digest())
            return len(seen) > 1 and seen[-1] == seen[-2]
        until("the picture to settle", settled)
        return path


def colours_within(picture, window):
    """The colours of that part of a screenshot, as "#RRGGBB", without the window's border."""
    left, top = window["left"] + 2, window["top"] + 2
    area = f"{window['right'] - left - 2}x{window['bottom'] - top - 2}+{left}+{top}"
    listed = subprocess.run(["convert", picture, "-crop", area, "-format", "%c", "histogram:info:"], check=True,
                            capture_output=True, encoding="ascii").stdout
    return set(re.findall("#[0-9A-F]{6}", listed))


def run(name, act, number=1, models=None):
    """A whole run; what went wrong is told, with a picture of it."""
    clerk = None
    try:
        clerk = Clerk(name, number, models)
        act(clerk)
    except Failed as failure:
        if clerk:
            subprocess.run(["import", "-window", "root", os.path.join(SCRATCH, "failed.png")], check=False)
            print(f"on the screen: {SCRATCH}/failed.png", file=sys.stderr)
        print(f"FAILED: {failure}", file=sys.stderr)
        sys.exit(1)
