#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the pictures of the manual and of the README from the viewer's sessions.

    make_pictures.py VIEWER [NAME ...]

VIEWER is the program nbviewer, which needs a display. Each picture is a part of a screenshot that a checkpoint of a shipped
session takes, with at most 256 colours. NAMEs make only those. Exit status: 0 all were made, 1 a replay failed.
"""

import collections
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

HERE = pathlib.Path(__file__).resolve().parent
SESSIONS = HERE.parents[1] / "viewer" / "sessions"

# Picture: session, checkpoint (or several, side by side), left and upper edge of the part, width and height. That of the README is a whole
# screenshot.
README_PICTURE = "first-light"
PICTURES = {
    README_PICTURE: ("first-light", "3-x-arrow"),
    "transform": ("first-light", "3-x-arrow", 210, 140, 800, 500),
    "taken-back": ("beyond", ("1-dragged", "2-taken-back"), 240, 130, 400, 230),
    "typed": ("beyond", "3-typed", 20, 20, 620, 320),
    "fine-motion": ("beyond", ("1-dragged", "5-fine"), 240, 130, 400, 230),
    "snapping": ("beyond", "6-at-a-rim", 20, 0, 600, 300),
    "axes": ("beyond", ("7-world-axes", "8-own-axes", "8-axes-of-the-view"), 150, 120, 340, 240),
    "pivots": ("beyond", ("11-each-about-its-own", "12-about-the-middle"), 80, 120, 560, 270),
    "pixels": ("beyond", ("13-48-pixels", "14-96-pixels"), 150, 120, 340, 240),
    "palettes": ("beyond", ("9-classic", "9-soft", "9-contrast", "9-colourBlind"), 222, 145, 200, 200),
    "further-handles": ("handles", "3-trackball", 290, 180, 640, 420),
    "handle-looks": ("handles", "4-looks", 290, 180, 640, 420),
    "drag-overlay": ("handles", ("5-sector", "6-ghost"), 520, 230, 400, 320),
    "camera": ("pivot", "2-turned-about", 190, 160, 800, 500),
    "planar": ("label", "2-dropped", 180, 80, 800, 500),
    "grab": ("label", "8-grabbing", 180, 120, 800, 500),
    "preview": ("label", "2-before-the-click", 180, 170, 800, 500),
    "placement": ("label", "3-placing", 180, 170, 800, 500),
    "triplanar": ("triplanar", "2-from-three-sides", 170, 130, 800, 500),
    "uv": ("uv", "1-by-texture-coordinates", 200, 150, 800, 500),
    "tire": ("tire", "2-sixteen-times-around", 190, 100, 800, 500),
    "match": ("match", "2-magnifier", 100, 90, 800, 500),
    "plates": ("plates", "4-moved", 400, 20, 800, 500),
}
MOST_COLOURS = 256


# == PNG, as the viewer writes it (8 bits, not interlaced) and with a palette

def chunks(data):
    place = 8
    while place < len(data):
        length, kind = struct.unpack(">I4s", data[place:place + 8])
        yield kind, data[place + 8:place + 8 + length]
        place += length + 12


def unfiltered_rows(raw, stride, step):
    """Rows of bytes, with each row's filter taken back."""
    before = bytearray(stride)
    for start in range(0, len(raw), stride + 1):
        kind = raw[start]
        row = bytearray(raw[start + 1:start + 1 + stride])
        if kind == 1:
            for i in range(step, stride):
                row[i] = (row[i] + row[i - step]) & 255
        elif kind == 2:
            for i in range(stride):
                row[i] = (row[i] + before[i]) & 255
        elif kind == 3:
            for i in range(stride):
                left = row[i - step] if i >= step else 0
                row[i] = (row[i] + (left + before[i]) // 2) & 255
        elif kind == 4:
            for i in range(stride):
                left, corner = (row[i - step], before[i - step]) if i >= step else (0, 0)
                row[i] = (row[i] + paeth(left, before[i], corner)) & 255
        yield row
        before = row


def paeth(left, above, corner):
    guess = left + above - corner
    return min((left, above, corner), key=lambda value: abs(guess - value))


def read_part(path, left, top, width, height):
    """Pixels (r, g, b) of a part of a picture, row after row."""
    data = path.read_bytes()
    parts = list(chunks(data))
    full_width, full_height, _, kind = struct.unpack(">IIBB", dict(parts)[b"IHDR"][:10])
    if left + width > full_width or top + height > full_height:
        raise ValueError(f"{path.name} has {full_width} x {full_height} pixels, too few for the part")
    step = {2: 3, 6: 4}[kind]
    raw = zlib.decompress(b"".join(content for name, content in parts if name == b"IDAT"))
    pixels = []
    for number, row in enumerate(unfiltered_rows(raw, full_width * step, step)):
        if number >= top + height:
            break
        if number >= top:
            pixels += [tuple(row[i:i + 3]) for i in range(left * step, (left + width) * step, step)]
    return pixels


def write_with_palette(path, indices, palette, width, height):
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    rows = b"".join(b"\0" + bytes(indices[i:i + width]) for i in range(0, width * height, width))
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 3, 0, 0, 0)) +
                     chunk(b"PLTE", bytes(value for colour in palette for value in colour)) +
                     chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


# == Fewer colours

class Box:
    """Colours that are to become one, with how often each occurs."""

    def __init__(self, entries):
        self.entries = entries
        weight = sum(count for _, count in entries)
        self.mean = [sum(colour[i] * count for colour, count in entries) / weight for i in range(3)]
        errors = [sum((colour[i] - self.mean[i]) ** 2 * count for colour, count in entries) for i in range(3)]
        self.channel = errors.index(max(errors))
        self.error = sum(errors)

    def halves(self):
        at, limit = self.channel, self.mean[self.channel]
        return (Box([entry for entry in self.entries if entry[0][at] <= limit]),
                Box([entry for entry in self.entries if entry[0][at] > limit]))


def reduce_colours(pixels):
    """Palette, and the index of each pixel's colour in it: the box with the greatest error is cut in two, again and again."""
    boxes = [Box(list(collections.Counter(pixels).items()))]
    while len(boxes) < MOST_COLOURS:
        worst = max(boxes, key=lambda box: box.error)
        if worst.error == 0:
            break
        boxes.remove(worst)
        boxes += worst.halves()
    number_of = {colour: number for number, box in enumerate(boxes) for colour, _ in box.entries}
    return [tuple(round(value) for value in box.mean) for box in boxes], [number_of[pixel] for pixel in pixels]


# == Replays

def replay(viewer, session, folder):
    run = subprocess.run([viewer, "--session", SESSIONS / f"{session}.json", "--output", folder],
                         stdout=subprocess.DEVNULL, check=False)
    return run.returncode == 0


def checkpoints_of(name):
    checkpoints = PICTURES[name][1]
    return (checkpoints,) if isinstance(checkpoints, str) else checkpoints


def make(name, folder):
    """Makes a picture from the screenshots in a folder. @return its path"""
    screenshots = [folder / f"{checkpoint}.png" for checkpoint in checkpoints_of(name)]
    if name == README_PICTURE:
        return shutil.copyfile(screenshots[0], HERE.parent / f"{name}.png")
    part = PICTURES[name][2:]
    parts = [read_part(screenshot, *part) for screenshot in screenshots]
    width, height = part[2:]
    rows = range(0, width * height, width)
    palette, indices = reduce_colours([pixel for row in rows for each in parts for pixel in each[row:row + width]])
    write_with_palette(HERE / f"{name}.png", indices, palette, width * len(parts), height)
    return HERE / f"{name}.png"


def main(arguments):
    viewer, names = arguments[0], arguments[1:] or list(PICTURES)
    unknown = [name for name in names if name not in PICTURES]
    if unknown:
        print(f"no picture has the name {', '.join(unknown)}", file=sys.stderr)
        return 1
    with tempfile.TemporaryDirectory() as scratch:
        for session in sorted({PICTURES[name][0] for name in names}):
            folder = pathlib.Path(scratch) / session
            folder.mkdir()
            if not replay(viewer, session, folder):
                print(f"the session {session} does not meet its checkpoints", file=sys.stderr)
                return 1
            for name in names:
                if PICTURES[name][0] == session:
                    print(make(name, folder))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
