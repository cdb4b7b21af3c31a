#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes boxes.obj and boxes.mtl, the model of the session match.json, into the folder that is given: make_boxes.py ."""
import pathlib
import sys

# Name, colour, lower and upper corner: a crate on a slab, with a lid that stands over and a door.
BOXES = [
    ("Slab", (0.55, 0.57, 0.60), (-2.2, -0.2, -1.8), (2.2, 0.0, 1.8)),
    ("Crate", (0.78, 0.60, 0.38), (-1.2, 0.0, -0.8), (1.2, 1.4, 0.8)),
    ("Lid", (0.45, 0.33, 0.24), (-1.3, 1.4, -0.9), (1.3, 1.55, 0.9)),
    ("Door", (0.30, 0.42, 0.50), (-0.4, 0.0, 0.8), (0.4, 1.0, 0.84)),
]
NORMALS = [(1, 0, 0), (-1, 0, 0), (0, 1, 0), (0, -1, 0), (0, 0, 1), (0, 0, -1)]


def faces():
    """Corners (1 .. 8, counted by x, then y, then z) of each side, counter-clockwise seen from outside."""
    return [(5, 7, 8, 6), (1, 2, 4, 3), (3, 4, 8, 7), (1, 5, 6, 2), (2, 6, 8, 4), (1, 3, 7, 5)]


def write(folder):
    obj = ["mtllib boxes.mtl"] + ["vn %d %d %d" % normal for normal in NORMALS]
    mtl = []
    for index, (name, color, low, high) in enumerate(BOXES):
        mtl += ["newmtl " + name, "Kd %g %g %g" % color, "Ks 0.05 0.05 0.05", "Ns 10"]
        obj += ["o " + name, "usemtl " + name]
        obj += ["v %g %g %g" % (x, y, z) for x in (low[0], high[0]) for y in (low[1], high[1]) for z in (low[2], high[2])]
        for normal, corners in enumerate(faces(), 1):
            obj.append("f " + " ".join("%d//%d" % (8 * index + corner, normal) for corner in corners))
    (folder / "boxes.obj").write_text("\n".join(obj) + "\n")
    (folder / "boxes.mtl").write_text("\n".join(mtl) + "\n")


if __name__ == "__main__":
    write(pathlib.Path(sys.argv[1]))
