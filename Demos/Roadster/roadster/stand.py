"""The exhibition stand: floor, plinths, backdrops, sign and barrier. The car stands at y = 0."""

import math

from .mesh import Mesh, block, grid, lathe, outline, prism, tube
from .vectors import mix, steps, turn

GROUND = -0.16   # the hall's floor lies below the plinth's top
RADIUS = 2.65    # of the plinth


def upright(profile, segments=96):
    """A lathe body about the y axis, from (radius, height) pairs."""
    body = lathe([(r, y) for r, y in profile], segments)
    return body.turned(turn((0.0, 0.0, 1.0), 90.0))


def floor():
    size = 7.0
    result = grid([[(-size, GROUND, size), (size, GROUND, size)], [(-size, GROUND, -size), (size, GROUND, -size)]])
    result.uvs = [(0.0, 14.0), (14.0, 14.0), (0.0, 0.0), (14.0, 0.0)]
    return result


def disc():
    return upright([(RADIUS, GROUND), (RADIUS, -0.03), (RADIUS - 0.03, 0.0), (2.2, 0.0), (0.0, 0.0)])


def disc_light():
    """A luminous joint round the disc."""
    return upright([(RADIUS + 0.002, -0.105), (RADIUS + 0.006, -0.10),
                   (RADIUS + 0.006, -0.085), (RADIUS + 0.002, -0.08)])


def disc_ring():
    return upright([(2.42, 0.0005), (2.40, 0.002), (2.38, 0.002), (2.36, 0.0005)])


def timber():
    """A deck of planks."""
    result = Mesh()
    count, width = 22, 2.0 * RADIUS / 22
    for k in range(count):
        x = -RADIUS + width * (k + 0.5)
        reach = math.sqrt(max(0.05, RADIUS ** 2 - x * x))
        plank = block((width - 0.008, 0.04, 2.0 * reach), 0.004, 0.003, (x, -0.02, 0.0))
        result.join(plank)
    return result


def timber_frame():
    return upright([(RADIUS - 0.12, GROUND), (RADIUS - 0.12, -0.042), (0.0, -0.042)])


def grating():
    """A steel frame with bars across."""
    result = Mesh()
    for k in range(41):
        z = -2.55 + 5.1 * k / 40.0
        result.join(block((3.0, 0.03, 0.035), 0.003, 0.002, (0.0, -0.0155, z)))
    for x in (-1.5, -0.75, 0.0, 0.75, 1.5):
        result.join(block((0.06, 0.12, 5.3), 0.005, 0.004, (x, -0.095, 0.0)))
    for z in (-2.64, 2.64):
        result.join(block((3.06, 0.12, 0.06), 0.005, 0.004, (0.0, -0.075, z)))
    return result


def rotunda():
    """A curved wall that flows into the floor."""
    rows = []
    for a in steps(math.radians(205.0), math.radians(335.0), 64):
        row = []
        for t in steps(0.0, 1.0, 20):
            bend = min(1.0, t / 0.35) * math.pi / 2.0
            r = 4.6 + 0.8 * math.sin(bend)
            y = GROUND + 0.8 * (1.0 - math.cos(bend)) + max(0.0, t - 0.35) / 0.65 * 2.6
            row.append((r * math.cos(a), y + 0.002, r * math.sin(a)))
        rows.append(row)
    return grid(rows, (20.0, 6.0)).facing((0.0, 0.0, 1.0))


def fins():
    """Upright timber blades on an arc, each turned a little further."""
    result = Mesh()
    count = 33
    for k in range(count):
        a = math.radians(208.0 + 124.0 * k / (count - 1))
        height = 2.5 + 0.7 * math.sin(math.pi * k / (count - 1.0))
        blade = block((0.30, height, 0.05), 0.008, 0.006, (0.0, GROUND + height / 2.0, 0.0))
        blade = blade.turned(turn((0.0, 1.0, 0.0), 40.0 + 100.0 * k / (count - 1.0)))
        result.join(blade.moved(5.0 * math.cos(a), 0.0, 5.0 * math.sin(a)))
    return result


def light_frames():
    """Portals of light in a row behind the car: (frames, luminous lines)."""
    frames, lines = Mesh(), Mesh()
    for k in range(4):
        w, h, z = 2.4 + 0.55 * k, 2.0 + 0.30 * k, -2.9 - 0.7 * k
        for x in (-w, w):
            frames.join(block((0.10, h, 0.16), 0.012, 0.006, (x, GROUND + h / 2.0, z)))
            lines.join(block((0.024, h - 0.10, 0.02), 0.005, 0.003,
                       (x - math.copysign(0.045, x), GROUND + h / 2.0, z + 0.08)))
        frames.join(block((2.0 * w + 0.10, 0.10, 0.16), 0.012, 0.006, (0.0, GROUND + h + 0.05, z)))
        lines.join(block((2.0 * w - 0.12, 0.024, 0.02), 0.005, 0.003, (0.0, GROUND + h - 0.01, z + 0.08)))
    return frames, lines


def barrier():
    """Posts with a sagging rope round the front: (posts, rope)."""
    posts, ropes = Mesh(), Mesh()
    places = []
    for k in range(7):
        a = math.radians(15.0 + 150.0 * k / 6.0)
        x, z = 3.5 * math.cos(a), 3.5 * math.sin(a)
        places.append((x, z))
        post = upright([(0.15, 0.0), (0.15, 0.012), (0.13, 0.022), (0.022, 0.030), (0.020, 0.86), (0.030, 0.87),
                        (0.030, 0.90), (0.018, 0.92), (0.0, 0.925)], 24)
        posts.join(post.moved(x, GROUND, z))
    for (x0, z0), (x1, z1) in zip(places, places[1:]):
        line = [(mix(x0, x1, t), GROUND + 0.85 - 0.24 * (1.0 - (2.0 * t - 1.0) ** 2), mix(z0, z1, t))
                for t in steps(0.0, 1.0, 16)]
        ropes.join(tube(line, 0.017, 10))
    return posts, ropes


def sign_post():
    """The stand of the sign, at the origin."""
    foot = upright([(0.19, 0.0), (0.19, 0.012), (0.17, 0.020), (0.0, 0.020)], 48)
    return foot.join(tube([(0.0, 0.01, 0.0), (0.0, 0.50, 0.0), (0.0, 0.94, -0.01)], 0.018, 16))


def sign_board():
    """The board, in the xy plane with its middle at the origin."""
    return prism(outline(0.64, 0.44, 0.02), -0.014, 0.0, 0.003)


def sign_face():
    face = grid([[(-0.30, -0.20, 0.001), (0.30, -0.20, 0.001)], [(-0.30, 0.20, 0.001), (0.30, 0.20, 0.001)]])
    face.uvs = [(0.0, 1.0), (1.0, 1.0), (0.0, 0.0), (1.0, 0.0)]
    return face


def bolt():
    """A round-headed bolt looking along +z."""
    head = lathe([(0.010, -0.004), (0.010, 0.002), (0.007, 0.005), (0.0, 0.006)], 20)
    return head.turned(turn((0.0, 1.0, 0.0), -90.0))
