"""What the overlays show: pages painted with text and simple drawings."""

from .pictures import Picture
from .surface import FRONT_AXLE, REAR_AXLE, WHEEL_RADIUS, edge_line, place
from .vectors import Curve, steps

BACK, PALE, GOLD, DIM, BLUE = (20, 22, 27), (240, 238, 230), (196, 160, 96), (120, 124, 132), (86, 140, 190)
WIDTH, HEIGHT = 720, 480


def _page(title):
    picture = Picture(WIDTH, HEIGHT, BACK)
    picture.text(40, 38, title, 6, PALE)
    picture.text(WIDTH - 40 - 15 * 12, 58, "ROADSTER QX 200", 2, DIM)
    picture.fill(40, 96, WIDTH - 40, 99, GOLD)
    return picture


def _disc(picture, x, y, radius, colour):
    for row in range(-radius, radius + 1):
        half = int((radius * radius - row * row) ** 0.5)
        picture.fill(x - half, y + row, x + half + 1, y + row + 1, colour)


def performance():
    """Figures, and power over engine speed."""
    picture = _page("PERFORMANCE")
    for k, (name, value) in enumerate((("POWER", "150 KW"), ("TORQUE", "245 NM"), ("0-100 KM/H", "5.9 S"),
                                       ("TOP SPEED", "232 KM/H"), ("WEIGHT", "985 KG"))):
        picture.text(40, 134 + 64 * k, name, 2, GOLD)
        picture.text(40, 156 + 64 * k, value, 4, PALE)
    left, bottom, right, top = 330, 410, 680, 140
    for k in range(6):
        y = bottom - k * (bottom - top) // 5
        picture.fill(left, y, right, y + 1, (52, 55, 62))
    for x, rpm in zip(steps(left, right, 7), range(8)):
        picture.fill(int(x), bottom, int(x) + 1, bottom + 6, DIM)
        picture.text(int(x) - 5, bottom + 14, str(rpm), 2, DIM)
    picture.text(right - 24 * 12, bottom + 42, "1000 REVOLUTIONS/MINUTE", 2, DIM)
    power = Curve((0.8, 12), (2, 42), (4, 98), (5.5, 138), (6.6, 150), (7.0, 143))
    torque = Curve((0.8, 120), (2, 186), (3.2, 222), (4.4, 245), (5.6, 232), (7.0, 188))
    for curve, full, colour in ((torque, 300.0, BLUE), (power, 180.0, GOLD)):
        for x in range(left + 40, right - 4):
            value = curve(7.0 * (x - left) / (right - left))
            y = int(bottom - (bottom - top) * value / full)
            picture.fill(x, y - 2, x + 3, y + 2, colour)
    picture.text(left + 8, top - 22, "KW", 2, GOLD)
    picture.text(left + 44, top - 22, "NM", 2, BLUE)
    return picture.png()


def dimensions():
    """The car from its side with its measures."""
    picture = _page("DIMENSIONS")
    scale, middle, ground = 148.0, WIDTH // 2, 340

    def at(z, y):
        return int(middle - z * scale), int(ground - y * scale)

    shoulder = [(z, y) for _, y, z in edge_line(steps(0.0, 3.0, 160))]
    sill = [(z, y) for _, y, z in edge_line(steps(0.0, 3.0, 160), 0.5)]
    high, low = Curve(*_rising(shoulder)), Curve(*_rising(sill))
    cabin = Curve((-1.15, 0.80), (-0.75, 1.06), (-0.25, 1.20), (0.12, 1.18), (0.42, 1.00), (0.72, 0.78))
    for x in range(at(0.72, 0)[0], at(-1.15, 0)[0]):
        z = (middle - x) / scale
        picture.fill(x, at(0, cabin(z))[1], x + 1, at(0, high(z))[1], (52, 62, 74))
    nose, tail = (Curve(*_rising([place(q, v)[1:] for v in steps(0.0, 5.0, 40)])) for q in (3.0, 0.0))
    for y in range(at(0, 0.84)[1], ground):
        height = (ground - y) / scale
        for x in range(at(nose(height), 0)[0], at(tail(height), 0)[0]):
            z = (middle - x) / scale
            if low(z) < height < high(z):
                picture.fill(x, y, x + 1, y + 1, (150, 34, 40))
    for axle in (FRONT_AXLE, REAR_AXLE):
        x, y = at(axle, WHEEL_RADIUS)
        for radius, colour in ((0.36, BACK), (WHEEL_RADIUS, (44, 46, 52)), (0.22, (168, 172, 180)), (0.05, BACK)):
            _disc(picture, x, y, int(radius * scale), colour)
    _measure(picture, at(2.03, 0)[0], at(-2.015, 0)[0], ground + 84, "4.04 M")
    _measure(picture, at(FRONT_AXLE, 0)[0], at(REAR_AXLE, 0)[0], ground + 36, "2.38 M")
    picture.text(40, 126, "HEIGHT 1.21 M", 3, PALE)
    picture.text(WIDTH - 40 - 12 * 18, 126, "WIDTH 1.78 M", 3, PALE)
    return picture.png()


def _rising(points):
    """Points in rising order of their first value, each value once."""
    kept = []
    for point in sorted(points):
        if not kept or point[0] > kept[-1][0] + 0.01:
            kept.append(point)
    return kept


def _measure(picture, left, right, y, text):
    """A line with end marks, and its length in its middle."""
    picture.fill(left, y, right, y + 2, GOLD)
    for x in (left, right):
        picture.fill(x - 1, y - 10, x + 1, y + 12, GOLD)
    width = 18 * len(text)
    start = (left + right - width) // 2
    picture.fill(start - 14, y - 12, start + width + 10, y + 14, BACK)
    picture.text(start, y - 10, text, 3, PALE)


def logo():
    picture = Picture(480, 120, BACK)
    picture.fill(0, 0, 10, 120, (150, 34, 40))
    picture.text(36, 26, "ROADSTER", 8, PALE)
    picture.text(38, 92, "MADE TO BE CHOSEN", 2, GOLD)
    return picture.png()
