#!/usr/bin/env python3
"""Draws the map marker pictures into BMPS/hotspots/marker/ (run from this folder).

The map shows them at 30 by 48 CSS pixels with the tip at (15, 42); they are drawn at twice that
size so that they stay sharp on high-density screens. Plain Python: a map pin (a disc running
into a point) in the marker's colour with a darker rim and a white centre, anti-aliased by 4x4
supersampling, written as an RGBA PNG.
"""
import math
import os
import struct
import zlib

WIDTH, HEIGHT, SCALE = 60, 96, 2
CENTRE_X, CENTRE_Y, RADIUS = 30.0, 30.0, 24.0
TIP_Y = 42 * SCALE  # the anchor's tip
RIM, HOLE = 3.0, 9.0
SAMPLES = 4


def inside_pin(x, y, grow):
    """Whether (x, y) lies in the pin grown by `grow` pixels."""
    r = RADIUS + grow
    dx, dy = x - CENTRE_X, y - CENTRE_Y
    if dx * dx + dy * dy <= r * r:
        return True
    # The point: the two tangents from the tip to the disc.
    tip = TIP_Y + grow * 1.6
    distance = tip - CENTRE_Y
    if y < CENTRE_Y or y > tip:
        return False
    half_angle = math.asin(min(1.0, r / distance))
    return abs(dx) <= (tip - y) * math.tan(half_angle)


def pixel(x, y, colour, rim):
    cover = body = hole = 0
    for sy in range(SAMPLES):
        for sx in range(SAMPLES):
            px, py = x + (sx + 0.5) / SAMPLES, y + (sy + 0.5) / SAMPLES
            if inside_pin(px, py, 0):
                cover += 1
                if inside_pin(px, py, -RIM):
                    body += 1
                    if (px - CENTRE_X) ** 2 + (py - CENTRE_Y) ** 2 <= HOLE * HOLE:
                        hole += 1
    if cover == 0:
        return (0, 0, 0, 0)
    # Mix rim, body and white centre by their share of the covered samples.
    parts = [(rim, cover - body), (colour, body - hole), ((255, 255, 255), hole)]
    rgb = tuple(round(sum(c[i] * n for c, n in parts) / cover) for i in range(3))
    return rgb + (round(255 * cover / (SAMPLES * SAMPLES)),)


def png(rows):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    raw = b"".join(b"\0" + bytes(v for p in row for v in p) for row in rows)
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9))
            + chunk(b"IEND", b""))


MARKERS = {
    "marker_redorange.png": ((255, 87, 34), (160, 40, 10)),  # a panorama on the map
    "marker_lima.png": ((124, 200, 40), (60, 110, 15)),      # the panorama shown now
}

if __name__ == "__main__":
    folder = os.path.join("BMPS", "hotspots", "marker")
    os.makedirs(folder, exist_ok=True)
    for name, (colour, rim) in MARKERS.items():
        rows = [[pixel(x, y, colour, rim) for x in range(WIDTH)] for y in range(HEIGHT)]
        with open(os.path.join(folder, name), "wb") as out:
            out.write(png(rows))
