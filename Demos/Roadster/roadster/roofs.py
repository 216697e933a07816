"""Windscreen and roofs."""

import math

from .mesh import Mesh, block, both_sides, grid, shell, tube
from .surface import DOOR_REAR, place, q_at
from .vectors import Curve, add, curve_through, mix, power, smooth, steps

HEADER = 0.14  # z of the upper edge of the windscreen at its corners


class Shape:
    """A roof as a row of arches: `top` gives the height over z, `foot` the half width at the belt line."""

    def __init__(self, top, foot, square):
        self.top, self.foot, self.square = top, foot, square

    def point(self, z, angle, lift=0.0):
        """The point of the arch at z; the angle runs from 0 (left foot) to 180 degrees (right foot)."""
        a = math.radians(angle)
        base = 0.785 + 0.02 * smooth(-0.3, -1.0, z)
        x = (self.foot(z) + lift) * power(math.cos(a), 2.0 / self.square)
        y = base + (self.top(z) - base + lift) * power(math.sin(a), 2.0 / self.square)
        bow = 0.055 * (1.0 - (x / 0.60) ** 2) * smooth(-0.35, HEADER, z)
        return (x, y, z + bow)

    def rows(self, zs, low, high, count=20, lift=0.0):
        rows = []
        for z in zs:
            a = low(z) if callable(low) else low
            b = high(z) if callable(high) else high
            rows.append([self.point(z, angle, lift) for angle in steps(b, a, count)])
        return rows

    def sheet(self, zs, low, high, count=20, thickness=0.02, lift=0.0):
        return shell(self.rows(zs, low, high, count, lift), thickness).facing((0.0, 1.0, 0.0))


SOFT = Shape(Curve((-1.00, 0.835), (-0.80, 0.965), (-0.55, 1.105), (-0.25, 1.172), (HEADER, 1.158)),
             Curve((-1.00, 0.668), (-0.5, 0.705), (0.0, 0.695), (HEADER, 0.690)), 2.7)
HARD = Shape(Curve((-1.02, 0.832), (-0.86, 0.925), (-0.62, 1.070), (-0.30, 1.170), (HEADER, 1.160)),
             Curve((-1.02, 0.676), (-0.5, 0.708), (0.0, 0.698), (HEADER, 0.692)), 2.9)
RAIL = 43.0  # angle of the roof rail above the side windows


def pillar(front, back):
    """The lower limit of a roof: the rail in front, the belt line behind."""
    return lambda z: RAIL * smooth(back, front, z)


def screen_rows(inset=0.0):
    base, head = screen_base(24), screen_head(24)
    rows = []
    for t in steps(inset, 1.0 - inset, 8):
        row = []
        for p, q in zip(base, head):
            bulge = 0.022 * math.sin(math.pi * t)
            x, y, z = mix(p, q, t)
            row.append((x * (1.0 - inset), y, z + bulge))
        rows.append(row)
    return rows


def screen_base(count):
    points = []
    corner = place(q_at(0.575), 5.0)
    for s in steps(1.0, -1.0, count):
        bow = 1.0 - s * s
        points.append((0.685 * s, corner[1] + 0.012 + 0.040 * bow, 0.565 + 0.14 * bow))
    return points


def screen_head(count):
    return [SOFT.point(HEADER, angle, -0.012) for angle in steps(RAIL, 180.0 - RAIL, count)]


def windscreen():
    return grid(screen_rows(0.012)).facing((0.0, 0.3, 1.0))


def windscreen_frame():
    base, head = screen_base(24), screen_head(24)
    result = tube(head, 0.017, 10)
    pillars = [mix(base[0], head[0], t) for t in steps(-0.04, 1.02, 12)]
    pillars = [(x, y, z + 0.022 * math.sin(math.pi * min(1.0, max(0.0, t)))) for (x, y, z), t in
               zip(pillars, steps(-0.04, 1.02, 12))]
    return result.join(both_sides(tube(pillars, lambda t: 0.024 - 0.007 * t, 12)))


def screen_seal():
    return tube(screen_base(24), 0.012, 8)


def wipers():
    result = Mesh()
    rows = screen_rows()
    for start, tip in ((20, 8), (10, 1)):
        a, b = rows[0][start], mix(rows[2][tip], rows[3][tip], 0.3)
        a, b = add(a, (0.0, 0.012, 0.018)), add(b, (0.0, 0.012, 0.014))
        middle = add(mix(a, b, 0.5), (0.0, 0.014, 0.020))
        result.join(tube(curve_through([a, middle, b], 10), 0.005, 6))
    return result


def mirror_inside():
    result = block((0.20, 0.055, 0.024), 0.025, 0.008, (0.0, 1.085, 0.125))
    return result.join(tube([(0.0, 1.10, 0.135), (0.0, 1.135, 0.165)], 0.006, 8))


def soft_top():
    """Canvas over hoops, with a glass rear window left open."""
    limit = pillar(-0.30, -0.44)
    result = SOFT.sheet(steps(HEADER, -0.60, 18), limit, lambda z: 180.0 - limit(z), 40, 0.014)
    side = SOFT.sheet(steps(-0.60, -0.86, 6), 0.0, 52.0, 12, 0.014)
    result.join(both_sides(side))
    return result.join(SOFT.sheet(steps(-0.86, -1.00, 4), 0.0, 180.0, 40, 0.014))


def soft_top_window():
    return grid(SOFT.rows(steps(-0.598, -0.862, 6), 51.6, 128.4, 20, -0.004)).facing((0.0, 1.0, 0.0))


def soft_top_seams():
    result = Mesh()
    for z in (-0.06, -0.34):
        line = [SOFT.point(z, a, 0.003) for a in steps(RAIL + 3.0, 177.0 - RAIL, 40)]
        result.join(tube(line, 0.006, 6))
    return result


def folded_top():
    """The soft top lying folded behind the seats."""
    result = Mesh()
    for k, (y, z, radius) in enumerate(((0.822, -0.70, 0.045), (0.830, -0.79, 0.050), (0.826, -0.88, 0.045))):
        line = [(x, y - 0.05 * abs(x / 0.6) ** 3, z - 0.06 * abs(x / 0.6) ** 2) for x in steps(0.60, -0.60, 24)]
        result.join(tube(line, lambda t, r=radius: r * min(1.0, 0.35 + 6.0 * t, 0.35 + 6.0 * (1.0 - t)), 14))
    return result


SUN_FRONT, SUN_BACK, SUN_EDGE = -0.03, -0.36, 62.0
WINDOW_FRONT, WINDOW_BACK, WINDOW_EDGE = -0.50, -0.90, 50.0


def hard_top():
    """A solid shell with openings for the roof panel and the rear window."""
    limit = pillar(-0.30, -0.52)

    def strip(front, back, count):
        return HARD.sheet(steps(front, back, count), limit, lambda z: 180.0 - limit(z), 40)

    result = strip(HEADER, SUN_FRONT, 5).join(strip(SUN_BACK, WINDOW_FRONT, 6))
    result.join(both_sides(HARD.sheet(steps(SUN_FRONT, SUN_BACK, 8), limit, SUN_EDGE, 10)))
    result.join(both_sides(HARD.sheet(steps(WINDOW_FRONT, WINDOW_BACK, 10), limit, WINDOW_EDGE, 14)))
    return result.join(strip(WINDOW_BACK, -1.02, 4))


def hard_top_window():
    zs = steps(WINDOW_FRONT + 0.002, WINDOW_BACK - 0.002, 10)
    return grid(HARD.rows(zs, WINDOW_EDGE - 0.4, 180.4 - WINDOW_EDGE, 24, -0.005)).facing((0.0, 1.0, 0.0))


def roof_panel():
    return HARD.sheet(steps(SUN_FRONT - 0.003, SUN_BACK + 0.003, 8), SUN_EDGE + 0.4, 179.6 - SUN_EDGE, 24, 0.02)


def targa_bar():
    """A broad hoop with a rear window behind it."""
    zs = steps(-0.40, -0.60, 5)
    return HARD.sheet(zs, 0.0, 180.0, 60, 0.04)


def targa_window():
    return grid(HARD.rows(steps(-0.60, -0.97, 10), 4.0, 176.0, 40, -0.008)).facing((0.0, 1.0, 0.0))


def targa_panel():
    return HARD.sheet(steps(HEADER, -0.396, 12), RAIL, 180.0 - RAIL, 30, 0.02)


def side_window():
    """The left window, raised."""
    rows = []
    for z in steps(0.48, DOOR_REAR + 0.02, 16):
        foot = place(q_at(z), 5.0)
        head = HARD.point(min(z, HEADER), RAIL - 1.0, -0.006)
        front = (z - HEADER) / (0.575 - HEADER) if z > HEADER else 0.0
        base = (0.685, 0.785, z)
        head = mix(head, base, front)
        rows.append([mix((foot[0] - 0.012, foot[1] - 0.01, z), (head[0], head[1], z), s) for s in steps(0.0, 1.0, 6)])
    return grid(rows).facing((1.0, 0.0, 0.0))


def roll_hoops():
    """A bar behind each seat."""
    result = Mesh()
    for x in (0.36, -0.36):
        line = [(x + 0.155 * c, 0.78 + 0.225 * s, -0.64) for c, s in
                ((power(math.cos(a), 0.6), power(math.sin(a), 0.6)) for a in steps(0.0, math.pi, 28))]
        result.join(tube(line, 0.019, 12))
    return result


def speedster_humps():
    """A cover with two streamlined head fairings."""
    rows = []
    for z in steps(-0.56, -1.00, 18):
        edge = place(q_at(z), 5.0)
        t = (-0.56 - z) / 0.44
        row = []
        for s in steps(1.0, -1.0, 56):
            x = (edge[0] - 0.004) * s
            deck = edge[1] + 0.030 * (1.0 - s * s) + 0.004
            hump = 0.145 * math.exp(-((abs(x) - 0.36) / (0.135 - 0.03 * t)) ** 2) * (1.0 - smooth(0.10, 1.0, t))
            row.append((x, deck + hump, z))
        rows.append(row)
    return shell(rows, 0.05).facing((0.0, 1.0, 0.0))


def speedster_screen():
    """A low deflector instead of the hoops."""
    rows = []
    for t in steps(0.0, 1.0, 4):
        rows.append([(0.60 * s, 0.80 + 0.03 * (1.0 - s * s) + 0.10 * t, -0.56 - 0.05 * t)
                     for s in steps(1.0, -1.0, 20)])
    return grid(rows).facing((0.0, 0.0, 1.0))
