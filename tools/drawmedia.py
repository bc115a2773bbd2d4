#!/usr/bin/env python3
"""Draws the picture and the animation that the sample boards show: samples/media/logo.png and bounce.gif.

Needs nothing but Python. Run it from anywhere, look at the result and commit it:

    tools/drawmedia.py
"""
import math
import struct
import zlib
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "samples" / "media"

CLEAR = (0, 0, 0, 0)
ORANGE = (240, 130, 40)
LIGHT = (255, 178, 92)
SEAM = (66, 28, 8)
SHADOW = (2, 20, 9)
AMBER = (255, 190, 40)
UNLIT = (38, 44, 62)

SAMPLES = 4  # per pixel and direction, of the logo

# Dot matrix letters, five columns and seven rows; each number is a row, its bits are the dots.
LETTERS = {
    "A": (14, 17, 17, 31, 17, 17, 17),
    "B": (30, 17, 17, 30, 17, 17, 30),
    "D": (30, 17, 17, 17, 17, 17, 30),
    "G": (14, 17, 16, 23, 17, 17, 14),
    "H": (17, 17, 17, 31, 17, 17, 17),
    "I": (14, 4, 4, 4, 4, 4, 14),
    "O": (14, 17, 17, 17, 17, 17, 14),
    "R": (30, 17, 17, 30, 20, 18, 17),
    "T": (31, 4, 4, 4, 4, 4, 4),
    "W": (17, 17, 17, 21, 21, 27, 17),
}
LETTER_ROWS = 7


def ball(x, y, turn):
    """The colour of a ball of radius 1 at a point, None beside it. The turn is in radians."""
    if x * x + y * y > 1:
        return None
    along = x * math.cos(turn) + y * math.sin(turn)
    across = y * math.cos(turn) - x * math.sin(turn)
    curved = abs(abs(along) - 0.5 - 0.4 * across * across)
    if min(abs(along), abs(across), curved) < 0.055:
        return SEAM
    return LIGHT if (x + 0.35) ** 2 + (y + 0.4) ** 2 < 0.12 else ORANGE


# ---- The logo: a ball on a lit board, beside the name in dots


def dots(word):
    """The dots of a word: column, row and whether it is lit."""
    for index, letter in enumerate(word):
        for row, bits in enumerate(LETTERS[letter]):
            for column in range(5):
                yield index * 6 + column, row, bool(bits & 16 >> column)


def all_dots():
    pitch, left, top = 3.5, 69.0, 2.0
    for line, word in enumerate(("BOARD", "WRIGHT")):
        for column, row, lit in dots(word):
            place = left + column * pitch, top + (row + line * (LETTER_ROWS + 1)) * pitch
            yield place, AMBER if lit else UNLIT


def frame_of_the_mark(x, y):
    """A square of 56 pixels with round corners, three pixels thick."""
    beyond = math.hypot(max(abs(x - 28) - 19, 0), max(abs(y - 28) - 19, 0))
    return 6 <= beyond <= 9


def logo_colour(x, y, grid):
    if x < 60:
        inside = ball((x - 28) / 19, (y - 28) / 19, 0.5)
        return inside or (AMBER if frame_of_the_mark(x, y) else None)
    for (cx, cy), colour in grid.get((int(x) // 4, int(y) // 4), ()):
        if math.hypot(x - cx, y - cy) <= 1.45:
            return colour
    return None


def nearby():
    """The dots by the squares of four pixels that they may reach into."""
    grid = {}
    for (x, y), colour in all_dots():
        for column in range(int(x - 2) // 4, int(x + 2) // 4 + 1):
            for row in range(int(y - 2) // 4, int(y + 2) // 4 + 1):
                grid.setdefault((column, row), []).append(((x, y), colour))
    return grid


def mixed(samples):
    hits = [sample for sample in samples if sample]
    if not hits:
        return CLEAR
    mean = (round(sum(hit[i] for hit in hits) / len(hits)) for i in range(3))
    return (*mean, round(255 * len(hits) / len(samples)))


def logo(width, height):
    grid = nearby()
    steps = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]
    return [
        [mixed([logo_colour(x + dx, y + dy, grid) for dy in steps for dx in steps]) for x in range(width)]
        for y in range(height)
    ]


def png(rows):
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 6, 0, 0, 0)
    pixels = b"".join(b"\0" + bytes(value for pixel in row for value in pixel) for row in rows)
    return (
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(pixels, 9)) + chunk(b"IEND", b"")
    )


# ---- The animation: a ball that bounces from the left to the right, for ever

PALETTE = (CLEAR[:3], SHADOW, SEAM, ORANGE, LIGHT, (0, 0, 0), (0, 0, 0), (0, 0, 0))
FRAMES = 48
DELAY = 4  # hundredths of a second
BOUNCES = 3
RADIUS = 15


def bounce(frame, width, height):
    """The rows of a frame, as numbers of the palette; 0 is transparent."""
    # Not from the edge: the first frame is what a still picture of the board shows.
    way = (frame / FRAMES + 0.5) % 1
    x = -2 * RADIUS + way * (width + 4 * RADIUS)
    leap = abs(math.sin(way * BOUNCES * math.pi))
    floor = height - 3
    y = floor - RADIUS - leap * (floor - 2 * RADIUS - 2)

    def colour(px, py):
        inside = ball((px - x) / RADIUS, (py - y) / RADIUS, way * 7)
        if inside:
            return PALETTE.index(inside)
        reach = RADIUS * (1 - leap * 0.5)
        return 1 if ((px - x) / reach) ** 2 + ((py - floor) / 2.5) ** 2 <= 1 else 0

    return [[colour(px + 0.5, py + 0.5) for px in range(width)] for py in range(height)]


def lzw(pixels, bits):
    """Packs the pixels in codes of growing length, starting with one bit more than a pixel has."""
    clear, end = 1 << bits, (1 << bits) + 1
    table, size, buffer, filled, packed = {}, bits + 1, 0, 0, bytearray()

    def put(code):
        nonlocal buffer, filled
        buffer |= code << filled
        filled += size
        while filled >= 8:
            packed.append(buffer & 255)
            buffer, filled = buffer >> 8, filled - 8

    def reset():
        table.clear()
        table.update({(value,): value for value in range(clear)})

    reset()
    put(clear)
    run = ()
    for pixel in pixels:
        if run + (pixel,) in table:
            run += (pixel,)
            continue
        put(table[run])
        table[run + (pixel,)] = len(table) + 2
        if len(table) + 1 == 1 << size:
            size += 1
        if len(table) + 2 > 4095:
            put(clear)
            size = bits + 1
            reset()
        run = (pixel,)
    put(table[run])
    put(end)
    if filled:
        packed.append(buffer & 255)
    return bytes(packed)


def blocks(data):
    parts = [data[i : i + 255] for i in range(0, len(data), 255)]
    return b"".join(bytes([len(part)]) + part for part in parts) + b"\0"


def gif(frames):
    width, height = len(frames[0][0]), len(frames[0])
    bits = len(PALETTE).bit_length() - 1
    data = b"GIF89a" + struct.pack("<HHBBB", width, height, 0x80 | bits - 1, 0, 0)
    data += bytes(value for colour in PALETTE for value in colour)
    data += b"\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0"
    for frame in frames:
        # Each frame starts from nothing, and what has the first colour is transparent.
        data += b"\x21\xf9\x04" + struct.pack("<BHBB", 2 << 2 | 1, DELAY, 0, 0)
        data += b"," + struct.pack("<HHHHB", 0, 0, width, height, 0)
        data += bytes([bits]) + blocks(lzw([pixel for row in frame for pixel in row], bits))
    return data + b";"


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    (FOLDER / "logo.png").write_bytes(png(logo(190, 56)))
    (FOLDER / "bounce.gif").write_bytes(gif([bounce(frame, 216, 72) for frame in range(FRAMES)]))


if __name__ == "__main__":
    main()
