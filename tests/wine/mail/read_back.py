#!/usr/bin/env python3
"""read_back.py FOLDER: looks at what correo.js left in its outboxes, with a ZIP program of another maker.

The scrambled passwords are undone here, as a mail sender does it.
"""
import glob
import os
import re
import subprocess
import sys
import zipfile

ALPHABET = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
NAME = re.compile(r"\d{4}-\d{2}-\d{2}·\d{2} \d{2}·(.*)\.zip")
failures = []


def expect(what, expected, actual):
    if expected != actual:
        failures.append(f"{what}: expected <{expected}>, got <{actual}>")


def reversed_password(text):
    length = len(text) // 2
    password = ""
    for position in range(1, length + 1):
        key, value = text[length - position], text[length + position - 1]
        if position % 2 == 0:
            key, value = value, key
        if key == "&":
            password += value
        else:
            index = ALPHABET.index(value) + 1 - (ALPHABET.index(key) + 1) - position
            password += ALPHABET[(index + 62 if index < 1 else index) - 1]
    return password


class Message:
    """An archive of an outbox by what its name says after the time."""

    def __init__(self, folder, outgoing, name):
        outbox = os.path.join(folder, outgoing, "Bandeja de Salida")
        found = [file for file in sorted(os.listdir(outbox)) if NAME.fullmatch(file).group(1) == name]
        if not found:
            sys.exit(f"FAILED: no archive <{name}> in {os.listdir(outbox)}")
        self.path = os.path.join(outbox, found[0])
        self.archive = zipfile.ZipFile(self.path)
        expect(name + ": damaged entry", None, self.archive.testzip())
        listing = subprocess.run(["unzip", "-tqq", self.path], capture_output=True, text=True)
        expect(name + ": unzip", (0, ""), (listing.returncode, listing.stdout + listing.stderr))

    def names(self):
        return [entry.filename for entry in self.archive.infolist()]

    def read(self, name):
        return self.archive.read(name)

    def request(self, password):
        """The lines, with the password undone; each line must end in CR LF."""
        text = self.read("EMAIL.TXT").decode("cp1252")
        expect("last line end", True, text.endswith("\r\n"))
        lines = text[:-2].split("\r\n")
        for i, line in enumerate(lines):
            if line.startswith("Password="):
                expect("password in plain text", False, password in line)
                lines[i] = "Password=" + reversed_password(line[len("Password="):])
        expect("lone line ends", False, any("\r" in line or "\n" in line for line in lines))
        return lines


def check_profile_message(folder):
    message = Message(folder, "espera", "Factura 12 2024  pago·Muñoz, José·")
    expect("entries", ["EMAIL.TXT", "EMAIL.HTM", "LOGO A.GIF", "presupuesto año.pdf"], message.names())
    expect("request", [
        "NombreDestinatario=Muñoz José", "emailDestinatario=jose@cliente.es", "Tema=Factura 12/2024: pago",
        "Attachments=presupuesto año.pdf;LOGO A.GIF;", "HTMText=Email.htm",
        "HTMDir=" + windows_path(folder) + "\\", "Receipt=Verdadero", "EmailCC=archivo@correo.es",
        "DesCC=Archivo S.L.", "From=ana@correo.es", "FromDisplayName=García Ana", "SMTPHost=smtp.correo.es",
        "SMTPPort=465", "SSL=Verdadero", "Password=Contraseña 1!", "UserName=ana",
        "UseAuthentication=Verdadero", "UsePopAuthentication=Falso", "PoP3Host=pop.correo.es",
    ], message.request("Contraseña 1!"))
    expect("body", '<html><body><p>Buenos días:<BR>adjuntamos la factura de 1.234,50 €</p>'
           '<img src="Logo%20A.gif"><img src="falta.gif"></body></html>', message.read("EMAIL.HTM").decode("cp1252"))
    expect("picture", b"GIF89a", message.read("LOGO A.GIF"))
    expect("attachment", b"%PDF-1.4 de mentira", message.read("presupuesto año.pdf"))


def check_hostile_message(folder):
    message = Message(folder, "espera", ".. .. CON  x ·Destinatario·")
    expect("hostile entries", ["EMAIL.TXT", "EMAIL.HTM", "LOGO A.GIF"], message.names())
    lines = message.request("Contraseña 1!")
    expect("hostile attachments", "Attachments=CON;NUL;no existe.pdf;LOGO A.GIF;", lines[3])
    expect("name as given", "NombreDestinatario=uno@cliente.es;dos@cliente.es", lines[0])


def check_print_jobs(folder):
    plain = Message(folder, "trabajos", "Aviso·José·")
    expect("plain entries", ["EMAIL.TXT", "EMAIL.HTM", "LOGO A.GIF", "presupuesto año.pdf"], plain.names())
    expect("plain request", [
        "Tema=Aviso", "Attachments=presupuesto año.pdf;LOGO A.GIF;", "HTMText=Email.htm",
        "HTMDir=" + windows_path(folder) + "\\", "SMTPHost=smtp.correo.es", "SMTPPort=25", "SSL=Falso",
        "NombreDestinatario=José", "emailDestinatario=jose@cliente.es", "From=ana@correo.es",
        "FromDisplayName=García, Ana", "EmailCC=", "DesCC=", "Password=secreto", "UserName=ana",
        "UseAuthentication=Verdadero", "UsePopAuthentication=Falso", "PoP3Host=pop.correo.es", "Receipt=Falso",
    ], plain.request("secreto"))
    expect("plain body", b'Hola\r\n<img src="Logo%20A.gif">', plain.read("EMAIL.HTM"))

    document = Message(folder, "trabajos", "Documento·José·")
    expect("document entries", ["EMAIL.TXT", "EMAIL.HTM", "LOGO A.GIF", "Factura nº 1.pdf"], document.names())
    expect("document's line", "Attachments=Factura nº 1.pdf;LOGO A.GIF;", document.request("secreto")[1])
    pdf = os.path.join(folder, "del archivo.pdf")
    with open(pdf, "wb") as file:
        file.write(document.read("Factura nº 1.pdf"))
    text = subprocess.run(["pdftotext", pdf, "-"], capture_output=True, text=True)
    expect("text of the PDF", "Muñoz", text.stdout.strip())

    relative = Message(folder, "trabajos", "Relativo·José·")
    expect("entries from a folder of the current one", ["EMAIL.TXT", "EMAIL.HTM", "LOGO A.GIF", "aviso.pdf"],
           relative.names())

    packed = Message(folder, "trabajos", "Archivo·José·")
    expect("archive's entries", ["EMAIL.TXT", "EMAIL.HTM", "LOGO A.GIF", "factura.zip"], packed.names())


def windows_path(folder):
    return "Z:" + os.path.realpath(folder).replace("/", "\\")


def main():
    folder = sys.argv[1]
    check_profile_message(folder)
    check_hostile_message(folder)
    check_print_jobs(folder)
    expect("archives", 6, len(glob.glob(os.path.join(folder, "*", "Bandeja de Salida", "*"))))
    for failure in failures:
        print("FAILED:", failure, file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
