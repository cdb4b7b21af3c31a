#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes tiles.png and tread.png, pictures that can be repeated, into the folder that is given: make_patterns.py ."""
import pathlib
import struct
import sys
import zlib

TILES_SIDE = 256
CREAM, CLAY, BLUE, JOINT = (236, 226, 205), (196, 108, 70), (62, 98, 124), (120, 112, 104)

TREAD_WIDTH, TREAD_HEIGHT = 128, 256
RUBBER, GROOVE, STRIPE = (74, 74, 78), (26, 26, 28), (214, 158, 46)
SAMPLES = 3  # per pixel and direction, for smooth edges


def tile_color(x, y):
    """Two by two tiles with joints; a diamond on two of them. Coordinates 0 .. 1."""
    column, row = int(2 * x), int(2 * y)
    u, v = 2 * x - column, 2 * y - row
    if min(u, v, 1 - u, 1 - v) < 0.03:
        return JOINT
    if (column + row) % 2:
        return BLUE if abs(u - 0.5) + abs(v - 0.5) < 0.3 else CREAM
    return CLAY


def tread_color(x, y):
    """Chevrons around a tire: x goes around it, y across it."""
    across = abs(2 * y - 1)
    if across < 0.03:
        return STRIPE
    if 0.42 < across < 0.5 or across > 0.97:
        return GROOVE
    slanted = (x + 0.5 * across + (0.25 if across > 0.46 else 0.0)) % 0.5
    return GROOVE if slanted < 0.09 else RUBBER


def average(color, width, height, px, py):
    sums = [0, 0, 0]
    for i in range(SAMPLES * SAMPLES):
        x = (px + (i % SAMPLES + 0.5) / SAMPLES) / width
        y = (py + (i // SAMPLES + 0.5) / SAMPLES) / height
        sums = [total + part for total, part in zip(sums, color(x, y))]
    return bytes(round(total / SAMPLES ** 2) for total in sums)


def write(path, color, width, height):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    rows = b"".join(
        b"\0" + b"".join(average(color, width, height, x, y) for x in range(width)) for y in range(height))
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


if __name__ == "__main__":
    folder = pathlib.Path(sys.argv[1])
    write(folder / "tiles.png", tile_color, TILES_SIDE, TILES_SIDE)
    write(folder / "tread.png", tread_color, TREAD_WIDTH, TREAD_HEIGHT)
