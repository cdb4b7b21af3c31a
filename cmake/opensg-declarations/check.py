#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compiles what a build with NBMANIPULATOR_OPENSG=system compiles against the declarations beside this file, without making code.

They hold what a real OpenSG 1.8 has, so a use of anything else is an error here: check.py BUILD_FOLDER [SOURCE ...]
"""
import collections
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
LIBRARIES = ("platform/", "manipulator/", "modules/", "viewer/")


def product_commands(build):
    """Commands of the sources that name the scene graph, by source."""
    result = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["directory"], entry["file"]).resolve()
        name = os.path.relpath(source, ROOT)
        if name.startswith(LIBRARIES) and re.search(r"\bosg::|<OpenSG/", source.read_text(encoding="utf-8")):
            result[name] = shlex.split(entry["command"])
    return result


def common_flags(commands):
    """The compiler and the flags of all commands together, with the declarations in place of the bundled scene graph."""
    flags = {}
    for words in commands:
        steps = iter(words)
        for word in steps:
            if word == "-isystem":
                flags[(word, next(steps))] = True
            elif word.startswith(("-I", "-D", "-std", "-f")) and not word.endswith("/opensg/include"):
                flags[(word,)] = True
    compiler = next(word for word in next(iter(commands)) if re.search(r"(\+\+|clang)[-.\d]*$", word))
    return [compiler] + [word for flag in flags for word in flag] + [
        "-fPIC", "-DNBMANIPULATOR_SYSTEM_OPENSG", f"-isystem{HERE}", "-fsyntax-only", "-w", "-fno-diagnostics-color"]


def main():
    build = pathlib.Path(sys.argv[1])
    commands = product_commands(build)
    flags = common_flags(commands.values())
    sources = sys.argv[2:] or sorted(commands) + ["opensg/glue/ChangeCountSystem.cpp", "opensg/glue/ViewRay.cpp"]

    with tempfile.TemporaryDirectory() as folder:
        # What others wrote and many include is read once. OpenSG's headers are not, so that a forgotten one shows.
        foreign = collections.Counter(line for name in commands for line in re.findall(
            r"^#include <Q\w+>$|^#include <[a-z_]+>$", (ROOT / name).read_text(encoding="utf-8"), re.M))
        header = pathlib.Path(folder, "foreign.h")
        header.write_text("\n".join(sorted(line for line, count in foreign.items() if count >= 4)) + "\n")
        making = [flag for flag in flags if flag != "-fsyntax-only"]
        subprocess.run(making + ["-x", "c++-header", str(header), "-o", f"{header}.gch"], check=True)

        def errors(source):
            found = subprocess.run(flags + ["-include", str(header), source], cwd=ROOT, capture_output=True, text=True)
            return found.stderr if found.returncode != 0 else ""

        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            failures = 0
            for text in pool.map(errors, sources):
                failures += bool(text)
                print(text, end="", flush=True)
    if failures:
        print(f"{failures} of {len(sources)} sources use what a real OpenSG 1.8 does not have (or what is not declared in {HERE}).")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
