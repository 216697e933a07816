"""Small pictures painted pixel by pixel and written as PNG."""

import math
import struct
import zlib

# Letters in five columns of seven rows, one number per row.
_LETTERS = {
    "J": (7, 2, 2, 2, 2, 18, 12), "Y": (17, 17, 10, 4, 4, 4, 4), "/": (1, 1, 2, 4, 8, 16, 16),
    "H": (17, 17, 17, 31, 17, 17, 17), "K": (17, 18, 20, 24, 20, 18, 17), "Q": (14, 17, 17, 17, 21, 18, 13),
    "5": (31, 16, 30, 1, 1, 17, 14), "6": (14, 16, 16, 30, 17, 17, 14), "8": (14, 17, 17, 14, 17, 17, 14),
    "A": (14, 17, 17, 31, 17, 17, 17), "B": (30, 17, 17, 30, 17, 17, 30), "C": (15, 16, 16, 16, 16, 16, 15),
    "D": (30, 17, 17, 17, 17, 17, 30), "E": (31, 16, 16, 30, 16, 16, 31), "F": (31, 16, 16, 30, 16, 16, 16),
    "G": (15, 16, 16, 19, 17, 17, 15), "I": (14, 4, 4, 4, 4, 4, 14), "L": (16, 16, 16, 16, 16, 16, 31),
    "M": (17, 27, 21, 21, 17, 17, 17), "N": (17, 25, 21, 21, 19, 17, 17), "O": (14, 17, 17, 17, 17, 17, 14),
    "P": (30, 17, 17, 30, 16, 16, 16), "R": (30, 17, 17, 30, 20, 18, 17), "S": (15, 16, 16, 14, 1, 1, 30),
    "T": (31, 4, 4, 4, 4, 4, 4), "U": (17, 17, 17, 17, 17, 17, 14), "V": (17, 17, 17, 17, 17, 10, 4),
    "W": (17, 17, 17, 21, 21, 27, 17), "X": (17, 10, 4, 4, 4, 10, 17), "Z": (31, 1, 2, 4, 8, 16, 31),
    "0": (14, 17, 19, 21, 25, 17, 14), "1": (4, 12, 4, 4, 4, 4, 14), "2": (14, 17, 1, 6, 8, 16, 31),
    "3": (30, 1, 1, 14, 1, 1, 30), "4": (2, 6, 10, 18, 31, 2, 2), "7": (31, 1, 2, 4, 8, 8, 8),
    "9": (14, 17, 17, 15, 1, 1, 14), "-": (0, 0, 0, 14, 0, 0, 0), ".": (0, 0, 0, 0, 0, 12, 12),
}


class Picture:
    def __init__(self, width, height, colour):
        self.width, self.height = width, height
        self.rows = [bytearray(bytes(colour) * width) for _ in range(height)]

    def fill(self, x0, y0, x1, y1, colour):
        for y in range(max(0, y0), min(self.height, y1)):
            for x in range(max(0, x0), min(self.width, x1)):
                self.rows[y][3 * x:3 * x + 3] = bytes(colour)

    def text(self, x, y, text, size, colour):
        for letter in text:
            for row, bits in enumerate(_LETTERS.get(letter, (0,) * 7)):
                for column in range(5):
                    if bits >> (4 - column) & 1:
                        left, top = x + column * size, y + row * size
                        self.fill(left, top, left + size, top + size, colour)
            x += 6 * size

    def png(self):
        raw = b"".join(b"\0" + bytes(row) for row in self.rows)
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        return (b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header) + _chunk(b"IDAT", zlib.compress(raw, 9)) +
                _chunk(b"IEND", b""))


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF)


def licence_plate():
    ink = (18, 20, 26)
    picture = Picture(512, 110, (244, 244, 238))
    picture.fill(0, 0, 512, 4, ink)
    picture.fill(0, 106, 512, 110, ink)
    picture.fill(0, 0, 4, 110, ink)
    picture.fill(508, 0, 512, 110, ink)
    picture.fill(4, 4, 48, 106, (20, 60, 150))
    picture.text(66, 22, "QX-RS 1974", 7, ink)
    return picture.png()


def floor_tiles():
    """Two by two tiles with fine joints."""
    picture = Picture(128, 128, (58, 60, 64))
    picture.fill(0, 0, 64, 64, (66, 68, 72))
    picture.fill(64, 64, 128, 128, (66, 68, 72))
    for k in (0, 64):
        picture.fill(k, 0, k + 1, 128, (34, 35, 38))
        picture.fill(0, k, 128, k + 1, (34, 35, 38))
    return picture.png()


def sign():
    picture = Picture(480, 320, (20, 22, 27))
    picture.fill(30, 146, 450, 149, (196, 160, 96))
    picture.text(40, 50, "ROADSTER", 8, (240, 238, 230))
    picture.text(42, 118, "OPEN TWO-SEATER", 3, (196, 160, 96))
    for k, line in enumerate(("LENGTH 4.04 M", "WIDTH  1.78 M", "WHEELS 17 IN")):
        picture.text(42, 176 + 40 * k, line, 4, (200, 202, 206))
    return picture.png()


def wood():
    """Grain along the second axis."""
    picture = Picture(128, 128, (0, 0, 0))
    for y in range(128):
        for x in range(128):
            wave = math.sin(x * 0.30 + 2.2 * math.sin(2.0 * math.pi * y / 128.0) + 1.3 * math.sin(x * 0.11))
            tone = 0.80 + 0.13 * wave + 0.05 * math.sin(x * 1.9 + 1.0 * math.sin(4.0 * math.pi * y / 128.0))
            picture.fill(x, y, x + 1, y + 1, tuple(int(c * tone) for c in (156, 98, 54)))
    return picture.png()


def carbon():
    """A twill weave."""
    picture = Picture(32, 32, (0, 0, 0))
    for y in range(32):
        for x in range(32):
            warp = ((x // 4) + (y // 4)) % 4 < 2
            tone = 34 + 16 * math.sin(math.pi * ((y if warp else x) % 4 + 0.5) / 4.0) + (10 if warp else 0)
            picture.fill(x, y, x + 1, y + 1, (int(tone), int(tone), int(tone * 1.06)))
    return picture.png()


def _sky(*stops):
    """Bands that run into each other; each stop is a row of 128 and its colour."""
    picture = Picture(128, 128, (0, 0, 0))
    for (y0, upper), (y1, lower) in zip(stops, stops[1:]):
        for y in range(y0, y1):
            part = (y - y0) / (y1 - y0)
            picture.fill(0, y, 128, y + 1, tuple(int(a + (b - a) * part) for a, b in zip(upper, lower)))
    return picture


def studio_sky():
    return _sky((0, (250, 250, 250)), (52, (206, 208, 212)), (70, (122, 124, 130)), (128, (84, 86, 92))).png()


def dusk_sky():
    return _sky((0, (24, 34, 74)), (40, (92, 78, 122)), (58, (228, 138, 88)), (64, (252, 206, 132)),
                (66, (66, 52, 56)), (128, (26, 24, 30))).png()


def night_sky():
    """Stars, and the glow of a town on the horizon."""
    picture = _sky((0, (26, 34, 70)), (40, (48, 56, 96)), (64, (176, 150, 140)), (66, (60, 56, 60)), (128, (30, 30, 36)))
    for k in range(90):
        x, y = k * 47 % 128, 3 + k * 29 % 52
        picture.fill(x, y, x + 1, y + 1, (110 + k * 37 % 140,) * 3)
    return picture.png()
