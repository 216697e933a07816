"""Points, quaternions and curves. A point is a tuple of three floats in metres: x left, y up, z forward."""

import math


def add(a, b):
    return (a[0] + b[0], a[1] + b[1], a[2] + b[2])


def sub(a, b):
    return (a[0] - b[0], a[1] - b[1], a[2] - b[2])


def scale(a, factor):
    return (a[0] * factor, a[1] * factor, a[2] * factor)


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def length(a):
    return math.sqrt(dot(a, a))


def unit(a, fallback=(0.0, 1.0, 0.0)):
    size = length(a)
    return scale(a, 1.0 / size) if size > 1e-12 else fallback


def mix(a, b, t):
    """The point (or number) at t between a and b."""
    if isinstance(a, tuple):
        return tuple(p + (q - p) * t for p, q in zip(a, b))
    return a + (b - a) * t


def steps(first, last, count):
    """`count` intervals from first to last: count + 1 evenly spaced numbers."""
    return [first + (last - first) * i / count for i in range(count + 1)]


def smooth(edge0, edge1, value):
    """0 below edge0, 1 above edge1, a smooth ramp between them."""
    t = min(1.0, max(0.0, (value - edge0) / (edge1 - edge0)))
    return t * t * (3.0 - 2.0 * t)


def turn(axis, degrees):
    """The quaternion (x, y, z, w) of a turn about an axis."""
    half = math.radians(degrees) / 2.0
    x, y, z = scale(unit(axis), math.sin(half))
    return (x, y, z, math.cos(half))


def turn_after(second, first):
    """The quaternion of the turn `first` followed by the turn `second`."""
    x1, y1, z1, w1 = second
    x2, y2, z2, w2 = first
    return (w1 * x2 + x1 * w2 + y1 * z2 - z1 * y2,
            w1 * y2 - x1 * z2 + y1 * w2 + z1 * x2,
            w1 * z2 + x1 * y2 - y1 * x2 + z1 * w2,
            w1 * w2 - x1 * x2 - y1 * y2 - z1 * z2)


def turned(point, quaternion):
    axis, w = quaternion[:3], quaternion[3]
    t = scale(cross(axis, point), 2.0)
    return add(add(point, scale(t, w)), cross(axis, t))


def aim(eye, target):
    """The turn that makes a camera (looking along -z, up +y) at `eye` look at `target`."""
    back = unit(sub(eye, target))
    right = unit(cross((0.0, 1.0, 0.0), back), (1.0, 0.0, 0.0))
    up = cross(back, right)
    return from_axes(right, up, back)


def from_axes(x, y, z):
    """The quaternion that takes the unit axes to three orthonormal vectors."""
    trace = x[0] + y[1] + z[2]
    if trace > 0.0:
        s = 2.0 * math.sqrt(trace + 1.0)
        return ((y[2] - z[1]) / s, (z[0] - x[2]) / s, (x[1] - y[0]) / s, s / 4.0)
    if x[0] > y[1] and x[0] > z[2]:
        s = 2.0 * math.sqrt(1.0 + x[0] - y[1] - z[2])
        return (s / 4.0, (y[0] + x[1]) / s, (z[0] + x[2]) / s, (y[2] - z[1]) / s)
    if y[1] > z[2]:
        s = 2.0 * math.sqrt(1.0 + y[1] - x[0] - z[2])
        return ((y[0] + x[1]) / s, s / 4.0, (z[1] + y[2]) / s, (z[0] - x[2]) / s)
    s = 2.0 * math.sqrt(1.0 + z[2] - x[0] - y[1])
    return ((z[0] + x[2]) / s, (z[1] + y[2]) / s, s / 4.0, (x[1] - y[0]) / s)


class Curve:
    """A natural cubic spline through (position, value) pairs; constant beyond its ends."""

    def __init__(self, *pairs):
        self.x = [p[0] for p in pairs]
        self.y = [p[1] for p in pairs]
        self.m = self._second_derivatives()

    def _second_derivatives(self):
        n = len(self.x)
        m, upper, right = [0.0] * n, [0.0] * n, [0.0] * n
        for i in range(1, n - 1):
            h0, h1 = self.x[i] - self.x[i - 1], self.x[i + 1] - self.x[i]
            slope = (self.y[i + 1] - self.y[i]) / h1 - (self.y[i] - self.y[i - 1]) / h0
            pivot = 2.0 * (h0 + h1) - h0 * upper[i - 1]
            upper[i] = h1 / pivot
            right[i] = (6.0 * slope - h0 * right[i - 1]) / pivot
        for i in range(n - 2, 0, -1):
            m[i] = right[i] - upper[i] * m[i + 1]
        return m

    def __call__(self, x):
        if x <= self.x[0]:
            return self.y[0]
        if x >= self.x[-1]:
            return self.y[-1]
        i = next(k for k in range(1, len(self.x)) if x <= self.x[k])
        h = self.x[i] - self.x[i - 1]
        a, b = (self.x[i] - x) / h, (x - self.x[i - 1]) / h
        bend = ((a ** 3 - a) * self.m[i - 1] + (b ** 3 - b) * self.m[i]) * h * h / 6.0
        return a * self.y[i - 1] + b * self.y[i] + bend


def through(points, t):
    """The point at t (0 .. len - 1) of a Catmull-Rom curve through the points."""
    i = min(int(max(t, 0.0)), len(points) - 2)
    f = t - i
    p1, p2 = points[i], points[i + 1]
    p0 = points[i - 1] if i > 0 else mix(p2, p1, 2.0)
    p3 = points[i + 2] if i + 2 < len(points) else mix(p1, p2, 2.0)
    c0 = ((-f + 2.0) * f - 1.0) * f / 2.0
    c1 = ((3.0 * f - 5.0) * f * f + 2.0) / 2.0
    c2 = ((-3.0 * f + 4.0) * f + 1.0) * f / 2.0
    c3 = (f - 1.0) * f * f / 2.0
    return tuple(c0 * a + c1 * b + c2 * c + c3 * d for a, b, c, d in zip(p0, p1, p2, p3))


def curve_through(points, count):
    """`count` + 1 points along the Catmull-Rom curve through the points."""
    return [through(points, t) for t in steps(0.0, len(points) - 1.0, count)]


def power(value, exponent):
    """A power that keeps the sign: the building brick of superellipses."""
    return math.copysign(abs(value) ** exponent, value)
