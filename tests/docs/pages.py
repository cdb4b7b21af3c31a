# SPDX-License-Identifier: MIT
"""What the checks of the manual share: reading pages, sources and symbol tables."""

import re
import subprocess

LIBRARY_FOLDERS = ("manipulator", "modules")
SPECIAL = re.compile(r"^(?:non-virtual thunk to|virtual thunk to|typeinfo for|typeinfo name for|vtable for|guard variable for) ")


def library_sources(root):
    """The sources of the library, comments taken out: path and text."""
    for folder in LIBRARY_FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path, re.sub(r"//[^\n]*", "", path.read_text(encoding="utf-8"))


def sections(page, heading="### "):
    """Text of each section by the name in backticks in its heading."""
    text = page.read_text(encoding="utf-8")
    found = {}
    for part in re.split(rf"^{heading}", text, flags=re.MULTILINE)[1:]:
        title, _, body = part.partition("\n")
        body = re.split(r"^#", body, flags=re.MULTILINE)[0]
        for name in re.findall(r"`([^`]+)`", title):
            found[name] = body
    return found


def symbols(library, kind):
    """Demangled dynamic symbols with their types. @param kind  "--defined-only" or "--undefined-only" """
    output = subprocess.run(["nm", "-DC", kind, str(library)], capture_output=True, text=True, check=True).stdout
    for line in output.splitlines():
        match = re.match(r"^[0-9a-f ]{16} (\S) (.*)$", line)
        if match:
            yield match.group(1), re.sub(r"\[abi:\w+\]", "", match.group(2))


def scope_and_name(symbol):
    """("nbec::interaction::Picker", "pick") of a function or variable; ("Type", "") of what describes a type."""
    described = SPECIAL.sub("", symbol)
    if described != symbol and not symbol.startswith(("non-virtual thunk", "virtual thunk", "guard variable")):
        return described, ""
    # Instances of templates begin with the type of their result.
    head = re.split(r"[(<]", described, maxsplit=1)[0].split(" ")[-1]
    scope, _, name = head.rpartition("::")
    return scope, name
