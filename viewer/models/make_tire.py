#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes tire.obj and tire.mtl, the model of the session tire.json, into the folder that is given: make_tire.py ."""
import math
import pathlib
import sys

STEPS = 72  # around the axle
AXLE_HEIGHT = 1.0

# Parts: name, colour, shine, profile of (x along the axle, radius) seen from the axle's right, closed by the turn.
PARTS = [
    ("Tire", (0.16, 0.16, 0.17), 0.08, [(-0.3, 0.56), (-0.4, 0.62), (-0.44, 0.74), (-0.42, 0.87), (-0.38, 0.94),
                                         (-0.31, 0.98), (-0.18, 0.997), (0.0, 1.0), (0.18, 0.997), (0.31, 0.98),
                                         (0.38, 0.94), (0.42, 0.87), (0.44, 0.74), (0.4, 0.62), (0.3, 0.56)]),
    ("Rim", (0.74, 0.75, 0.77), 0.4, [(-0.3, 0.56), (-0.27, 0.57), (-0.24, 0.52), (-0.12, 0.44), (-0.06, 0.22),
                                       (-0.12, 0.1), (-0.12, 0.0)]),
    ("Disc", (0.74, 0.75, 0.77), 0.4, [(0.12, 0.0), (0.12, 0.1), (0.06, 0.22), (0.12, 0.44), (0.24, 0.52),
                                        (0.27, 0.57), (0.3, 0.56)]),
]
FLOOR = ("Floor", (0.58, 0.57, 0.55), 0.05)


def slope(profile, index):
    """Normal of a smooth profile at one of its corners."""
    x0, r0 = profile[max(index - 1, 0)]
    x1, r1 = profile[min(index + 1, len(profile) - 1)]
    length = math.hypot(x1 - x0, r1 - r0)
    return (r0 - r1) / length, (x1 - x0) / length


def write(folder):
    obj, mtl, first = ["mtllib tire.mtl"], [], 1
    for name, color, shine, profile in PARTS:
        mtl += ["newmtl " + name, "Kd %g %g %g" % color, "Ks %g %g %g" % (3 * (shine,)), "Ns 24"]
        obj += ["o " + name, "usemtl " + name]
        for index, (x, radius) in enumerate(profile):
            along, outwards = slope(profile, index)
            for step in range(STEPS):
                y, z = math.cos(2 * math.pi * step / STEPS), math.sin(2 * math.pi * step / STEPS)
                obj.append("v %.5g %.5g %.5g" % (x, AXLE_HEIGHT + radius * y, radius * z))
                obj.append("vn %.4g %.4g %.4g" % (along, outwards * y, outwards * z))
        for index in range(len(profile) - 1):
            for step in range(STEPS):
                a, b = first + index * STEPS + step, first + index * STEPS + (step + 1) % STEPS
                corners = (a, a + STEPS, b + STEPS, b)
                obj.append("f " + " ".join("%d//%d" % (corner, corner) for corner in corners))
        first += len(profile) * STEPS
    name, color, shine = FLOOR
    mtl += ["newmtl " + name, "Kd %g %g %g" % color, "Ks %g %g %g" % (3 * (shine,)), "Ns 8"]
    obj += ["o " + name, "usemtl " + name]
    obj += ["v %g 0 %g" % place for place in ((-3, 3), (3, 3), (3, -3), (-3, -3))] + 4 * ["vn 0 1 0"]
    obj.append("f " + " ".join("%d//%d" % (corner, corner) for corner in range(first, first + 4)))
    (folder / "tire.obj").write_text("\n".join(obj) + "\n")
    (folder / "tire.mtl").write_text("\n".join(mtl) + "\n")


if __name__ == "__main__":
    write(pathlib.Path(sys.argv[1]))
