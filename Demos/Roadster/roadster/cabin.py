"""Everything inside: tub, seats, dashboard, wheels to steer with, door trim."""

import math

from .mesh import Mesh, block, both_sides, cushion, grid, lathe, loft, outline, prism, ribbon, shell, tube
from .surface import DOOR_FRONT, DOOR_REAR, edge_line, place, q_at
from .vectors import add, curve_through, mix, power, steps, turn

FLOOR = 0.20


def tub():
    """Floor, walls and bulkheads of the cockpit."""
    profile = [(0.70, 0.40), (0.69, 0.24), (0.66, FLOOR), (0.0, FLOOR)]
    line = [(x, y) for x, y in profile] + [(-x, y) for x, y in profile[-2::-1]]
    result = grid([[(x, y, z) for x, y in line] for z in (0.95, 0.3, -0.3, -0.60)]).facing((0.0, 1.0, 0.0))
    back = [[(0.70 * s, y, z) for s in steps(1.0, -1.0, 8)] for y, z in ((FLOOR, -0.60), (0.55, -0.62), (0.795, -0.62))]
    front = [[(0.69 * s, y, z) for s in steps(1.0, -1.0, 8)] for y, z in ((FLOOR, 0.95), (0.45, 0.90), (0.74, 0.70))]
    result.join(grid(back).facing((0.0, 0.0, 1.0)), grid(front).facing((0.0, 0.0, -1.0)))
    for z0, z1 in ((DOOR_FRONT, 0.90), (-0.60, DOOR_REAR + 0.02)):
        wall = grid([[(0.685, y, z) for z in (z0, z1)] for y in (FLOOR, 0.74)]).facing((-1.0, 0.0, 0.0))
        result.join(both_sides(wall))
    return result


def door_sills():
    sill = block((0.14, 0.10, 1.10), 0.03, 0.01, (0.745, 0.30, 0.07))
    return both_sides(sill)


def carpets():
    mat = block((0.42, 0.012, 0.62), 0.005, 0.003, (0.36, FLOOR + 0.008, 0.42))
    return both_sides(mat)


def tunnel():
    body = prism([(-0.6, 0.20), (0.86, 0.20), (0.86, 0.40), (0.55, 0.46), (0.30, 0.415), (-0.2, 0.42), (-0.6, 0.46)],
                 -0.115, 0.115, 0.012)
    return body.turned(turn((0.0, 1.0, 0.0), -90.0))


def gear_lever():
    result = tube(curve_through([(0.0, 0.42, 0.22), (0.0, 0.48, 0.21), (0.0, 0.535, 0.185)], 8), 0.008, 10)
    boot = lathe([(0.052, 0.408), (0.040, 0.430), (0.018, 0.460), (0.010, 0.475)], 24)
    return result, boot.turned(turn((0.0, 0.0, 1.0), 90.0)).moved(0.0, 0.0, 0.22), \
        cushion((0.044, 0.048, 0.044), 0.9, (0.0, 0.550, 0.180), 20, 12)


def hand_brake():
    return tube([(0.05, 0.43, -0.06), (0.05, 0.46, 0.02), (0.05, 0.50, 0.11)], lambda t: 0.011 + 0.006 * (t > 0.4), 12)


def pedals():
    result = Mesh()
    for x in (0.28, 0.37, 0.48):
        result.join(block((0.055, 0.075, 0.012), 0.008, 0.003).turned(
            turn((1.0, 0.0, 0.0), -35.0)).moved(x, 0.31, 0.80))
    return result


def dashboard():
    """A padded board with a cowl over the instruments (left-hand drive)."""
    rings = []
    for x in steps(-0.685, 0.685, 44):
        hood = math.exp(-((x - 0.36) / 0.17) ** 4)
        bow = 1.0 - (x / 0.69) ** 2
        profile = [(0.66, 0.560), (0.66, 0.755 + 0.03 * bow), (0.56, 0.775 + 0.035 * bow),
                   (0.46, 0.770 + 0.035 * bow + 0.042 * hood),
                   (0.385 - 0.025 * hood, 0.755 + 0.03 * bow + 0.045 * hood),
                   (0.375 - 0.02 * hood, 0.738 + 0.03 * bow + 0.04 * hood),
                   (0.405, 0.725 + 0.02 * bow + 0.025 * hood), (0.425, 0.640), (0.46, 0.580)]
        rings.append([(x, y, z) for z, y in profile])
    return loft(rings).outside_out()


def dash_trim():
    """The decorative strip across the board."""
    rows = []
    for y, z in ((0.640, 0.418), (0.668, 0.411), (0.698, 0.405)):
        rows.append([(x, y, z - 0.004) for x in steps(0.66, -0.66, 30)])
    return shell(rows, 0.01).facing((0.0, 0.0, -1.0))


def instruments():
    """Dials: (dark faces, bright rings, needles)."""
    faces, rings, needles = Mesh(), Mesh(), Mesh()
    for x, y, radius in ((0.435, 0.735, 0.050), (0.290, 0.735, 0.050), (0.05, 0.672, 0.030), (-0.05, 0.672, 0.030)):
        z = 0.396 if radius > 0.04 else 0.398
        disc = lathe([(radius, 0.0), (0.0, 0.002)], 32).turned(turn((0.0, 1.0, 0.0), 90.0)).moved(x, y, z)
        faces.join(disc.facing((0.0, 0.0, -1.0)))
        circle = [(x + radius * math.cos(a), y + radius * math.sin(a), z)
                  for a in steps(0.0, 2.0 * math.pi, 32)[:-1]]
        rings.join(tube(circle, 0.005, 8, closed=True))
        needles.join(tube([(x, y, z - 0.005), (x + radius * 0.5, y + radius * 0.6, z - 0.005)], 0.0018, 5))
    return faces, rings, needles


def vents():
    faces, rings = Mesh(), Mesh()
    for x in (0.58, 0.17, -0.17, -0.58):
        circle = [(x + 0.036 * math.cos(a), 0.672 + 0.036 * math.sin(a), 0.400)
                  for a in steps(0.0, 2.0 * math.pi, 28)[:-1]]
        rings.join(tube(circle, 0.006, 8, closed=True))
        disc = lathe([(0.034, 0.0), (0.0, 0.0)], 28).turned(turn((0.0, 1.0, 0.0), 90.0)).moved(x, 0.672, 0.402)
        faces.join(disc.facing((0.0, 0.0, -1.0)))
        for dy in (-0.014, 0.0, 0.014):
            faces.join(block((0.062, 0.003, 0.010), 0.001, 0.0, (x, 0.672 + dy, 0.398)))
    return faces, rings


def seat(bolster, width=0.50):
    """A seat facing +z, its middle at x = 0: (cushions, shell)."""
    soft = cushion((width - 0.12, 0.13, 0.50), 0.42, (0.0, 0.335, 0.03))
    for x in (-1.0, 1.0):
        soft.join(cushion((0.12, 0.13 + bolster, 0.50), 0.55, (x * (width - 0.12) / 2.0, 0.345 + bolster * 0.4, 0.02)))
    back = cushion((width - 0.14, 0.56, 0.11), 0.45, (0.0, 0.28, 0.0))
    for x in (-1.0, 1.0):
        back.join(cushion((0.11, 0.50, 0.12 + bolster), 0.55, (x * (width - 0.13) / 2.0, 0.26, 0.035 + bolster * 0.5)))
    soft.join(_leant(back))
    carrier = block((width - 0.08, 0.54, 0.03), 0.10, 0.012, (0.0, 0.28, -0.062))
    hard = _leant(carrier).join(block((width - 0.06, 0.07, 0.46), 0.02, 0.01, (0.0, 0.265, 0.02)))
    return soft, hard


def _leant(mesh):
    return mesh.turned(turn((1.0, 0.0, 0.0), -17.0)).moved(0.0, 0.34, -0.22)


def headrest(size=(0.26, 0.17, 0.09)):
    rest = cushion(size, 0.5, (0.0, 0.655, -0.005))
    posts = Mesh()
    for x in (-0.06, 0.06):
        posts.join(tube([(x, 0.52, -0.01), (x, 0.62, -0.01)], 0.006, 8))
    return _leant(rest), _leant(posts)


def piping(width=0.50):
    """A bead round the middle of the back."""
    loop = [(x, y + 0.28, 0.058) for x, y in outline(width - 0.17, 0.50, 0.09, 5)]
    return _leant(tube(loop, 0.0055, 8, closed=True))


def bucket():
    """A one-piece racing shell with thin pads: (shell, pads, harness)."""
    rows = []
    path = [(0.255, 0.30), (0.235, 0.15), (0.235, -0.05), (0.27, -0.20), (0.40, -0.275), (0.60, -0.335), (0.80, -0.395),
            (0.93, -0.43)]
    wings = (0.05, 0.10, 0.13, 0.15, 0.13, 0.12, 0.16, 0.05)
    widths = (0.24, 0.255, 0.26, 0.26, 0.25, 0.25, 0.20, 0.13)
    for t in steps(0.0, 7.0, 28):
        i = min(6, int(t))
        f = t - i
        ease = f * f * (3.0 - 2.0 * f)
        (y0, z0), (y1, z1) = path[i], path[i + 1]
        y, z = mix(y0, y1, f), mix(z0, z1, f)
        wing, half = mix(wings[i], wings[i + 1], ease), mix(widths[i], widths[i + 1], ease)
        up = min(1.0, max(0.0, (t - 2.0) / 2.0))  # seat turns into back: wings point up, then forward
        row = []
        for s in steps(1.0, -1.0, 24):
            lift = wing * abs(s) ** 4.0
            row.append((half * power(s, 0.9), y + 0.03 + lift * (1.0 - up), z + lift * up))
        rows.append(row)
    hard = shell(rows, 0.02).facing((0.0, 1.0, 0.6))
    soft = Mesh()
    soft.join(cushion((0.34, 0.06, 0.34), 0.5, (0.0, 0.29, 0.04)))
    soft.join(_leant(cushion((0.32, 0.34, 0.05), 0.5, (0.0, 0.20, -0.005))))
    soft.join(_leant(cushion((0.22, 0.12, 0.05), 0.5, (0.0, 0.52, -0.005))))
    belts = Mesh()
    for x in (-0.09, 0.09):
        line = [(x, 0.30, 0.12), (x, 0.32, -0.08), (x, 0.44, -0.215), (x, 0.62, -0.28), (x, 0.80, -0.335)]
        line = curve_through(line, 16)
        left = [(p[0] - 0.022, p[1] + 0.012, p[2] + 0.012) for p in line]
        right = [(p[0] + 0.022, p[1] + 0.012, p[2] + 0.012) for p in line]
        belts.join(ribbon(left, right).facing((0.0, 1.0, 1.0)))
    return hard, soft, belts


def steering_ring(radius=0.175, thickness=0.014, flat=False):
    """The rim of a steering wheel in the xy plane."""
    points = []
    for a in steps(0.0, 2.0 * math.pi, 56)[:-1]:
        x, y = radius * math.cos(a), radius * math.sin(a)
        points.append((x, max(y, -0.72 * radius) if flat else y, 0.0))
    return tube(points, thickness, 12, closed=True)


def steering_arms(angles, radius=0.168, width=0.030, drilled=False):
    result = lathe([(0.034, -0.012), (0.034, 0.006), (0.030, 0.012), (0.0, 0.016)], 28)
    result = result.turned(turn((0.0, 1.0, 0.0), 90.0))
    for angle in angles:
        arm = prism(outline(radius, width, 0.008, 3, (radius / 2.0, 0.0)), -0.004, 0.004, 0.0015)
        arm = arm.turned(turn((0.0, 0.0, 1.0), angle))
        result.join(arm)
    return result


def horn(size=0.05):
    disc = lathe([(size, -0.01), (size, 0.014), (size * 0.9, 0.021), (0.0, 0.026)], 32)
    return disc.turned(turn((0.0, 1.0, 0.0), 90.0))


def column():
    return tube([(0.36, 0.655, 0.30), (0.36, 0.60, 0.52)], 0.030, 16)


def door_trim():
    """The leather inside of the left door, its top edge and its arm rest."""
    columns = steps(q_at(DOOR_REAR) + 0.012, q_at(DOOR_FRONT) - 0.012, 20)
    outer = edge_line(columns, 5.0)
    rail = [(x - 0.055, y + 0.004, z) for x, y, z in outer]
    low = [(x - 0.10, 0.33, z) for x, _, z in edge_line(columns, 1.2)]
    mid = [(x - 0.075, 0.55, z) for x, _, z in edge_line(columns, 2.0)]
    result = grid([outer, rail]).facing((0.0, 1.0, 0.0))
    inside = grid([rail, [add(mix(p, q, 0.35), (-0.01, 0, 0)) for p, q in zip(rail, mid)], mid, low])
    result.join(inside.facing((-1.0, 0.0, 0.0)))
    skin = [place(q, 1.0) for q in columns]
    result.join(grid([low, skin]).facing((0.0, -1.0, 0.0)))
    for i in (0, -1):
        edge = [outer[i], mid[i], low[i]]
        out = [place(columns[i], 5.0), place(columns[i], 2.5), place(columns[i], 1.05)]
        result.join(grid([edge, out]).facing((0.0, 0.0, 1.0 if i else -1.0)))
    return result


def arm_rest():
    return cushion((0.07, 0.05, 0.42), 0.5, (0.700, 0.545, 0.02))


def door_pull():
    return tube(curve_through([(0.685, 0.66, 0.36), (0.660, 0.665, 0.34),
                (0.660, 0.665, 0.26), (0.685, 0.66, 0.24)], 14), 0.007, 10)
