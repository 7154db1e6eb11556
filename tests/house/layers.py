#!/usr/bin/env python3
"""layers.py SRC: checks that what the sources include follows the layers, without cycles between files.

Prints file:line of every include that does not; exits 1 when there is one.
"""
import os
import re
import sys

# folder: what it may include besides itself. A folder's win32/ counts as the folder.
ALLOWED = {
    "runtime": [],
    "platform": ["runtime"],
    "print/text": ["runtime", "platform"],
    "data": ["runtime", "platform", "print/text"],
    "model": ["runtime", "platform", "print/text"],
    "print": ["runtime", "platform", "print/text", "data", "model"],
    "mail": ["runtime", "platform", "print/text", "print", "data"],
    "designer": ["runtime", "platform", "print/text", "print", "model", "data"],
    "recordfile": ["runtime", "platform"],
    "automation": ["runtime"],
    "qmfile2": ["runtime", "platform", "recordfile", "automation"],
}
ALLOWED["api"] = list(ALLOWED)

# Where Windows may be seen at all.
WINDOWS_PLACES = re.compile(r"(^|/)(win32|automation|api|qmfile2)/")
WINDOWS_HEADERS = re.compile(
    r"(windows|windowsx|wtypes|win(base|def|error|gdi|nls|reg|spool|user|ver)|ole2?|ole(auto|ctl|idl)|objbase|objidl|"
    r"oaidl|ocidl|unknwn|comdef|comutil|comip|comm(ctrl|dlg)|uxtheme|shell(api|scalingapi)|shl(obj|wapi|guid)|"
    r"propidl|dispex|mapi|tlhelp32|psapi|process|tchar|guiddef|initguid|versionhelpers)\.h|wrl/.*",
    re.IGNORECASE)
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^">]+)[">]')


def folder_of(path):
    parts = path.split("/")[:-1]
    for length in range(len(parts), 0, -1):
        name = "/".join(parts[:length])
        if name in ALLOWED:
            return name
    return None


def includes(src, path):
    with open(os.path.join(src, path), encoding="utf-8", errors="replace") as file:
        for number, line in enumerate(file, 1):
            match = INCLUDE.match(line)
            if match:
                yield number, match.group(1) == "<", match.group(2)


def objection(path, system, name):
    """What is wrong with that include, or None."""
    at_windows = WINDOWS_PLACES.search(path)
    if system:
        if WINDOWS_HEADERS.fullmatch(name) and not at_windows:
            return f"<{name}> belongs in */win32/, automation/, api/ and qmfile2/ only; use an interface of platform/"
        return None
    own, other = folder_of(path), folder_of(name)
    if other is None:
        return f'"{name}" is not in a folder of src/; write the path from src/'
    if WINDOWS_PLACES.search(name) and not at_windows:
        return f'portable code must not include "{name}"; use an interface of platform/'
    if other != own and other not in ALLOWED[own]:
        return f"{own} may include {', '.join(ALLOWED[own]) or 'no other folder'}; not {other}"
    return None


def cycle(graph):
    """A list of files that include one another in a ring, or None."""
    done, trail = set(), []

    def visit(node):
        if node in trail:
            return trail[trail.index(node):] + [node]
        if node in done:
            return None
        trail.append(node)
        for following in graph.get(node, []):
            ring = visit(following)
            if ring:
                return ring
        trail.pop()
        done.add(node)
        return None

    for node in sorted(graph):
        ring = visit(node)
        if ring:
            return ring
    return None


def main():
    src = sys.argv[1]
    wrong, graph = 0, {}
    for base, _, names in sorted(os.walk(src)):
        for name in sorted(names):
            if not name.endswith((".h", ".cpp", ".rc")):
                continue
            path = os.path.relpath(os.path.join(base, name), src)
            if folder_of(path) is None:
                print(f"src/{path}: this folder has no row in the table of layers")
                wrong += 1
                continue
            for number, system, included in includes(src, path):
                problem = None if path.endswith(".rc") else objection(path, system, included)
                if problem:
                    print(f"src/{path}:{number}: {problem}")
                    wrong += 1
                if not system:
                    graph.setdefault(path, []).append(included)
    ring = cycle(graph)
    if ring:
        print("files include one another: " + " -> ".join(ring))
        wrong += 1
    if wrong:
        print("To mend: move what is shared to a lower folder. The table of layers is at the top of "
              "tests/house/layers.py; change it only together with docs/architecture.md.")
    return 1 if wrong else 0


sys.exit(main())
