#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that links and pictures of the pages lead somewhere, and that no page and no picture is forgotten.

    check_pages.py ROOT

Also that each picture of the manual belongs to a checkpoint of a session that takes a screenshot; that what new-manipulator.md
shows of the example is in it; that every handle of the library is on a page; and that the pages name nothing that no source has.
Exit status: 0 all is well, 1 it is not.
"""

import importlib.util
import json
import pathlib
import re
import sys

import pages

LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)")


def documents(root):
    return sorted([*root.glob("*.md"), *(root / "docs").rglob("*.md"), *(root / "benchmarks").glob("*.md")])


def targets(page):
    for link in LINK.findall(page.read_text(encoding="utf-8")):
        if not re.match(r"[a-z]+:", link):
            yield link, (page.parent / link).resolve()


def pictures(root):
    """For each picture the session and checkpoints of which the script makes it."""
    spec = importlib.util.spec_from_file_location("make_pictures", root / "docs" / "pictures" / "make_pictures.py")
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return {name: (row[0], module.checkpoints_of(name)) for name, row in module.PICTURES.items()}


def screenshots(session):
    steps = json.loads(session.read_text(encoding="utf-8"))["steps"]
    return {step["name"] for step in steps if step["type"] == "checkpoint" and step.get("screenshot")}


def missing_excerpts(root):
    """First lines of the pieces of C++ that pages show of an example and that are not in it."""
    for example, name in (("Lift*", "new-manipulator.md"), ("FirstWindow*", "first-window.md"),
                          ("TwoViews*", "several-views.md"), ("Lift*", "own-undo.md")):
        text = "\n".join(path.read_text(encoding="utf-8") for path in sorted((root / "examples").glob(example)))
        page = (root / "docs" / name).read_text(encoding="utf-8")
        for block in re.findall(r"^```cpp\n(.*?)^```$", page, flags=re.DOTALL | re.MULTILINE):
            if block not in text:
                yield block.splitlines()[0]


def unknown_names(root):
    """Page, and each identifier in it that no source knows."""
    known = set(re.findall(r"\w+", (root / "CMakeLists.txt").read_text(encoding="utf-8")))
    for folder in ("cmake", "manipulator", "modules", "platform", "opensg", "viewer", "examples", "docs"):
        for path in (root / folder).rglob("*"):
            if path.suffix in (".h", ".cmake", ".cpp", ".txt"):
                known.update(re.findall(r"\w+", path.read_text(encoding="utf-8")))
    for page in [root / "README.md", *sorted((root / "docs").glob("*.md"))]:
        for code in re.findall(r"`([A-Za-z_][\w:]*)(?:\([^`]*\))?`", page.read_text(encoding="utf-8")):
            for name in filter(None, code.split("::")):
                if name not in known:
                    yield page, name


def missing_handles(root):
    """Handles that no page names, and those that no source has."""
    handle = re.compile(r'"(\w+Shape|grid)"')
    in_sources = {name for _, text in pages.library_sources(root) for name in handle.findall(text)}
    on_pages = {name for page in (root / "docs").glob("*.md") for name in handle.findall(page.read_text(encoding="utf-8"))}
    example = {"liftShape", "putDownShape"}
    yield from sorted(in_sources ^ (on_pages - example))


def unlike_scene_keys(root):
    """Keys of scene files that only the page or only the reader and writer have."""
    source = (root / "viewer" / "scenes" / "SceneFields.h").read_text(encoding="utf-8")
    page = (root / "docs" / "scene-files.md").read_text(encoding="utf-8").partition("\n## Keys\n")[2].partition("\n#")[0]
    known = set(re.findall(r'\b(?:archive\.\w+|field)\("(\w+)"', source))
    listed = {key for row in re.findall(r"^\|[^|]*\|([^|]*)\|", page, flags=re.MULTILINE) for key in re.findall(r"`(\w+)`", row)}
    yield from sorted(known ^ listed)


def faults(root):
    yield from (f"the key {key} of scene files is not both on its page and in SceneFields.h" for key in unlike_scene_keys(root))
    yield from (f"{page.name}: no source knows {name}" for page, name in unknown_names(root))
    yield from (f"the handle {name} is not both on a page and in the library" for name in missing_handles(root))
    yield from (f"new-manipulator.md: the example does not have: {line} ..." for line in missing_excerpts(root))
    linked = set()
    for page in documents(root):
        for link, target in targets(page):
            linked.add(target)
            if not target.exists():
                yield f"{page.relative_to(root)}: {link} leads nowhere"
    index = {target for _, target in targets(root / "docs" / "README.md")}
    for page in sorted((root / "docs").glob("*.md")):
        if page.name != "README.md" and page not in index:
            yield f"docs/README.md does not lead to {page.name}"
    table = pictures(root)
    for name, (session, checkpoints) in table.items():
        for checkpoint in set(checkpoints) - screenshots(root / "viewer" / "sessions" / f"{session}.json"):
            yield f"picture {name}: the session {session} takes no screenshot at {checkpoint}"
    for picture in sorted((root / "docs" / "pictures").glob("*.png")):
        if picture.stem not in table or picture not in linked:
            yield f"{picture.relative_to(root)} is on no page, or the script does not make it"


def main(arguments):
    found = list(faults(pathlib.Path(arguments[0]).resolve()))
    print("\n".join(found) if found else "all links lead somewhere")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
