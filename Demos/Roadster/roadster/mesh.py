"""Triangle meshes: grids with smooth normals, and the solids that are made of grids."""

import math

from .vectors import add, cross, dot, length, mix, power, scale, steps, sub, turned, unit

SHARP = math.cos(math.radians(32.0))  # profile corners sharper than this become hard edges


class Mesh:
    """Points, normals and texture coordinates of equal count, and triangles as index triples."""

    def __init__(self):
        self.points, self.normals, self.uvs, self.triangles = [], [], [], []

    def join(self, *others):
        for other in others:
            base = len(self.points)
            self.points += other.points
            self.normals += other.normals
            self.uvs += other.uvs
            self.triangles += [(a + base, b + base, c + base) for a, b, c in other.triangles]
        return self

    def mapped(self, on_point, on_normal):
        result = Mesh()
        result.points = [on_point(p) for p in self.points]
        result.normals = [on_normal(n) for n in self.normals]
        result.uvs, result.triangles = list(self.uvs), list(self.triangles)
        return result

    def moved(self, x, y, z):
        return self.mapped(lambda p: (p[0] + x, p[1] + y, p[2] + z), lambda n: n)

    def turned(self, quaternion):
        return self.mapped(lambda p: turned(p, quaternion), lambda n: turned(n, quaternion))

    def mirrored(self):
        """The same thing on the other side of the car."""
        def flip(p):
            return (-p[0], p[1], p[2])
        result = self.mapped(flip, flip)
        result.triangles = [(a, c, b) for a, b, c in self.triangles]
        return result

    def reversed(self):
        result = self.mapped(lambda p: p, lambda n: scale(n, -1.0))
        result.triangles = [(a, c, b) for a, b, c in self.triangles]
        return result

    def outside_out(self):
        """This closed mesh, reversed when its outside looks inwards: its signed volume tells."""
        volume = sum(dot(self.points[a], cross(self.points[b], self.points[c])) for a, b, c in self.triangles)
        return self if volume >= 0.0 else self.reversed()

    def facing(self, direction):
        """This mesh, reversed when it looks away from `direction` on the whole."""
        total = (0.0, 0.0, 0.0)
        for a, b, c in self.triangles:
            p = self.points[a]
            total = add(total, cross(sub(self.points[b], p), sub(self.points[c], p)))
        return self if dot(total, direction) >= 0.0 else self.reversed()


def both_sides(mesh):
    return Mesh().join(mesh, mesh.mirrored())


def grid(rows, uv_size=(1.0, 1.0)):
    """A smooth surface over rows of points; rows x columns turn right-handed to the front."""
    result = Mesh()
    count, width = len(rows), len(rows[0])
    for i, row in enumerate(rows):
        result.points += row
        result.uvs += [(uv_size[0] * j / (width - 1), uv_size[1] * i / (count - 1)) for j in range(width)]
    points = result.points
    for i in range(count - 1):
        for j in range(width - 1):
            a = i * width + j
            b, c, d = a + 1, a + width + 1, a + width
            for triangle in ((a, b, c), (a, c, d)):
                if _area(points, triangle) > 1e-12:
                    result.triangles.append(triangle)
    result.normals = _smooth_normals(points, result.triangles)
    return result


def _area(points, triangle):
    a, b, c = (points[i] for i in triangle)
    return length(cross(sub(b, a), sub(c, a)))


def _smooth_normals(points, triangles):
    """Area-weighted normals; points at the same place (seams, poles) share theirs."""
    keys = [(round(p[0], 6), round(p[1], 6), round(p[2], 6)) for p in points]
    sums = {}
    for a, b, c in triangles:
        n = cross(sub(points[b], points[a]), sub(points[c], points[a]))
        for corner in (a, b, c):
            old = sums.get(keys[corner])
            sums[keys[corner]] = n if old is None else add(old, n)
    return [unit(sums.get(key, (0.0, 1.0, 0.0))) for key in keys]


def _smooth_runs(profile, direction_of):
    """Cuts a profile into runs at its sharp corners; neighbours share the corner."""
    runs, current = [], [profile[0]]
    for i in range(1, len(profile)):
        current.append(profile[i])
        if i + 1 < len(profile):
            before = direction_of(profile[i - 1], profile[i])
            after = direction_of(profile[i], profile[i + 1])
            if dot(before, after) < SHARP:
                runs.append(current)
                current = [profile[i]]
    runs.append(current)
    return runs


def lathe(profile, segments=48, uv_size=(1.0, 1.0)):
    """Turns a profile of (radius, height along x) about the x axis.

    Run the profile towards +x where the outside looks away from the axis."""
    def direction(p, q):
        return unit((q[0] - p[0], q[1] - p[1], 0.0))

    result = Mesh()
    for run in _smooth_runs(profile, direction):
        rows = []
        for radius, x in run:
            rows.append([(x, radius * math.cos(a), radius * math.sin(a)) for a in steps(0.0, 2.0 * math.pi, segments)])
        result.join(grid(rows, uv_size))
    return result


def loft(rings, caps=True, hard=True):
    """A skin over closed rings of equal point count (first point not repeated), with flat ends.

    Rings run counter-clockwise seen from the end towards which the loft goes."""
    result = Mesh()

    def middle(ring):
        return scale((sum(p[0] for p in ring), sum(p[1] for p in ring), sum(p[2] for p in ring)), 1.0 / len(ring))

    def direction(p, q):
        return unit(sub(q[0], p[0]))

    runs = _smooth_runs(rings, direction) if hard else [rings]
    for run in runs:
        result.join(grid([ring + ring[:1] for ring in run]))
    if caps:
        first, last = rings[0], rings[-1]
        result.join(grid([[middle(first)] * (len(first) + 1), first + first[:1]]))
        result.join(grid([last + last[:1], [middle(last)] * (len(last) + 1)]))
    return result


def outline(width, height, radius, corner=4, centre=(0.0, 0.0)):
    """A rectangle with round corners, counter-clockwise, as 2D points."""
    points = []
    for sx, sy, start in ((1, 1, 0.0), (-1, 1, 90.0), (-1, -1, 180.0), (1, -1, 270.0)):
        cx = centre[0] + sx * (width / 2.0 - radius)
        cy = centre[1] + sy * (height / 2.0 - radius)
        for angle in steps(start, start + 90.0, corner):
            a = math.radians(angle)
            points.append((cx + radius * math.cos(a), cy + radius * math.sin(a)))
    return points


def prism(points, z0, z1, bevel=0.0):
    """A 2D outline (counter-clockwise) drawn out along z, its edges broken by a bevel."""
    cx = sum(p[0] for p in points) / len(points)
    cy = sum(p[1] for p in points) / len(points)
    reach = max(math.hypot(p[0] - cx, p[1] - cy) for p in points)
    shrink = 1.0 - bevel / reach

    def ring(z, factor):
        return [(cx + (p[0] - cx) * factor, cy + (p[1] - cy) * factor, z) for p in points]

    if bevel <= 0.0:
        return loft([ring(z0, 1.0), ring(z1, 1.0)])
    return loft([ring(z0, shrink), ring(z0 + bevel, 1.0), ring(z1 - bevel, 1.0), ring(z1, shrink)])


def block(size, radius=0.01, bevel=0.004, at=(0.0, 0.0, 0.0)):
    """A box with round edges along z, its middle at `at`."""
    radius = min(radius, size[0] / 2.01, size[1] / 2.01)
    bevel = min(bevel, size[2] / 2.5)
    return prism(outline(size[0], size[1], radius), -size[2] / 2.0, size[2] / 2.0, bevel).moved(*at)


def cushion(size, square=0.45, at=(0.0, 0.0, 0.0), columns=28, rows=14):
    """A soft block: a superellipsoid; `square` 1 is an ellipsoid, towards 0 a box."""
    lines = []
    for v in steps(-math.pi / 2.0, math.pi / 2.0, rows):
        r, z = power(math.cos(v), square), power(math.sin(v), square)
        lines.append([(at[0] + size[0] / 2.0 * r * power(math.cos(u), square),
                       at[1] + size[1] / 2.0 * r * power(math.sin(u), square),
                       at[2] + size[2] / 2.0 * z) for u in steps(0.0, 2.0 * math.pi, columns)])
    return grid(lines)


def tube(path, radius, sides=12, closed=False, caps=True):
    """A round bar along a path; `radius` is a number or a function of 0 .. 1 along it."""
    count = len(path)
    size = radius if callable(radius) else lambda t: radius
    rings, normal = [], None
    for i, p in enumerate(path):
        before = path[(i - 1) % count] if closed or i > 0 else p
        after = path[(i + 1) % count] if closed or i + 1 < count else p
        along = unit(sub(after, before), (0.0, 0.0, 1.0))
        if normal is None:
            normal = (0.0, 1.0, 0.0) if abs(along[1]) < 0.9 else (1.0, 0.0, 0.0)
        normal = unit(sub(normal, scale(along, dot(normal, along))))
        side = cross(along, normal)
        r = size(i / (count - 1.0))
        rings.append([add(p, add(scale(normal, r * math.cos(a)), scale(side, r * math.sin(a))))
                      for a in (2.0 * math.pi * k / sides for k in range(sides))])
    if closed:
        return grid([ring + ring[:1] for ring in rings + rings[:1]])
    return loft(rings, caps=caps, hard=False)


def ribbon(first, second):
    """A strip between two lines of points."""
    return grid([first, second])


def shell(rows, thickness, hem=True):
    """A sheet over rows of points with its edges folded in by `thickness` against the normals."""
    face = grid(rows)
    result = Mesh().join(face)
    if not hem:
        return result
    width = len(rows[0])

    def inner(index):
        return sub(face.points[index], scale(face.normals[index], thickness))

    last = (len(rows) - 1) * width
    edges = [list(range(width)), list(range(width - 1, len(rows) * width, width)),
             list(range(last + width - 1, last - 1, -1)), list(range(last, -1, -width))]
    for edge in edges:
        result.join(grid([[inner(i) for i in edge], [face.points[i] for i in edge]]))
    return result


def coons(bottom, top, left, right):
    """Rows of points spanning four edges: bottom and top run left to right, left and right bottom to top."""
    m, n = len(left) - 1, len(bottom) - 1
    rows = []
    for i in range(m + 1):
        t, row = i / m, []
        for j in range(n + 1):
            s = j / n
            ruled = add(mix(bottom[j], top[j], t), mix(left[i], right[i], s))
            corners = mix(mix(bottom[0], bottom[n], s), mix(top[0], top[n], s), t)
            row.append(sub(ruled, corners))
        rows.append(row)
    return rows
