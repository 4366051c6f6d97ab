#!/usr/bin/env python3
"""Draws the pictures of the viewer settings dialog: the eight toolbar design previews
(BMPS/tbdesigns/controls1_s.png .. controls8_s.png, each design's bar and button faces over a
sky, after the viewer's toolbar styles), the twelve compass and radar pictures
(BMPS/compassDesigns/), the four tree-branch indicators and the info icon (BMPS/png/). Every
picture is written at 1x and at 2x ("@2x"), which Qt picks on high-density screens. Run from
this folder: python3 drawdialogpictures.py"""
import math
import os

from drawresources import png

WHITE = (255, 255, 255)


def over(base, colour, alpha):
    """Composites colour with alpha over base (r, g, b, a)."""
    r, g, b, a = base
    out_a = alpha + a * (1 - alpha)
    if out_a <= 0:
        return (0, 0, 0, 0.0)
    mix = lambda c0, c1: (c1 * alpha + c0 * a * (1 - alpha)) / out_a
    return (mix(r, colour[0]), mix(g, colour[1]), mix(b, colour[2]), out_a)


def rounded(x, y, x0, y0, x1, y1, radius):
    if not (x0 <= x <= x1 and y0 <= y <= y1):
        return False
    cx = min(max(x, x0 + radius), x1 - radius)
    cy = min(max(y, y0 + radius), y1 - radius)
    return (x - cx) ** 2 + (y - cy) ** 2 <= radius ** 2


def lerp(c0, c1, t):
    t = min(max(t, 0.0), 1.0)
    return tuple(c0[i] + (c1[i] - c0[i]) * t for i in range(3))


def glyph(kind, x, y, cx, cy, s):
    """The white symbols of the toolbar buttons, centred on (cx, cy), s = half size."""
    u, v = (x - cx) / s, (y - cy) / s
    if kind == "left":
        return -0.6 <= u <= 0.5 and abs(v) <= (u + 0.6) * 0.75
    if kind == "right":
        return -0.5 <= u <= 0.6 and abs(v) <= (0.6 - u) * 0.75
    if kind == "play":
        return -0.45 <= u <= 0.65 and abs(v) <= (0.65 - u) * 0.6
    if kind == "plus":
        return (abs(u) <= 0.6 and abs(v) <= 0.14) or (abs(v) <= 0.6 and abs(u) <= 0.14)
    if kind == "minus":
        return abs(u) <= 0.6 and abs(v) <= 0.14
    if kind == "full":
        edge = max(abs(u), abs(v))
        return 0.42 <= edge <= 0.62 and not (abs(u) < 0.2 or abs(v) < 0.2)
    return False


# Per design: bar (None, colour pair top/bottom with alpha, or "glow"), button face ("round",
# "ring", "sand", "metal", "orange", "clear"), glyph colour.
DESIGNS = [
    dict(bar=((0, 0, 0), (0, 0, 0), 0.5), face="round", ink=WHITE),
    dict(bar=None, face="round", ink=WHITE),
    dict(bar=None, face="sand", ink=(70, 66, 60)),
    dict(bar=((168, 162, 147), (176, 170, 155), 1.0), face="sand", ink=(70, 66, 60)),
    dict(bar=None, face="ring", ink=WHITE),
    dict(bar=None, face="metal", ink=WHITE),
    dict(bar=((15, 79, 168), (15, 79, 168), 1.0), face="orange", ink=WHITE),
    dict(bar="glow", face="round", ink=WHITE),
]
GLYPHS = ["left", "right", "plus", "minus", "play", "full"]
W, H = 120, 24


def design_preview(d):
    def pixel(x, y):
        # The panorama behind the bar: sky over a green hill.
        colour = lerp((120, 170, 225), (200, 225, 245), y / H) if y < 15 - 2 * math.sin(x / 19) else (90, 130, 70)
        c = colour + (1.0,)
        bar = d["bar"]
        if bar == "glow":
            if rounded(x, y, 1, 1, W - 1, H - 1, 5):
                c = over(c, (0, 0, 0), max(0.0, 1.0 - x / W * 1.2))
                if not rounded(x, y, 2, 2, W - 2, H - 2, 4):
                    c = over(c, WHITE, 1.0)
        elif bar:
            top, bottom, alpha = bar
            if rounded(x, y, 0, 0, W, H, 2 if alpha == 1.0 else 0):
                c = over(c, lerp(top, bottom, y / H), alpha)
        step = W / len(GLYPHS)
        i = min(int(x / step), len(GLYPHS) - 1)
        cx, cy, r = step * (i + 0.5), H / 2, 8.5
        face = d["face"]
        if face in ("sand", "metal", "orange"):
            if rounded(x, y, cx - r - 1, cy - r + 1, cx + r + 1, cy + r - 1, 2.5):
                if face == "sand":
                    edge = not rounded(x, y, cx - r, cy - r + 2, cx + r, cy + r - 2, 2)
                    c = over(c, (102, 102, 102) if edge else lerp((244, 240, 242), (176, 170, 155), (y - cy + r) / (2 * r)), 1.0)
                elif face == "metal":
                    c = over(c, lerp((145, 150, 147), (16, 33, 41), (y - cy + r) / (1.3 * r)), 1.0)
                else:
                    c = over(c, (225, 150, 27), 1.0)
        elif face == "ring":
            d2 = (x - cx) ** 2 + (y - cy) ** 2
            if (r - 1.6) ** 2 <= d2 <= r ** 2:
                c = over(c, WHITE, 1.0)
            elif r ** 2 < d2 <= (r + 0.6) ** 2 or (r - 2.2) ** 2 <= d2 < (r - 1.6) ** 2:
                c = over(c, (0, 0, 0), 1.0)
        if glyph(GLYPHS[i], x, y, cx, cy, 5.5):
            c = over(c, d["ink"], 1.0)
        return c

    return pixel


def compass(kind, size):
    """A compass rose (needle north red), a dial compass (ring with ticks), a compact compass, a
    radar (a fan of view over a disc) or a toolbar button with either."""
    c = size / 2.0

    def pixel(x, y):
        dx, dy = x - c, y - c
        dist = math.hypot(dx, dy)
        angle = math.atan2(dx, -dy)  # 0 up, clockwise
        col = (0, 0, 0, 0.0)
        if kind in ("compassToolbar", "radarToolbar"):
            if rounded(x, y, 0, 0, size, size, size * 0.2):
                col = over(col, (40, 40, 40), 0.85)
            inner = "compass" if kind == "compassToolbar" else "radar"
            sub = compass(inner, size * 0.8)
            s = sub(x - size * 0.1, y - size * 0.1)
            return over(col, s[:3], s[3]) if s[3] > 0 else col
        radius = c - 0.5
        if dist > radius:
            return col
        if kind == "radar":
            col = over(col, (30, 60, 30), 0.75)
            if dist > radius - max(1.0, size / 32):
                return over(col, WHITE, 1.0)
            if abs(angle) <= math.radians(35):
                col = over(col, (120, 230, 120), 0.6)
            if dist < max(1.5, size / 20):
                col = over(col, WHITE, 1.0)
            return col
        col = over(col, (245, 245, 240), 0.9)
        ring = max(1.0, size / 24)
        if dist > radius - ring:
            return over(col, (60, 60, 60), 1.0)
        if kind == "compassDial":
            for k in range(12):
                a = math.radians(k * 30)
                if abs(math.remainder(angle - a, 2 * math.pi)) < 0.05 and dist > radius * 0.72:
                    col = over(col, (60, 60, 60), 1.0)
        # The needle: a thin rhombus, north half red.
        half = radius * (0.55 if kind == "compact" else 0.78)
        width = radius * 0.16
        along = -dy
        across = abs(dx)
        if abs(along) <= half and across <= width * (1 - abs(along) / half):
            col = over(col, (200, 30, 30) if along > 0 else (60, 60, 60), 1.0)
        return col

    return pixel


def branch(open_, hover):
    """A 16 x 16 tree-branch triangle: pointing right when closed, down when open."""
    ink = (30, 90, 180) if hover else (90, 90, 90)

    def pixel(x, y):
        u, v = (x - 8) / 5.0, (y - 8) / 5.0
        if open_:
            u, v = v, u
        inside = -0.55 <= u <= 0.75 and abs(v) <= (0.75 - u) * 0.75
        return ink + (1.0,) if inside else (0, 0, 0, 0.0)

    return pixel


def info_icon(x, y):
    c = 12.0
    d2 = (x - c) ** 2 + (y - c) ** 2
    if d2 > 11.0 ** 2:
        return (0, 0, 0, 0.0)
    ink = ((x - c) ** 2 + (y - 6.5) ** 2 <= 1.9 ** 2) or (10 <= y <= 18.5 and abs(x - c) <= 1.7)
    return WHITE + (1.0,) if ink else (40, 110, 200, 1.0)


def both(path, width, height, pixel):
    """Writes the picture at 1x and at 2x (same picture units, twice the pixels)."""
    png(path + ".png", width, height, pixel)
    png(path + "@2x.png", width * 2, height * 2, lambda x, y: pixel(x / 2.0, y / 2.0))


if __name__ == "__main__":
    designs = os.path.join("BMPS", "tbdesigns")
    compasses = os.path.join("BMPS", "compassDesigns")
    icons = os.path.join("BMPS", "png")
    for folder in (designs, compasses, icons):
        os.makedirs(folder, exist_ok=True)
    for i, d in enumerate(DESIGNS):
        both(os.path.join(designs, "controls%d_s" % (i + 1)), W, H, design_preview(d))
    for name, kind, size in [("compass60", "compass", 30), ("compass96", "compass", 32),
                             ("compass48", "compass", 24), ("compact32", "compact", 16),
                             ("compassDial60", "compassDial", 30), ("compassDial96", "compassDial", 32),
                             ("compassDial48", "compassDial", 24), ("radar60", "radar", 30),
                             ("radar96", "radar", 32), ("radar48", "radar", 24),
                             ("compassToolbar", "compassToolbar", 24), ("radarToolbar", "radarToolbar", 24)]:
        # Every picture of the list has the list's icon size; the drawing inside shows the size.
        def framed(x, y, kind=kind, size=size, draw=compass(kind, size)):
            off = (32 - size) / 2.0
            if off <= x < off + size and off <= y < off + size:
                return draw(x - off, y - off)
            return (0, 0, 0, 0.0)
        both(os.path.join(compasses, name), 32, 32, framed)
    for name, open_, hover in [("branchClosed", False, False), ("branchClosedHover", False, True),
                               ("branchOpen", True, False), ("branchOpenHover", True, True)]:
        both(os.path.join(icons, name), 16, 16, branch(open_, hover))
    both(os.path.join(icons, "info"), 24, 24, info_icon)
