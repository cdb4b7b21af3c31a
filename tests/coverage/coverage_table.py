#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints what the tests reach, by directory, and each file below the aims: coverage_table.py SUMMARY_JSON.

The summary is that of gcovr --json-summary. Exit status 1, with one line that says which, if a directory with aims misses one.
"""
import json
import sys
from collections import defaultdict

# Of all lines and branches below these directories, percent.
AIMED_DIRECTORIES = ("manipulator", "modules")
LINES_AIM = 95.0
BRANCHES_AIM = 85.0
ROW = "{:<58} {:>7} {:>7} {:>6}   {:>7} {:>7} {:>6}"


class Counts:
    """Lines and branches, those reached and all."""

    def __init__(self):
        self.lines = [0, 0]
        self.branches = [0, 0]

    def add(self, entry):
        for counts, kind in ((self.lines, "line"), (self.branches, "branch")):
            counts[0] += entry[kind + "_covered"]
            counts[1] += entry[kind + "_total"]

    def row(self, name):
        return ROW.format(name, *self.lines, percent_text(self.lines), *self.branches, percent_text(self.branches))

    def missed(self):
        aims = (("lines", self.lines, LINES_AIM), ("branches", self.branches, BRANCHES_AIM))
        return [f"{kind} {percent_text(counts)} of {aim:.0f} percent"
                for kind, counts, aim in aims if percent(counts) < aim]


def percent(counts):
    return 100.0 * counts[0] / counts[1] if counts[1] else 100.0


def percent_text(counts):
    # Cut, not rounded: what is just below an aim must not look as if it were reached.
    return f"{int(percent(counts) * 10) / 10:.1f}"


def directory_of(name):
    parts = name.split("/")
    if parts[0] in ("manipulator", "opensg") or len(parts) < 3:
        return parts[0]
    return "/".join(parts[:2])


def main(path):
    with open(path, encoding="utf-8") as file:
        entries = json.load(file)["files"]
    directories, aimed, below = defaultdict(Counts), defaultdict(Counts), []
    for entry in entries:
        name = entry["filename"]
        directories[directory_of(name)].add(entry)
        if name.split("/")[0] in AIMED_DIRECTORIES:
            aimed[name.split("/")[0]].add(entry)
            counts = Counts()
            counts.add(entry)
            if counts.missed():
                below.append(counts.row(name))
    print(ROW.format("directory", "lines", "of", "%", "branch", "of", "%"))
    for name in sorted(directories):
        print(directories[name].row(name))
    if below:
        print("files below the aims")
        print("\n".join(below))
    missed = [f"{name}: {text}" for name in AIMED_DIRECTORIES for text in aimed[name].missed()]
    if missed:
        print("coverage: missed: " + "; ".join(missed), file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
