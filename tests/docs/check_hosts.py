#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that docs/hosts.md names everything that a host must provide, and nothing else.

    check_hosts.py ROOT LIBRARY

Every class of the platform that LIBRARY imports has a section of its own with the operations imported, every header of the
platform that its sources include has a section or is named, every class of the scene graph is named; and every section is
about something that the library knows. Exit status: 0 so it is, 1 it is not.
"""

import pathlib
import re
import sys

import pages

PLATFORM_SCOPE = re.compile(r"^(?:nbec::(?:interaction|notification)::)?((?:nb|[A-Z])\w*)$")
INCLUDE = re.compile(r"#include <(nb\w+)/(\w+)\.h>")


def imported(library):
    """(class of the platform, operation) and classes of the scene graph that a library imports."""
    operations, scene_graph = set(), set()
    for _, symbol in pages.symbols(library, "--undefined-only"):
        scope, name = pages.scope_and_name(symbol)
        if scope.startswith("osg::") and "detail" not in scope:
            scene_graph.add(scope.split("::")[1])
        match = PLATFORM_SCOPE.match(scope)
        if match and (scope.startswith("nbec::") or scope.startswith("nb")):
            operations.add((match.group(1), name))
    return operations, scene_graph


def faults(root, library):
    page = root / "docs" / "hosts.md"
    text = page.read_text(encoding="utf-8")
    sections = pages.sections(page)
    operations, scene_graph = imported(library)
    if not operations or not scene_graph:
        yield f"{library} imports nothing of a host"
    for owner, name in sorted(operations):
        if owner not in sections:
            yield f"no section about {owner}"
        elif name and name != "staticMetaObject" and name.lstrip("~") != owner and not name.startswith("operator"):
            if not re.search(rf"\b{name}\b", sections[owner]):
                yield f"the section about {owner} does not name {name}"
    for name in sorted(scene_graph):
        if not re.search(rf"\b{name}\b", text):
            yield f"osg::{name} is not named"
    sources = "\n".join(content for _, content in pages.library_sources(root))
    for folder, header in sorted(set(INCLUDE.findall(sources))):
        if header not in sections and f"`{header}`" not in text:
            yield f"{folder}/{header}.h is not named"
    known = sources + "\n".join(symbol for _, symbol in pages.symbols(library, "--undefined-only"))
    for name in sections:
        if not re.search(rf"\b{name}\b", known):
            yield f"the library does not know {name}, which has a section"


def main(arguments):
    found = sorted(set(faults(pathlib.Path(arguments[0]), pathlib.Path(arguments[1]))))
    print("\n".join(found) if found else "docs/hosts.md names what the library imports")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
