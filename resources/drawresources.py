#!/usr/bin/env python3
"""Draws the compiled-in pictures: the two map markers of the library (BMPS/hotspots/marker/) and
the two hotspot symbols of the command-line host (../tools/vantora-export/resources/). The map
shows a marker at 30 x 48 CSS pixels with its tip at (15, 42); it is drawn at twice that size so
that it stays sharp on high-density screens. Pure Python (no imaging package), 4x4 supersampled,
so the PNGs come out the same on every machine. Run from this folder: python3 drawresources.py"""
import os
import struct
import zlib

SAMPLES = 4


def png(path, width, height, pixel):
    """pixel(x, y) -> (r, g, b, a) with x, y in picture units; averaged over SAMPLES^2 points."""
    rows = []
    for y in range(height):
        row = bytearray([0])
        for x in range(width):
            acc = [0.0, 0.0, 0.0, 0.0]
            for sy in range(SAMPLES):
                for sx in range(SAMPLES):
                    r, g, b, a = pixel(x + (sx + 0.5) / SAMPLES, y + (sy + 0.5) / SAMPLES)
                    acc[0] += r * a
                    acc[1] += g * a
                    acc[2] += b * a
                    acc[3] += a
            n = SAMPLES * SAMPLES
            alpha = acc[3] / n
            if alpha > 0:
                row += bytes(int(round(acc[i] / acc[3])) for i in range(3))
            else:
                row += b"\0\0\0"
            row.append(int(round(alpha * 255)))
        rows.append(bytes(row))

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n")
        out.write(chunk(b"IHDR", header))
        out.write(chunk(b"IDAT", zlib.compress(b"".join(rows), 9)))
        out.write(chunk(b"IEND", b""))


def marker(colour):
    """A map pin, 60 x 96: a round head, a point at (30, 84), a white dot, a dark rim."""
    cx, cy, radius, tip = 30.0, 30.0, 26.0, 84.0

    def inside(x, y, grow):
        if (x - cx) ** 2 + (y - cy) ** 2 <= (radius + grow) ** 2:
            return True
        # The point: a triangle from the head's widest chord down to the tip.
        if cy <= y <= tip + grow:
            half = (radius + grow) * (tip + grow - y) / (tip + grow - cy)
            return abs(x - cx) <= half
        return False

    def pixel(x, y):
        if (x - cx) ** 2 + (y - cy) ** 2 <= 9.0 ** 2:
            return (255, 255, 255, 1.0)
        if inside(x, y, -2.5):
            return colour + (1.0,)
        if inside(x, y, 0.0):
            return (60, 30, 20, 1.0)
        return (0, 0, 0, 0.0)

    return pixel


def symbol(kind):
    """A 48 x 48 round hotspot symbol: an arrow for links, an "i" for information."""
    c = 24.0

    def pixel(x, y):
        d2 = (x - c) ** 2 + (y - c) ** 2
        if d2 > 22.0 ** 2:
            return (0, 0, 0, 0.0)
        if d2 > 19.0 ** 2:
            return (255, 255, 255, 1.0)
        ink = False
        if kind == "link":
            # An upward arrow: head triangle and shaft.
            ink = (10 <= y <= 24 and abs(x - c) <= (y - 10) * 0.9) or (24 <= y <= 37 and abs(x - c) <= 4)
        else:
            ink = ((x - c) ** 2 + (y - 13) ** 2 <= 3.5 ** 2) or (19 <= y <= 36 and abs(x - c) <= 3.5)
        return (255, 255, 255, 1.0) if ink else (20, 90, 170, 0.85)

    return pixel


if __name__ == "__main__":
    markers = os.path.join("BMPS", "hotspots", "marker")
    symbols = os.path.join("..", "tools", "vantora-export", "resources")
    os.makedirs(markers, exist_ok=True)
    png(os.path.join(markers, "marker_redorange.png"), 60, 96, marker((255, 90, 31)))  # a panorama on the map
    png(os.path.join(markers, "marker_lima.png"), 60, 96, marker((164, 212, 28)))  # the one shown now
    png(os.path.join(symbols, "hotspot_link.png"), 48, 48, symbol("link"))
    png(os.path.join(symbols, "hotspot_info.png"), 48, 48, symbol("info"))
