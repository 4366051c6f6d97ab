#!/usr/bin/env python3
"""Writes the hand-built settings blocks beside this script, from the documented block layout.

Do not edit the .bin files: change this script and run it again (python3 makeblocks.py).

markers_vN.bin: a block of version N with every field it has set away from its default, true
flags stored as 0x5A. default_v12.bin: the block of the default record (no gyroscope host).
"""
import os
import struct

HERE = os.path.dirname(os.path.abspath(__file__))
FLAG_COUNT = {1: 16, 2: 17, 3: 21, 4: 21, 5: 23, 6: 25, 7: 26, 8: 29, 9: 34, 10: 35, 11: 36, 12: 37}
STRING_OFFSET = {1: 76, 2: 77, 3: 85, 4: 85, 5: 95, 6: 97, 7: 98, 8: 109, 9: 126, 10: 127,
                 11: 132, 12: 133}
# Flags by index whose default is true; with no gyroscope host, AddGyro (7) and GyroButton (19)
# default to false.
TRUE_BY_DEFAULT = {0, 1, 2, 3, 4, 5, 6, 10, 11, 12, 17, 30, 31, 32, 33, 35}


def string(text):
    data = text.encode("utf-8")
    return struct.pack("<I", len(data)) + data


def block(version, ints, rates, flags, texts, items, short, reserved, api_key):
    """ints: the 7 base integers then, by version, count, gallery pair, orientation pair, map
    triple and VR type; flags: one byte per flag index present."""
    body = struct.pack("<i", version)
    body += struct.pack("<IIiiiii", *ints[:7])
    extra = ints[7:]
    groups = [(3, 1), (5, 2), (8, 2), (9, 3), (11, 1)]
    for since, width in groups:
        taken, extra = extra[:width], extra[width:]
        if version >= since:
            body += struct.pack("<" + "i" * width, *taken)
    body += struct.pack("<ddd", *rates)
    body += bytes(flags[:FLAG_COUNT[version]])
    assert 4 + len(body) == STRING_OFFSET[version], (version, 4 + len(body))
    for text in texts:  # Title64, LogoFile, LogoImage, LogoURL, Sound, SoundFile, InfoHTML64
        body += string(text)
    if version >= 5:
        body += string(short)
    if version >= 3:
        for kind, caption, action in items:
            body += struct.pack("<i", kind) + string(caption) + string(action)
    if version >= 4:
        body += string(reserved[0]) + string(reserved[1])
    if version >= 9:
        body += string(api_key)
    return struct.pack("<I", 4 + len(body)) + body


def write(name, data):
    with open(os.path.join(HERE, name), "wb") as f:
        f.write(data)


MARKER_ITEMS = [(7, "Über uns", "alert('ä');"), (0, "", ""), (5, "", "")]
for v in range(1, 13):
    ints = [0x123456, 0x654321, 0, 0, 3, 7, 42, len(MARKER_ITEMS), 2, 2, 9, 2, 1, 3, 7, 1]
    flags = [0 if i in TRUE_BY_DEFAULT else 0x5A for i in range(37)]
    texts = ["Gipfel \u00fcber Z\u00fcrich", "logo.png", "C:\\Bilder\\logo.png",
             "https://example.org/", "C:\\Ton\\wind.mp3", "wind.mp3", "<b>Info</b> \u20ac"]
    write("markers_v%d.bin" % v,
          block(v, ints, (-3.5, 1.25, 0.5), flags, texts, MARKER_ITEMS, "Kurz",
                ("reserved one", "reserved two"), "AIzaMarkerKey"))

default_items = [(k, "", "") for k in (1, 0, 2, 3, 0, 4, 0, 5)]
default_flags = [1 if i in TRUE_BY_DEFAULT else 0 for i in range(37)]
write("default_v12.bin",
      block(12, [0xFFFFFF, 0, 1, 1, 0, 0, 5, 8, 0, 0, 0, 0, 0, 0, 18, 0], (2.0, 0.0, 1.0),
            default_flags, [""] * 7, default_items, "", ("", ""), ""))
