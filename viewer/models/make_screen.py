#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes screen.obj and screen.mtl, the model of the session uv.json, into the folder that is given: make_screen.py ."""
import pathlib
import sys

# A folding screen: its corners from above, left to right. The texture coordinates go once over all leaves.
CORNERS = [(-2.1, 0.35), (-0.7, -0.35), (0.7, 0.35), (2.1, -0.35)]
LOW, HIGH = 0.12, 2.4
COLORS = {"Screen": (0.86, 0.84, 0.79), "Posts": (0.33, 0.24, 0.17), "Floor": (0.58, 0.57, 0.55)}
POST = 0.05


def write(folder):
    obj = ["mtllib screen.mtl", "o Screen", "usemtl Screen"]
    for index, (x, z) in enumerate(CORNERS):
        across = index / (len(CORNERS) - 1)
        obj += ["v %g %g %g" % (x, LOW, z), "v %g %g %g" % (x, HIGH, z)]
        obj += ["vt %.6g 0" % across, "vt %.6g 1" % across]
    for index in range(len(CORNERS) - 1):
        a = 2 * index + 1
        obj.append("f " + " ".join("%d/%d" % (corner, corner) for corner in (a, a + 2, a + 3, a + 1)))
    first = 2 * len(CORNERS) + 1
    obj += ["o Posts", "usemtl Posts"]
    for x, z in CORNERS:
        obj += ["v %g %g %g" % (x + i * POST, y, z + k * POST) for i in (-1, 1) for y in (0, HIGH + POST)
                for k in (-1, 1)]
        for side in ((5, 7, 8, 6), (1, 2, 4, 3), (3, 4, 8, 7), (1, 5, 6, 2), (2, 6, 8, 4), (1, 3, 7, 5)):
            obj.append("f " + " ".join(str(first - 1 + corner) for corner in side))
        first += 8
    obj += ["o Floor", "usemtl Floor"]
    obj += ["v %g 0 %g" % place for place in ((-3, 2), (3, 2), (3, -2), (-3, -2))]
    obj.append("f " + " ".join(str(corner) for corner in range(first, first + 4)))
    mtl = []
    for name, color in COLORS.items():
        mtl += ["newmtl " + name, "Kd %g %g %g" % color, "Ks 0.05 0.05 0.05", "Ns 10"]
    (folder / "screen.obj").write_text("\n".join(obj) + "\n")
    (folder / "screen.mtl").write_text("\n".join(mtl) + "\n")


if __name__ == "__main__":
    write(pathlib.Path(sys.argv[1]))
