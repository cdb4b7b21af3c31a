#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes label.png, the picture that is shipped with the viewer for its objects: make_label.py label.png"""
import math
import struct
import sys
import zlib

WIDTH, HEIGHT = 480, 360
PAPER, INK, ACCENT = (245, 236, 214), (32, 66, 74), (198, 92, 46)
CORNER, STROKE = 46.0, 9.0

# Strokes of the letters in a box of 1 x 1, y down.
LETTERS = {
    "V": [[(0.0, 0.0), (0.5, 1.0), (1.0, 0.0)]],
    "A": [[(0.0, 1.0), (0.5, 0.0), (1.0, 1.0)], [(0.2, 0.62), (0.8, 0.62)]],
    "S": [[(0.5 + 0.5 * math.cos(a), 0.26 - 0.26 * math.sin(a)) for a in
           [math.radians(d) for d in range(30, 271, 20)]] +
          [(0.5 + 0.5 * math.cos(a), 0.76 - 0.24 * math.sin(a)) for a in
           [math.radians(d) for d in range(70, -151, -20)]]],
    "E": [[(1.0, 0.0), (0.0, 0.0), (0.0, 1.0), (1.0, 1.0)], [(0.0, 0.5), (0.8, 0.5)]],
}


def segment_distance(x, y, a, b):
    """Distance of a point from a line between two others."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    along = max(0.0, min(1.0, ((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - a[0] - along * dx, y - a[1] - along * dy)


def word(text, left, top, width, height, gap):
    """Segments of a word."""
    segments = []
    for letter in text:
        for stroke in LETTERS[letter]:
            points = [(left + px * width, top + py * height) for px, py in stroke]
            segments += list(zip(points, points[1:]))
        left += width + gap
    return segments


def wave(y, swing):
    """Segments of a wave across the label."""
    points = [(90 + 6 * i, y + swing * math.sin(i * 6 * math.pi / 75)) for i in range(51)]
    return list(zip(points, points[1:]))


def frame_distance(x, y, margin):
    """Signed distance from a rounded rectangle inside the picture, negative inside."""
    corner = CORNER - margin
    dx = abs(x - WIDTH / 2) - (WIDTH / 2 - margin - corner)
    dy = abs(y - HEIGHT / 2) - (HEIGHT / 2 - margin - corner)
    return math.hypot(max(dx, 0.0), max(dy, 0.0)) + min(max(dx, dy), 0.0) - corner


def coverage(distance):
    return max(0.0, min(1.0, 0.5 - distance))


def mixed(base, top, share):
    return tuple(b + (t - b) * share for b, t in zip(base, top))


def pixel(x, y, letters, waves):
    color = mixed(PAPER, INK, coverage(abs(frame_distance(x, y, 20)) - 4))
    ink = min(segment_distance(x, y, a, b) for a, b in letters)
    color = mixed(color, INK, coverage(ink - STROKE))
    accent = min(segment_distance(x, y, a, b) for a, b in waves)
    color = mixed(color, ACCENT, coverage(accent - 6))
    alpha = coverage(frame_distance(x, y, 1))
    return bytes(round(c) for c in color) + bytes([round(255 * alpha)])


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def main(arguments):
    letters = word("VASE", 92, 80, 56, 110, 24)
    waves = wave(252, 12) + wave(288, 12)
    rows = b"".join(b"\0" + b"".join(pixel(x + 0.5, y + 0.5, letters, waves) for x in range(WIDTH))
                    for y in range(HEIGHT))
    with open(arguments[0], "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 6, 0, 0, 0)) +
                   chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


if __name__ == "__main__":
    main(sys.argv[1:])
