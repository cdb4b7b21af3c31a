#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes lighthouse.glb, the model that is shipped with the viewer: make_lighthouse.py lighthouse.glb"""
import json
import math
import struct
import sys


def linear(byte):
    """The linear value of a colour component as it is on the screen, 0 .. 255."""
    value = byte / 255
    return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4


class Model:
    """Collects meshes, materials and nodes of a binary glTF file."""

    def __init__(self):
        self.data = bytearray()
        self.json = {"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
                     "nodes": [], "meshes": [], "materials": [], "accessors": [], "bufferViews": []}

    def add_material(self, name, rgb, alpha=1.0, glow=0.0):
        material = {"name": name, "pbrMetallicRoughness": {
            "baseColorFactor": [*(linear(c) for c in rgb), alpha], "metallicFactor": 0.0, "roughnessFactor": 0.6}}
        if alpha < 1:
            material["alphaMode"] = "BLEND"
        if glow > 0:
            material["emissiveFactor"] = [glow * linear(c) for c in rgb]
        self.json["materials"].append(material)
        return len(self.json["materials"]) - 1

    def add_accessor(self, values, layout, kind, component, target):
        flat = [x for value in values for x in (value if isinstance(value, tuple) else (value,))]
        self.data += b"\0" * (-len(self.data) % 4)
        self.json["bufferViews"].append({"buffer": 0, "byteOffset": len(self.data),
                                         "byteLength": struct.calcsize(layout) * len(flat), "target": target})
        self.data += struct.pack("<%d%s" % (len(flat), layout), *flat)
        accessor = {"bufferView": len(self.json["bufferViews"]) - 1, "componentType": component,
                    "count": len(values), "type": kind}
        if kind == "VEC3":
            accessor["min"] = [min(v[i] for v in values) for i in range(3)]
            accessor["max"] = [max(v[i] for v in values) for i in range(3)]
        self.json["accessors"].append(accessor)
        return len(self.json["accessors"]) - 1

    def add_mesh(self, name, surface, material):
        positions, normals, indices = surface
        positions = [struct.unpack("<3f", struct.pack("<3f", *p)) for p in positions]
        attributes = {"POSITION": self.add_accessor(positions, "f", "VEC3", 5126, 34962)}
        if normals:
            attributes["NORMAL"] = self.add_accessor(normals, "f", "VEC3", 5126, 34962)
        self.json["meshes"].append({"name": name, "primitives": [{
            "attributes": attributes, "indices": self.add_accessor(indices, "I", "SCALAR", 5125, 34963), "material": material}]})
        return len(self.json["meshes"]) - 1

    def add_node(self, name, mesh=None, height=0.0, parent=None):
        node = {"name": name, "translation": [0.0, height, 0.0]}
        if mesh is not None:
            node["mesh"] = mesh
        self.json["nodes"].append(node)
        number = len(self.json["nodes"]) - 1
        if parent is not None:
            self.json["nodes"][parent].setdefault("children", []).append(number)
        return number

    def write(self, path):
        self.json["buffers"] = [{"byteLength": len(self.data)}]
        text = json.dumps(self.json, separators=(",", ":")).encode()
        text += b" " * (-len(text) % 4)
        self.data += b"\0" * (-len(self.data) % 4)
        with open(path, "wb") as file:
            file.write(struct.pack("<4sII", b"glTF", 2, 28 + len(text) + len(self.data)))
            file.write(struct.pack("<I4s", len(text), b"JSON") + text)
            file.write(struct.pack("<I4s", len(self.data), b"BIN\0") + self.data)


def turned(profile, steps=48, wave=None):
    """A surface turned about y from straight pieces of (radius, height); each piece keeps its own normals.

    With a wave, a factor of the radius for angle and height, the reader is left to work the normals out.
    """
    positions, normals, indices = [], [], []
    for (r0, y0), (r1, y1) in zip(profile, profile[1:]):
        length = math.hypot(r1 - r0, y1 - y0)
        out, up = (y1 - y0) / length, (r0 - r1) / length
        first = len(positions)
        for i in range(steps + 1):
            angle = 2 * math.pi * (i % steps) / steps
            s, c = math.sin(angle), math.cos(angle)
            for r, y in ((r0, y0), (r1, y1)):
                size = wave(angle, y) if wave else 1.0
                positions.append((r * size * s, y, r * size * c))
                normals.append((out * s, up, out * c))
        for i in range(steps):
            a = first + 2 * i
            indices += [a, a + 2, a + 3, a, a + 3, a + 1]
    return positions, None if wave else normals, indices


def posts(radius, height, thickness, count):
    """Thin upright posts on a circle, as one surface."""
    positions, normals, indices = [], [], []
    for i in range(count):
        angle = 2 * math.pi * i / count
        x, z = radius * math.sin(angle), radius * math.cos(angle)
        p, n, t = turned([(thickness, 0.0), (thickness, height)], 8)
        first = len(positions)
        positions += [(x + a, b, z + c) for a, b, c in p]
        normals += n
        indices += [first + k for k in t]
    return positions, normals, indices


def rocky(angle, y):
    return 1.0 + 0.10 * math.sin(3 * angle + 2.0 * y) + 0.06 * math.sin(7 * angle - 3.0 * y) + 0.03 * math.sin(13 * angle)


def tower_radius(y):
    return 0.78 - 0.075 * y + 0.006 * y * y


def main():
    model = Model()
    rock = model.add_material("Rock", (112, 106, 98))
    red = model.add_material("Red paint", (188, 48, 40))
    white = model.add_material("White paint", (236, 232, 222))
    iron = model.add_material("Iron", (58, 64, 74))
    glass = model.add_material("Glass", (150, 190, 205), 0.35)
    lamp = model.add_material("Lamp", (255, 214, 120), 1.0, 0.5)

    top = model.add_node("Lighthouse")
    profile = [(1.9, 0.0), (1.75, 0.25), (1.5, 0.5), (1.25, 0.62), (1.0, 0.7), (0.0, 0.72)]
    model.add_node("Rock", model.add_mesh("Rock", turned(profile, 64, rocky), rock), 0.0, top)
    tower = model.add_node("Tower", None, 0.7, top)
    bands, height = 5, 4.0
    for i in range(bands):
        low, high = height * i / bands, height * (i + 1) / bands
        rows = [low + (high - low) * k / 6 for k in range(7)]
        mesh = model.add_mesh("Band %d" % (i + 1), turned([(tower_radius(y), y) for y in rows]), white if i % 2 else red)
        model.add_node("Band %d" % (i + 1), mesh, 0.0, tower)
    gallery = model.add_node("Gallery", None, 4.7, top)
    platform = turned([(0.58, -0.14), (0.82, 0.0), (0.82, 0.06), (0.0, 0.06)])
    model.add_node("Platform", model.add_mesh("Platform", platform, iron), 0.0, gallery)
    model.add_node("Posts", model.add_mesh("Posts", posts(0.77, 0.3, 0.014, 16), iron), 0.06, gallery)
    rail = turned([(0.755, 0.0), (0.785, 0.0), (0.785, 0.03), (0.755, 0.03), (0.755, 0.0)])
    model.add_node("Rail", model.add_mesh("Rail", rail, iron), 0.36, gallery)
    lantern = model.add_node("Lantern", None, 0.06, gallery)
    bulb = [(0.17 * math.sin(math.pi * k / 10), 0.36 - 0.2 * math.cos(math.pi * k / 10)) for k in range(11)]
    model.add_node("Lamp", model.add_mesh("Lamp", turned(bulb, 24), lamp), 0.0, lantern)
    model.add_node("Frame", model.add_mesh("Frame", posts(0.43, 0.72, 0.018, 8), iron), 0.0, lantern)
    model.add_node("Glass", model.add_mesh("Glass", turned([(0.42, 0.0), (0.42, 0.72)]), glass), 0.0, lantern)
    roof = turned([(0.0, 0.0), (0.56, 0.0), (0.56, 0.04), (0.34, 0.24), (0.12, 0.4), (0.05, 0.44), (0.05, 0.52), (0.09, 0.57),
                   (0.05, 0.62), (0.0, 0.64)])
    model.add_node("Roof", model.add_mesh("Roof", roof, red), 0.72, lantern)
    model.write(sys.argv[1])


main()
