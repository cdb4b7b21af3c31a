#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that includes point downwards only.

    check_layers.py ROOT

Each layer may include itself and the layers below it, and so may each library within platform/ and each room within viewer/;
what lies in a library's detail/ is its own. Prints one line per include that breaks this.
Exit status: 0 none does, 1 some do, 2 a layer, platform library or room is missing or has no place in the order.
"""

import pathlib
import re
import sys

# Top-level directory -> what its files must not include.
UPPER = r"viewer/"
LIBRARY = r"(manipulator|modules)/"
PLATFORM = r"(platform/|nb[A-Z]\w*/)"
FORBIDDEN = {
    "opensg": [UPPER, LIBRARY, PLATFORM, r"Q[A-Z]\w*", r"Qt\w+/", r"GL/(?!gl\.h)"],
    "platform": [UPPER, LIBRARY],
    "manipulator": [UPPER, r"modules/"],
    "modules": [UPPER],
    "viewer": [],
}
# Within platform/ and viewer/: each library, each room may include those before it.
PLATFORM_ORDER = ["nbUtils", "nbOpenSGExt", "nbOpenSGUtils", "nbOpenSGUberCamera", "nbOpenSGUberViewport", "nbOpenSGUberMaterial",
                  "nbOpenSGSceneplate", "nbOpenSGSelection", "nbNotification", "nbKernel", "nbKernelServices", "nbTransform",
                  "nbMaterialEditor", "nbInteraction", "nbSceneplateModule", "nbMagnifier", "nbOpenSGRenderAction",
                  "nbView"]
VIEWER_ORDER = ["texts", "commands", "loading", "reader", "stage", "replay", "plates", "match", "textures", "scenes", "gui", "manual"]
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')


def sources(directory):
    return sorted(p for p in directory.rglob("*") if p.suffix in (".h", ".cpp", ".inl"))


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1)


def library_fault(own, name):
    """What is wrong with a platform library's include of a platform header, or None."""
    library = name.split("/")[0]
    if library not in PLATFORM_ORDER:
        return f"there is no platform library {library}"
    if PLATFORM_ORDER.index(library) > PLATFORM_ORDER.index(own):
        return f"{own} lies below {library}"
    if library != own and name.startswith(library + "/detail/"):
        return f"{name} belongs to {library} alone"
    return None


def room_fault(path, name):
    """What is wrong with an include of a viewer header, or None."""
    own, other = path.parts[1], name.split("/")[1]
    if own in VIEWER_ORDER and VIEWER_ORDER.index(other) > VIEWER_ORDER.index(own):
        return f"{own} lies below {other}"
    return None


def faults(root):
    for layer, patterns in FORBIDDEN.items():
        for path in sources(root / layer):
            place = path.relative_to(root)
            for number, name in includes(path):
                if any(re.match(pattern, name) for pattern in patterns):
                    yield f"{place}:{number}: {layer}/ must not include {name}"
                fault = None
                if layer == "platform" and re.match(PLATFORM, name):
                    fault = library_fault(place.parts[1], name)
                elif layer == "viewer" and re.match(UPPER, name):
                    fault = room_fault(place, name)
                if fault is not None:
                    yield f"{place}:{number}: {fault}"


def main(arguments):
    root = pathlib.Path(arguments[0])
    missing = [layer for layer in FORBIDDEN if not sources(root / layer)]
    if missing:
        print(f"no sources in {', '.join(missing)} below {root}", file=sys.stderr)
        return 2
    for layer, order in (("platform", PLATFORM_ORDER), ("viewer", VIEWER_ORDER)):
        rooms = {path.name for path in (root / layer).iterdir() if path.is_dir() and sources(path)}
        unordered = sorted(rooms.symmetric_difference(order))
        if unordered:
            print(f"not both in {layer}/ and in its order: {', '.join(unordered)}", file=sys.stderr)
            return 2
    found = list(faults(root))
    print("\n".join(found) if found else "all includes point downwards")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
