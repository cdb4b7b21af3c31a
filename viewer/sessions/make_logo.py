#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes logo.png, the picture that the session plates.json adds: a lighthouse on a round badge.

    make_logo.py OUTPUT.png

Clear around the badge, with smooth edges. Always the same bytes.
"""

import struct
import sys
import zlib

SIZE = 192
SAMPLES = 4  # per pixel and direction
BADGE = (16, 66, 92)
RIM = (236, 242, 245)
BEAM = (255, 196, 64)
TOWER = (236, 242, 245)
STRIPE = (206, 60, 48)


def color_at(x, y):
    """Colour at a place, -1 .. 1 with y up, or None where it is clear."""
    radius = (x * x + y * y) ** 0.5
    if radius > 0.97:
        return None
    if radius > 0.88:
        return RIM
    width = 0.2 - 0.1 * (y + 0.6)
    if -0.6 <= y <= 0.3 and abs(x) <= width:
        return STRIPE if int((y + 0.6) / 0.18) % 2 else TOWER
    if 0.3 < y <= 0.36 and abs(x) <= 0.2:
        return TOWER
    if 0.36 < y <= 0.52 and abs(x) <= 0.09:
        return BEAM
    if 0.52 < y <= 0.66 and abs(x) <= 0.13 * (0.66 - y) / 0.14:
        return STRIPE
    if abs(y - 0.44) <= 0.08 + 0.22 * (abs(x) - 0.14) and abs(x) > 0.14 and radius < 0.82:
        return BEAM
    if y < -0.6 and abs(x) < 0.6 and radius < 0.82:
        return RIM if y > -0.66 else BADGE
    return BADGE


def pixel(column, row):
    sums = [0, 0, 0]
    hits = 0
    for i in range(SAMPLES * SAMPLES):
        x = 2 * (column + (i % SAMPLES + 0.5) / SAMPLES) / SIZE - 1
        y = 1 - 2 * (row + (i // SAMPLES + 0.5) / SAMPLES) / SIZE
        color = color_at(x, y)
        if color:
            hits += 1
            sums = [s + c for s, c in zip(sums, color)]
    return bytes([round(s / max(hits, 1)) for s in sums] + [round(255 * hits / SAMPLES**2)])


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def main(arguments):
    rows = b"".join(
        b"\0" + b"".join(pixel(column, row) for column in range(SIZE)) for row in range(SIZE)
    )
    header = struct.pack(">IIBBBBB", SIZE, SIZE, 8, 6, 0, 0, 0)
    with open(arguments[0], "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header))
        file.write(chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


if __name__ == "__main__":
    main(sys.argv[1:])
