#!/usr/bin/env python3
"""encoding.py: sources are UTF-8 without a mark, with plain line ends; scripts for the script host, which
reads the 8-bit code page, are ASCII or Windows-1252. Run from the project's root."""
import re
import subprocess
import sys

UTF8 = ["cpp", "h", "rc", "def", "cmake", "sh", "py", "md", "json", "idl"]
CODE_PAGE = ["js", "vbs"]


def sources(extensions):
    listing = subprocess.run(["scripts/sources.sh", *extensions], capture_output=True, check=True)
    return listing.stdout.decode().splitlines()


def objections(path, data):
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError as error:
        line = data[:error.start].count(b"\n") + 1
        yield line, "is not UTF-8", f"iconv -f WINDOWS-1252 -t UTF-8 -o {path}.new {path} && mv {path}.new {path}"
        return
    if text.startswith("\ufeff"):
        yield 1, "starts with a byte order mark", f"sed -i '1s/^\\xEF\\xBB\\xBF//' {path}"
    if "\r" in text:
        line = text[:text.index("\r")].count("\n") + 1
        yield line, "has a carriage return", f"sed -i 's/\\r$//' {path}"
    match = re.search(r"[ \t]+$", text, re.MULTILINE)
    if match and not path.endswith(".md"):
        yield text[:match.start()].count("\n") + 1, "ends in blanks", f"sed -i 's/[ \\t]*$//' {path}"
    if text and not text.endswith("\n"):
        yield text.count("\n") + 1, "has no line end", f"echo >>{path}"


def code_page_objections(path, data):
    if data.isascii():
        return
    try:
        data.decode("utf-8")
    except UnicodeDecodeError:
        return
    line = next(i for i, text in enumerate(data.split(b"\n"), 1) if not text.isascii())
    yield line, "is UTF-8", f"iconv -f UTF-8 -t WINDOWS-1252 -o {path}.new {path} && mv {path}.new {path}"


def main():
    wrong = 0
    for extensions, check in ((UTF8, objections), (CODE_PAGE, code_page_objections)):
        for path in sources(extensions):
            with open(path, "rb") as file:
                data = file.read()
            for line, problem, mend in check(path, data):
                print(f"{path}:{line}: {problem}\n  To mend: {mend}")
                wrong += 1
    return 1 if wrong else 0


sys.exit(main())
