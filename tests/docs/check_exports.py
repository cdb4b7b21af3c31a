#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that libraries export what they are meant to, and nothing else.

    check_exports.py ROOT LIBRARY PLATFORM

LIBRARY exports the classes and namespaces listed in exports.txt beside this script. PLATFORM exports, beside the scene graph,
only what one of its installed headers marks with NB_PLATFORM_API. Weak symbols of templates and types of others, which compilers
emit wherever they are used, do not count. Exit status: 0 so it is, 1 it is not.
"""

import pathlib
import re
import sys

import pages

STRONG = set("TDBRG")
# Of the compiler's runtime that counts what was reached (./nb coverage).
FOREIGN = {"mangle_path"}


def exported(library):
    """Outermost classes, namespaces and functions that a library exports."""
    names = set()
    for kind, symbol in pages.symbols(library, "--defined-only"):
        scope, name = pages.scope_and_name(symbol)
        # Names that begin with an underscore are those of linkers and sanitizers.
        if symbol.startswith("_") or symbol in FOREIGN or (kind not in STRONG and not scope.startswith("nb")):
            continue
        names.add(outermost(scope or name))
    return names


def outermost(scope):
    """The class or namespace below our namespaces that a scope lies in: what is nested goes with it."""
    parts = scope.split("::")
    for count, part in enumerate(parts, 1):
        if part not in ("nbec", "manipulator", "modules", "textureplacement", "texture", "interaction", "notification", "nbrender", "osg"):
            return "::".join(parts[:count])
    return scope


def listed(path):
    return {line.strip() for line in path.read_text(encoding="utf-8").splitlines() if line.strip() and not line.startswith("#")}


def marked(root):
    """Classes, namespaces and functions of the platform's installed headers that mark something with NB_PLATFORM_API."""
    names = set()
    for path in (root / "platform").rglob("*.h"):
        text = path.read_text(encoding="utf-8")
        if "detail" not in path.parts and "NB_PLATFORM_API" in text:
            names.update(re.findall(r"^(?:class|struct|namespace)\s+(?:NB_PLATFORM_API\s+)?(\w+)", text, flags=re.MULTILINE))
            names.update(re.findall(r"NB_PLATFORM_API[^;{(]*?(\w+)\(", text))
    return names


def main(arguments):
    root, library, platform = (pathlib.Path(argument) for argument in arguments)
    wanted = listed(pathlib.Path(__file__).with_name("exports.txt"))
    found = exported(library)
    faults = [f"{library.name} exports {name}, which is not listed" for name in sorted(found - wanted)]
    faults += [f"{library.name} does not export {name}" for name in sorted(wanted - found)]
    known = marked(root)
    faults += [f"{platform.name} exports {name}, which no installed header marks" for name in sorted(exported(platform))
               if not name.startswith("osg::") and name.split("::")[-1] not in known]
    print("\n".join(faults) if faults else f"{len(found)} classes and namespaces are exported, as listed")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
