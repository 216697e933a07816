"""Nose and tail: bumpers with their alternatives, lamps, number plates, exhausts, spoilers."""

import math

from .body import BUMPER_TOP, FRONT_ARCH, GAP_Q, GAP_V, LAMP_END, REAR_ARCH, TAIL_END
from .mesh import Mesh, block, both_sides, grid, lathe, loft, outline, prism, ribbon, tube
from .surface import edge_line, end_panel, mirrored_line, patch, patch_edge, place
from .vectors import mix, steps, turn


class Mouth:
    """An air intake: an opening round the middle of the nose, as limits of v over q."""

    def __init__(self, half_width, middle, half_height, square=2.6):
        self.middle, self.half_height, self.square = middle, half_height, square
        low, high = 2.0, 3.0
        for _ in range(40):
            q = (low + high) / 2.0
            low, high = (q, high) if place(q, middle)[0] > half_width else (low, q)
        self.start = (low + high) / 2.0
        self.columns = [3.0 - (3.0 - self.start) * math.cos(a) for a in steps(0.0, math.pi / 2.0, 16)]

    def _reach(self, q):
        if q <= self.start:
            return 0.0
        w = (3.0 - q) / (3.0 - self.start)
        return self.half_height * max(0.0, 1.0 - w ** self.square) ** (1.0 / self.square)

    def low(self, q):
        return self.middle - self._reach(q)

    def high(self, q):
        return self.middle + self._reach(q)

    def line(self, limit, depth=0.0, lift=0.0):
        half = [place(q, limit(q), lift) for q in self.columns]
        half = [(x, y, z - depth) for x, y, z in half]
        return half + mirrored_line(half[:-1])[::-1]

    def loop(self, depth=0.0, lift=0.0):
        return self.line(self.high, depth, lift) + self.line(self.low, depth, lift)[-2:0:-1]

    def rim(self, radius):
        """A frame round the opening."""
        return tube(self.loop(0.0, 0.0015), radius, 10, closed=True)

    def recess(self, depth):
        """The inside of the opening: walls and a back."""
        front, back = self.loop(), self.loop(depth)
        walls = grid([front + front[:1], back + back[:1]])
        rear = ribbon(self.line(self.high, depth), self.line(self.low, depth)).facing((0.0, 0.0, 1.0))
        return Mesh().join(walls.reversed(), rear)

    def bars(self, count, depth, radius, upright):
        """Grille bars, upright or level, that end at the edge of the opening."""
        top, bottom = self.line(self.high, depth), self.line(self.low, depth)
        result = Mesh()
        if upright:
            for k in range(1, count):
                t = 2.0 * k / count - 1.0
                i = min(range(len(top)), key=lambda n: abs(top[n][0] + t * top[0][0]))
                result.join(tube([bottom[i], mix(bottom[i], top[i], 0.5), top[i]], radius, 6))
            return result
        for t in steps(0.0, 1.0, count + 1)[1:-1]:
            line = [mix(p, q, t) for p, q in zip(bottom, top)]
            result.join(tube(line, radius, 6))
        return result


def front_bumper(mouth):
    columns = steps(FRONT_ARCH[-1] + GAP_Q, mouth.start - 2e-5, 14) + mouth.columns
    lower = end_panel(columns, 0.0, mouth.low, 10)
    return lower.join(end_panel(columns, mouth.high, BUMPER_TOP - GAP_V, 10))


def nose_panel():
    """Between the headlamps, above the bumper."""
    return end_panel(steps(LAMP_END + GAP_Q, 3.0, 12), BUMPER_TOP + GAP_V, 5.0 - GAP_V, 10)


def rear_bumper():
    return end_panel(steps(REAR_ARCH[0] - GAP_Q, 0.0, 28), 0.0, BUMPER_TOP - GAP_V, 16)


def tail_panel():
    """Between the tail lamps, above the bumper."""
    return end_panel(steps(TAIL_END - GAP_Q, 0.0, 14), BUMPER_TOP + GAP_V, 5.0 - GAP_V, 10)


def splitter():
    """A blade below the nose."""
    left = edge_line(steps(2.25, 3.0, 20), 0.0)
    line = left + mirrored_line(left[:-1])[::-1]
    outer = [(x * 1.03, y - 0.022, z + 0.055) for x, y, z in line]
    inner = [(x * 0.9, y - 0.022, z - 0.12) for x, y, z in line]

    def up(points):
        return [(x, y + 0.012, z) for x, y, z in points]

    result = ribbon(outer, inner).facing((0.0, -1.0, 0.0))
    result.join(ribbon(up(outer), up(inner)).facing((0.0, 1.0, 0.0)))
    return result.join(ribbon(outer, up(outer)).facing((0.0, 0.0, 1.0)))


def side_intakes():
    return both_sides(patch(2.47, 1.45, (0.085, 0.055), 4, 36, lambda r: 0.003 - 0.002 * (1.0 - r), 0.15, 0.6))


def side_intake_rims():
    return both_sides(tube(patch_edge(2.47, 1.45, (0.088, 0.058), 36, 0.002, 0.15, 0.6), 0.005, 8, closed=True))


def chrome_bars():
    """Classic bumper blades at the corners of the nose."""
    half = [place(q, 1.15, 0.030) for q in steps(2.22, 2.80, 16)]
    return both_sides(tube(half, lambda t: 0.017 * min(1.0, 6.0 * t + 0.25, 6.0 * (1.0 - t) + 0.25), 12))


def rear_chrome_bars():
    half = [place(q, 1.35, 0.030) for q in steps(0.80, 0.22, 16)]
    return both_sides(tube(half, lambda t: 0.017 * min(1.0, 6.0 * t + 0.25, 6.0 * (1.0 - t) + 0.25), 12))


def diffuser():
    """A dark panel with fins below the tail."""
    line = edge_line(steps(0.42, 0.0, 10), 0.0)
    line = line + mirrored_line(line[:-1])[::-1]
    high = [(x * 0.98, y + 0.085, z - 0.052) for x, y, z in line]
    low = [(x * 0.94, y - 0.025, z + 0.05) for x, y, z in line]
    result = ribbon(high, low).facing((0.0, -0.5, -1.0))
    for x in (-0.30, -0.15, 0.0, 0.15, 0.30):
        fin = prism([(-1.78, 0.19), (-1.90, 0.20), (-1.93, 0.30), (-1.80, 0.28)][::-1], -0.005, 0.005, 0.0015)
        result.join(fin.turned(turn((0.0, 1.0, 0.0), -90.0)).moved(x, 0.0, 0.0))
    return result


LAMP = (2.46, 4.12, (0.105, 0.088), 0.35)
TAIL = (0.60, 4.05, (0.105, 0.060), -0.05)


def _lamp(shape, factor, rings, lift, square=0.85):
    q, v, size, tilt = shape
    return both_sides(patch(q, v, (size[0] * factor, size[1] * factor), rings, 44, lift, tilt, square))


def _lamp_ring(shape, factor, lift, radius, square=0.85):
    q, v, size, tilt = shape
    edge = patch_edge(q, v, (size[0] * factor, size[1] * factor), 44, lift, tilt, square)
    return both_sides(tube(edge, radius, 10, closed=True))


def lamp_bowls():
    return _lamp(LAMP, 1.0, 5, lambda r: 0.003 + 0.002 * (1.0 - r))


def lamp_rings():
    return _lamp_ring(LAMP, 1.03, 0.003, 0.0065)


def lamp_glasses():
    return _lamp(LAMP, 1.0, 8, lambda r: 0.006 + 0.024 * (1.0 - r * r) ** 0.7)


def lamp_projectors():
    """Two lenses behind each glass."""
    q, v, _, _ = LAMP
    result = Mesh()
    for dq, dv, size in ((0.045, 0.16, 0.036), (-0.055, -0.20, 0.030)):
        result.join(patch(q + dq, v + dv, (size, size), 6, 28, lambda r: 0.006 + 0.014 * (1.0 - r * r) ** 0.5))
    return both_sides(result)


def lamp_projector_rings():
    q, v, _, _ = LAMP
    result = Mesh()
    for dq, dv, size in ((0.045, 0.16, 0.038), (-0.055, -0.20, 0.032)):
        result.join(tube(patch_edge(q + dq, v + dv, (size, size), 28, 0.006), 0.004, 8, closed=True))
    return both_sides(result)


def indicators():
    return both_sides(patch(2.52, 2.55, (0.055, 0.014), 4, 32, lambda r: 0.003 + 0.006 * (1.0 - r * r), 0.0, 0.7))


def tail_glasses():
    return _lamp(TAIL, 1.0, 6, lambda r: 0.004 + 0.014 * (1.0 - r * r) ** 0.6)


def tail_rings():
    return _lamp_ring(TAIL, 1.04, 0.003, 0.005)


def reverse_lamps():
    return both_sides(patch(0.52, 2.75, (0.045, 0.016), 4, 28, lambda r: 0.003 + 0.006 * (1.0 - r * r), 0.0, 0.7))


def plate():
    """A number plate, facing +z, its middle at the origin; the face bears the picture."""
    face = grid([[(-0.26, -0.055, 0.005), (0.26, -0.055, 0.005)], [(-0.26, 0.055, 0.005), (0.26, 0.055, 0.005)]])
    face.uvs = [(0.0, 1.0), (1.0, 1.0), (0.0, 0.0), (1.0, 0.0)]
    return face


def plate_frame():
    return prism(outline(0.532, 0.122, 0.012), -0.008, 0.004, 0.002)


def exhaust_pipe(x, radius):
    """A polished tail pipe that ends just behind the bumper."""
    end = _pipe_end(x)
    profile = [(radius * 0.86, end + 0.12), (radius * 0.86, end + 0.004), (radius * 0.92, end), (radius, end + 0.010),
               (radius, end + 0.26)]
    pipe = lathe(profile, 28).turned(turn((0.0, 1.0, 0.0), -90.0))
    return pipe.moved(x, 0.222, 0.0)


def exhaust_hole(x, radius):
    z = _pipe_end(x) + 0.10
    disc = lathe([(radius * 0.86, z), (0.0, z)], 28).turned(turn((0.0, 1.0, 0.0), -90.0))
    return disc.moved(x, 0.222, 0.0).facing((0.0, 0.0, -1.0))


def _pipe_end(x):
    return -2.005 + 0.42 * x * x


def ducktail():
    """A lip that grows out of the tail."""
    columns = steps(0.52, 0.0, 12)
    half = [place(q, 4.9) for q in columns]
    line = half + mirrored_line(half[:-1])[::-1]
    count = len(line) - 1
    rings = []
    for i, (x, y, z) in enumerate(line):
        s = 1.0 - (2.0 * i / count - 1.0) ** 6
        rings.append([(x, y - 0.005, z + 0.13 * s + 0.01), (x, y + 0.012 * s, z + 0.08 * s),
                      (x, y + 0.050 * s, z - 0.03 * s), (x, y + 0.045 * s, z - 0.038 * s), (x, y - 0.01, z - 0.018)])
    return grid(rings).facing((0.0, 1.0, 0.0))


def wing():
    """A blade on two posts."""
    rings = []
    for x in steps(-0.66, 0.66, 24):
        bow = 0.02 * (1.0 - (x / 0.66) ** 2)
        profile = [(0.10, 0.0), (0.05, 0.014), (-0.04, 0.020), (-0.11, 0.032), (-0.112, 0.026), (-0.04, 0.006),
                   (0.05, -0.006)]
        rings.append([(x, 0.985 + bow + y, -1.78 + z) for z, y in profile])
    result = loft(rings).outside_out()
    for x in (-0.66, 0.66):
        end = prism(outline(0.26, 0.085, 0.02), -0.006, 0.006, 0.002).turned(turn((0.0, 1.0, 0.0), 90.0))
        result.join(end.moved(x, 0.998, -1.785))
    for x in (-0.38, 0.38):
        post = block((0.09, 0.20, 0.014), 0.02, 0.003).turned(turn((0.0, 1.0, 0.0), 90.0))
        result.join(post.moved(x, 0.905, -1.76))
    return result
