#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints one table of what the benchmarks measured, beside aims and the plain ways to the same ends.

Of repeated runs it shows the least and the median. Aims and ratios go by the least: what else a
machine does only adds.

usage: summary.py AIMS RESULT.json...   RESULT: what --benchmark_out wrote
"""

import json
import re
import statistics
import sys

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


class Figure:
    """What one benchmark measured: nanoseconds of each run, for one of its items too, and bytes."""

    def __init__(self):
        self.runs = []
        self.each = []
        self.bytes = None

    def add(self, run):
        wall = "/real_time" in run["run_name"] or "/manual_time" in run["run_name"]
        self.runs.append(run["real_time" if wall else "cpu_time"] * NANOSECONDS[run["time_unit"]])
        if "items_per_second" in run:
            self.each.append(1e9 / run["items_per_second"])
        self.bytes = run.get("bytes_each")

    def of_kind(self, kind, choose=min):
        """The value that an aim of a kind is for."""
        if self.bytes is not None:
            return self.bytes
        return choose(self.each if kind == "each" and self.each else self.runs)


def read_figures(paths):
    """Figures by benchmark."""
    figures = {}
    for path in paths:
        with open(path, encoding="utf-8") as file:
            runs = json.load(file)["benchmarks"]
        for run in runs:
            name = re.sub(r"/(iterations|repeats|min_time):[^/]*", "", run["run_name"])
            if run.get("error_occurred"):
                sys.exit(f"{name}: {run['error_message']}")
            if run["run_type"] == "iteration":
                figures.setdefault(name, Figure()).add(run)
    return figures


def read_aims(path):
    """Rows of the table: name, aim as (value, kind) or None, plain way, aim for the ratio."""
    rows = []
    with open(path, encoding="utf-8") as file:
        for line in file:
            line = line.strip()
            if not line or line.startswith("#"):
                continue
            name, aim, plain, ratio = (field.strip() for field in (line + "|||").split("|")[:4])
            rows.append((name, parse_aim(aim), plain, float(ratio) if ratio else None))
    return rows


def parse_aim(text):
    if not text:
        return None
    value, unit, *each = text.split()
    if unit == "bytes":
        return float(value), "bytes"
    return float(value) * NANOSECONDS[unit], "each" if each else "run"


def shown(value, is_bytes):
    if is_bytes:
        return f"{value / 1024:.1f} KiB"
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if value >= size:
            return f"{value / size:.3g} {unit}"
    return f"{value:.3g} ns"


def row_of(figures, name, aim, plain, ratio_aim):
    """One line of the table, as texts."""
    figure = figures[name]
    is_bytes = figure.bytes is not None
    kind = aim[1] if aim else ("each" if ratio_aim else "run")
    value = figure.of_kind(kind)
    beside = figures[plain].of_kind(kind) if plain in figures else None
    ratio = value / beside if beside else None
    missed = (aim is not None and value > aim[0]) or (
        ratio is not None and ratio_aim is not None and ratio > ratio_aim)
    return [name + (" (each)" if kind == "each" else ""),
            shown(value, is_bytes),
            "" if is_bytes else shown(figure.of_kind(kind, statistics.median), False),
            shown(aim[0], is_bytes) if aim else "",
            shown(beside, is_bytes) if beside else "",
            f"{ratio:.2f}" if ratio else "",
            f"{ratio_aim:.2f}" if ratio_aim else "",
            "MISSED" if missed else ("met" if aim or ratio_aim else "")]


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__.strip())
    figures = read_figures(sys.argv[2:])
    table = [["benchmark", "least", "median", "aim", "plainly", "ratio", "aim", ""]]
    table += [row_of(figures, *row) for row in read_aims(sys.argv[1]) if row[0] in figures]
    widths = [max(len(row[i]) for row in table) for i in range(len(table[0]))]
    for row in table:
        cells = [row[0].ljust(widths[0])]
        cells += [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
        print("  ".join(cells).rstrip())
    missed = sum(row[-1] == "MISSED" for row in table)
    print(f"{len(table) - 1} benchmarks, {missed} missed their aim")


if __name__ == "__main__":
    main()
