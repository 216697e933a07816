"""The one surface that all body panels are cut from.

It runs round the car as rows stacked from the sill to the shoulder. A place on its left half is (q, v):
q goes round the car (0 tail centre, 1 rear corner, 2 front corner, 3 nose centre; 1 to 2 is linear along z),
v goes up (0 lower edge, 2 widest line, 4 shoulder, 5 inner edge, where bonnet, cockpit and boot begin)."""

import math

from .mesh import grid, shell
from .vectors import Curve, add, cross, scale, steps, sub, through, unit

FRONT_AXLE, REAR_AXLE = 1.20, -1.18
WHEEL_RADIUS = 0.318
ARCH_RADIUS = 0.368
SIDE_START, SIDE_END = -1.05, 1.05
COWL, DOOR_FRONT, DOOR_REAR, DECK = 0.70, 0.60, -0.46, -1.00

_STATIONS = (-2.0, -1.18, -0.4, 0.4, 1.2, 2.0)


def _row(widths, heights, front, rear):
    return Curve(*zip(_STATIONS, widths)), Curve(*zip(_STATIONS, heights)), front, rear


_ROWS = (
    _row((.76, .78, .790, .790, .78, .74), (.235, .200, .165, .165, .175, .165), 1.88, -1.86),
    _row((.82, .845, .822, .822, .84, .80), (.300, .270, .235, .235, .245, .225), 1.98, -1.94),
    _row((.85, .875, .838, .838, .87, .83), (.445, .440, .425, .420, .415, .370), 2.03, -2.01),
    _row((.84, .872, .832, .832, .86, .81), (.625, .640, .615, .600, .600, .500), 2.00, -2.015),
    _row((.79, .830, .795, .790, .795, .755), (.765, .785, .735, .725, .738, .595), 1.90, -1.975),
    _row((.69, .720, .715, .705, .670, .640), (.815, .822, .768, .757, .766, .640), 1.76, -1.88),
)


def _along(q, front, rear):
    """(z, closing factor 1 .. 0 of the width) at q for a row that ends at front and rear."""
    if q > 2.0:
        angle = (q - 2.0) * math.pi / 2.0
        return (SIDE_END + (front - SIDE_END) * max(math.sin(angle), 0.0) ** 0.80,
                max(math.cos(angle), 0.0) ** 0.72)
    if q < 1.0:
        angle = (1.0 - q) * math.pi / 2.0
        return (SIDE_START + (rear - SIDE_START) * max(math.sin(angle), 0.0) ** 0.70,
                max(math.cos(angle), 0.0) ** 0.62)
    return SIDE_START + (q - 1.0) * (SIDE_END - SIDE_START), 1.0


def q_at(z):
    """The q of a place on the straight part of the side."""
    return 1.0 + (z - SIDE_START) / (SIDE_END - SIDE_START)


_columns = {}


def _column(q):
    if q not in _columns:
        points = []
        for width, height, front, rear in _ROWS:
            z, closing = _along(q, front, rear)
            points.append((width(z) * closing, height(z), z))
        _columns[q] = points
    return _columns[q]


def place(q, v, lift=0.0):
    """The point at (q, v) of the left half, `lift` metres above the surface. Negative v is not defined."""
    x, y, z = through(_column(q), v)
    for axle in (FRONT_AXLE, REAR_AXLE):  # the flared lips of the wheel arches
        distance = math.hypot(z - axle, y - WHEEL_RADIUS) - ARCH_RADIUS
        x += 0.016 * math.exp(-(distance / 0.055) ** 2) * min(1.0, x / 0.5)
    point = (x, y, z)
    return add(point, scale(normal(q, v), lift)) if lift else point


def normal(q, v):
    """The outward normal at (q, v)."""
    dq = sub(place(min(q + 0.01, 3.0), v), place(max(q - 0.01, 0.0), v))
    dv = sub(place(q, min(v + 0.02, 5.0)), place(q, max(v - 0.02, 0.0)))
    return unit(cross(dv, dq))


def q_on_row(z, v, low, high):
    """The q between low and high where row v reaches z."""
    for _ in range(40):
        middle = (low + high) / 2.0
        if place(middle, v)[2] < z:
            low = middle
        else:
            high = middle
    return (low + high) / 2.0


def arch_height(q, axle):
    """The v at which column q leaves the wheel arch upwards; 0 outside the arch."""
    def inside(v):
        _, y, z = place(q, v)
        reach = abs(z - axle) if y < WHEEL_RADIUS else math.hypot(z - axle, y - WHEEL_RADIUS)
        return reach < ARCH_RADIUS

    count = 40
    for i in range(count):
        high = 4.0 - 4.0 * i / count
        low = high - 4.0 / count
        if inside(low):
            for _ in range(24):
                middle = (low + high) / 2.0
                low, high = (middle, high) if inside(middle) else (low, middle)
            return high
    return 0.0


def arch_columns(axle, count=36):
    """The q values over a wheel arch, evenly spaced along its edge."""
    low, high = (0.4, 1.6) if axle < 0.0 else (1.5, 2.7)
    angles = steps(0.995 * math.pi, 0.005 * math.pi, count)  # just inside, so that every column is cut
    return [q_on_row(axle + ARCH_RADIUS * math.cos(a), 1.4, low, high) for a in angles]


def _value(limit, q):
    return limit(q) if callable(limit) else limit


def rows_between(columns, bottom, top, count, lift=0.0):
    """Rows of points over the columns, from v `bottom` to v `top` (numbers or functions of q)."""
    rows = []
    for t in steps(0.0, 1.0, count):
        row = []
        for q in columns:
            low, high = _value(bottom, q), _value(top, q)
            row.append(place(q, low + (high - low) * t, lift))
        rows.append(row)
    return [row[::-1] for row in rows]  # from the nose backwards: right-handed on the left side


def panel(columns, bottom, top, count=10, thickness=0.018, hem=True):
    """A panel of the left side with folded edges."""
    return shell(rows_between(columns, bottom, top, count), thickness, hem)


def end_panel(columns, bottom, top, count=10, thickness=0.018):
    """A panel that runs from the left side round the nose or the tail to the right side.

    The columns are given from the left to the middle of the car."""
    half = [[place(q, low + (high - low) * t) for q, low, high in
             ((q, _value(bottom, q), _value(top, q)) for q in columns)] for t in steps(0.0, 1.0, count)]
    rows = [row + [(-x, y, z) for x, y, z in reversed(row[:-1])] for row in half]
    if columns[-1] > columns[0]:
        rows = [row[::-1] for row in rows]
    return shell(rows, thickness)


def patch(q, v, size, rings=6, segments=40, lift=lambda r: 0.004, tilt=0.0, square=1.0):
    """An elliptic patch on the left side; `size` are its half axes in metres, `lift` a function of 0 .. 1."""
    along = sub(place(q + 0.01, v), place(q - 0.01, v))
    upward = sub(place(q, v + 0.02), place(q, v - 0.02))
    per_q = 0.02 / max(1e-6, math.sqrt(sum(c * c for c in along)))
    per_v = 0.04 / max(1e-6, math.sqrt(sum(c * c for c in upward)))
    rows = []
    for r in steps(1.0, 0.0, rings):
        row = []
        for a in steps(0.0, -2.0 * math.pi, segments):
            c, s = math.cos(a), math.sin(a)
            c = math.copysign(abs(c) ** square, c)
            s = math.copysign(abs(s) ** square, s)
            dx, dy = c * size[0] * r, s * size[1] * r
            dx, dy = dx * math.cos(tilt) - dy * math.sin(tilt), dx * math.sin(tilt) + dy * math.cos(tilt)
            row.append(place(q + dx * per_q, v + dy * per_v, lift(r)))
        rows.append(row)
    return grid(rows)


def patch_edge(q, v, size, segments=40, lift=0.004, tilt=0.0, square=1.0):
    """The rim of such a patch as a closed line."""
    mesh = patch(q, v, size, 1, segments, lambda r: lift, tilt, square)
    return mesh.points[:segments]


def edge_line(columns, v=5.0, lift=0.0):
    """The line of row v over the columns."""
    return [place(q, v, lift) for q in columns]


def mirrored_line(points):
    return [(-x, y, z) for x, y, z in points]
