#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that includes point downwards only.

    check_layers.py ROOT

Each layer may include itself and the layers below it. Prints one line per include that points upwards.
Exit status: 0 none does, 1 some do, 2 a layer is missing.
"""

import pathlib
import re
import sys

# Top-level directory -> what its files must not include.
UPPER = r"viewer/"
LIBRARY = r"(manipulator|modules)/"
PLATFORM = r"(platform/|nb[A-Z]\w*/)"
FORBIDDEN = {
    "opensg": [UPPER, LIBRARY, PLATFORM, r"Q[A-Z]\w*", r"Qt\w+/", r"GL/"],
    "platform": [UPPER, LIBRARY],
    "manipulator": [UPPER, r"modules/"],
    "modules": [UPPER],
}
# Within platform/: each library may include those before it.
PLATFORM_ORDER = ["nbUtils", "nbOpenSGExt", "nbOpenSGUtils", "nbOpenSGUberCamera", "nbOpenSGUberViewport", "nbOpenSGUberMaterial",
                  "nbOpenSGSceneplate", "nbKernel"]
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')


def sources(directory):
    return sorted(p for p in directory.rglob("*") if p.suffix in (".h", ".cpp", ".inl"))


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1)


def platform_rank(name):
    library = name.split("/")[0]
    return PLATFORM_ORDER.index(library) if library in PLATFORM_ORDER else len(PLATFORM_ORDER)


def faults(root):
    for layer, patterns in FORBIDDEN.items():
        for path in sources(root / layer):
            place = path.relative_to(root)
            for number, name in includes(path):
                if any(re.match(pattern, name) for pattern in patterns):
                    yield f"{place}:{number}: {layer}/ must not include {name}"
                elif layer == "platform" and re.match(PLATFORM, name):
                    if platform_rank(name) > platform_rank(place.parts[1]):
                        yield f"{place}:{number}: {place.parts[1]} lies below {name.split('/')[0]}"


def main(arguments):
    root = pathlib.Path(arguments[0])
    missing = [layer for layer in FORBIDDEN if not sources(root / layer)]
    if missing:
        print(f"no sources in {', '.join(missing)} below {root}", file=sys.stderr)
        return 2
    found = list(faults(root))
    print("\n".join(found) if found else "all includes point downwards")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
