"""One wheel, its axle along x, its face towards +x: tyre, brake and five rims."""

import math

from .mesh import Mesh, grid, lathe, loft, outline, prism, tube
from .surface import WHEEL_RADIUS
from .vectors import Curve, steps, turn

RIM = 0.226  # radius of the bead seat


def tyre():
    r = WHEEL_RADIUS
    side = [(RIM - 0.002, -0.092), (RIM + 0.012, -0.104), (RIM + 0.040, -0.112),
             (r - 0.030, -0.110), (r - 0.010, -0.099), (r - 0.003, -0.088)]
    tread = []
    for x in (-0.060, -0.022, 0.022, 0.060):  # four grooves
        tread += [(r, x - 0.005), (r - 0.007, x - 0.003), (r - 0.007, x + 0.003), (r, x + 0.005)]
    other = [(radius, -x) for radius, x in reversed(side)]
    return lathe(side + tread + other, 72)


def tyre_letters():
    """A thin ring on the side wall."""
    r = RIM + 0.034
    return lathe([(r + 0.003, 0.1120), (r, 0.1132), (r - 0.003, 0.1116)], 72)


def brake_disc():
    disc = lathe([(0.0, -0.012), (0.158, -0.012), (0.158, 0.010), (0.098, 0.010), (0.094, 0.030), (0.0, 0.030)], 56)
    return disc.moved(-0.012, 0.0, 0.0)


def caliper():
    rings = []
    for a in steps(math.radians(150.0), math.radians(212.0), 10):
        rings.append([(x - 0.010, math.sin(a) * (0.142 + r), math.cos(a) * (0.142 + r))
                      for r, x in outline(0.066, 0.082, 0.012, 3)])
    return loft(rings).outside_out()


def barrel(lip=0.012):
    """The rim bed: a polished lip and the well behind it."""
    return lathe([(RIM - 0.002, 0.086), (RIM + 0.004, 0.094), (RIM + 0.003, 0.101), (RIM - 0.003, 0.102),
                  (RIM - lip, 0.094), (RIM - lip - 0.006, 0.070), (RIM - 0.024, 0.030), (RIM - 0.026, -0.090),
                  (RIM - 0.002, -0.092)], 72)


def spoke(stations, bow=0.3):
    """A spoke along +y through (radius, sideways, face x, width, depth) stations."""
    curves = [Curve(*[(s[0], s[k]) for s in stations]) for k in range(1, 5)]
    rings = []
    for r in steps(stations[0][0], stations[-1][0], 9):
        sideways, face, width, depth = (curve(r) for curve in curves)
        ring = []
        for a, b in outline(width, depth, min(width, depth) * 0.28, 3):
            crown = bow * 0.01 * (1.0 - (2.0 * a / width) ** 2) if b > 0.0 else 0.0
            ring.append((face - depth / 2.0 + b + crown, r, sideways + a))
        rings.append(ring)
    return loft(rings)


def around(mesh, count, start=0.0):
    result = Mesh()
    for k in range(count):
        result.join(mesh.turned(turn((1.0, 0.0, 0.0), start + 360.0 * k / count)))
    return result


def hub(face, radius=0.062):
    return lathe([(radius + 0.004, face - 0.05), (radius + 0.002, face - 0.006), (radius - 0.004, face), (0.036, face),
                  (0.033, face - 0.004), (0.0, face - 0.004)], 40)


def cap(face):
    return lathe([(0.030, face - 0.006), (0.030, face + 0.002), (0.027, face + 0.005), (0.012, face + 0.007),
                  (0.0, face + 0.007)], 32)


def bolts(face, count=5, circle=0.049):
    hexagon = [(0.0075 * math.cos(a), 0.0075 * math.sin(a)) for a in (math.pi * k / 3.0 for k in range(6))]
    bolt = prism(hexagon, -0.012, 0.007, 0.0015).turned(turn((0.0, 1.0, 0.0), 90.0)).moved(face, circle, 0.0)
    return around(bolt, count)


def five_spoke():
    arm = spoke([(0.045, 0.0, 0.066, 0.070, 0.036), (0.10, 0.0, 0.064, 0.054, 0.032), (0.16, 0.0, 0.074, 0.056, 0.028),
                 (0.214, 0.0, 0.090, 0.078, 0.024)], 0.5)
    return Mesh().join(around(arm, 5), hub(0.070))


def turbine():
    blade = spoke([(0.045, -0.012, 0.070, 0.020, 0.040), (0.10, 0.002, 0.078, 0.026, 0.032),
                   (0.16, 0.026, 0.084, 0.034, 0.024), (0.214, 0.060, 0.090, 0.042, 0.016)], 0.2)
    return Mesh().join(around(blade, 14), hub(0.074))


def y_spoke():
    stem = spoke([(0.045, 0.0, 0.072, 0.030, 0.036), (0.13, 0.0, 0.074, 0.022, 0.030)], 0.1)
    left, right = (spoke([(0.115, 0.0, 0.074, 0.018, 0.028), (0.16, side * 0.014, 0.080, 0.016, 0.024),
                          (0.214, side * 0.038, 0.091, 0.018, 0.020)], 0.1) for side in (1.0, -1.0))
    return Mesh().join(around(Mesh().join(stem, left, right), 9), hub(0.074))


def wire_spokes():
    """Seventy-two crossed wires between hub and rim."""
    result = Mesh()
    for k in range(36):
        a = 2.0 * math.pi * k / 36.0
        sweep = 0.55 if k % 2 else -0.55
        for start_x, end_x, start_r in ((0.082, 0.050, 0.030), (0.010, 0.030, 0.040)):
            b = a + (sweep if start_x > 0.05 else -sweep)
            path = [(start_x, start_r * math.cos(b), start_r * math.sin(b)),
                    (end_x, 0.206 * math.cos(a), 0.206 * math.sin(a))]
            result.join(tube(path, 0.0021, 5, caps=False))
    return result


def wire_hub():
    result = lathe([(0.044, -0.02), (0.042, 0.020), (0.034, 0.030), (0.034, 0.088), (0.028, 0.096), (0.020, 0.104),
                    (0.0, 0.108)], 32)
    ear = spoke([(0.0, 0.0, 0.106, 0.022, 0.012), (0.03, 0.0, 0.108,
                0.016, 0.010), (0.056, 0.0, 0.104, 0.020, 0.008)], 0.0)
    return result.join(around(ear, 2))


def dish():
    """A flat cover with ten round ports, in the manner of the salt-lake racers."""
    ports = 10
    profile = Curve((0.036, 0.088), (0.07, 0.084), (0.10, 0.078), (0.16, 0.082), (0.215, 0.094))
    result = lathe([(RIM - 0.014, 0.094), (0.202, profile(0.202)), (0.186, profile(0.186))], 72)
    inner = lathe([(0.130, profile(0.130)), (0.10, profile(0.10)), (0.07, profile(0.07)),
                  (0.036, 0.088), (0.033, 0.086), (0.0, 0.090)], 72)
    result.join(inner)
    half = math.pi / ports
    for k in range(ports):
        centre = 2.0 * half * k
        result.join(_port(centre, half, profile))
    return result


def _port(centre, half, profile):
    """A ring sector between two radii with a round hole in it."""
    outer, hole, wall = [], [], []
    count = 40
    for i in range(count + 1):
        t = 2.0 * math.pi * i / count
        c, s = math.cos(t), math.sin(t)
        grow = 1.0 / max(abs(c), abs(s))
        r, a = 0.158 + 0.028 * c * grow, centre + half * s * grow
        outer.append((profile(r), r * math.cos(a), r * math.sin(a)))
        r, a = 0.158 + 0.019 * c, centre + 0.019 * s / 0.158
        x = profile(r)
        hole.append((x, r * math.cos(a), r * math.sin(a)))
        wall.append((x - 0.014, r * math.cos(a), r * math.sin(a)))
    result = grid([outer, hole]).facing((1.0, 0.0, 0.0))
    return result.join(grid([hole, wall]))
