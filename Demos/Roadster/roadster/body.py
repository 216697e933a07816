"""The fixed outer panels of the car and what is let into them."""

import math

from .mesh import Mesh, block, both_sides, coons, grid, lathe, outline, ribbon, shell, tube
from .surface import (ARCH_RADIUS, COWL, DECK, DOOR_FRONT, DOOR_REAR, FRONT_AXLE, REAR_AXLE, WHEEL_RADIUS,
                      arch_columns, arch_height, edge_line, mirrored_line, panel, patch, patch_edge, place, q_at,
                      rows_between)
from .vectors import add, mix, steps

GAP_Q, GAP_V = 0.0011, 0.016   # half a shut line, about 2 mm
SILL_TOP = 0.95
BUMPER_TOP = 3.35
FRONT_ARCH, REAR_ARCH = arch_columns(FRONT_AXLE), arch_columns(REAR_AXLE)
LAMP_END, TAIL_END = 2.74, 0.34  # where fender and bumper meet beside the bonnet and the boot lid


def front_fender():
    """From the door over the wheel to the headlamp."""
    start, arch, end = q_at(DOOR_FRONT) + GAP_Q, FRONT_ARCH[0], FRONT_ARCH[-1]
    columns = steps(start, arch - 2e-5, 8) + FRONT_ARCH + steps(end + 2e-5, LAMP_END - GAP_Q, 14)

    def bottom(q):
        if q < arch:
            return SILL_TOP + GAP_V
        return arch_height(q, FRONT_AXLE) if q <= end else BUMPER_TOP + GAP_V

    return panel(columns, bottom, 5.0 - GAP_V, 14)


def rear_fender():
    """From the door over the wheel to the tail lamp."""
    start, arch, end = q_at(DOOR_REAR) - GAP_Q, REAR_ARCH[-1], REAR_ARCH[0]
    columns = steps(TAIL_END + GAP_Q, end - 2e-5, 14) + REAR_ARCH + steps(arch + 2e-5, start, 8)

    def bottom(q):
        if q > arch:
            return SILL_TOP + GAP_V
        return arch_height(q, REAR_AXLE) if q >= end else BUMPER_TOP + GAP_V

    return panel(columns, bottom, 5.0 - GAP_V, 14)


def sill():
    return panel(steps(REAR_ARCH[-1], FRONT_ARCH[0], 20), 0.0, SILL_TOP - GAP_V, 4)


def door_skin():
    columns = steps(q_at(DOOR_REAR) + GAP_Q, q_at(DOOR_FRONT) - GAP_Q, 24)
    return panel(columns, SILL_TOP + GAP_V, 5.0, 14, 0.03)


def arch_lips():
    """The folded edges of the wheel arches."""
    result = Mesh()
    for columns, axle in ((FRONT_ARCH, FRONT_AXLE), (REAR_ARCH, REAR_AXLE)):
        edge = [place(q, arch_height(q, axle)) for q in columns]
        inner = [(x - 0.05, y, z) for x, y, z in edge]
        result.join(ribbon(edge, inner).facing((0.0, -1.0, 0.0)))
    return result


def wheel_housings():
    """Dark tubs over the wheels."""
    result = Mesh()
    for axle in (FRONT_AXLE, REAR_AXLE):
        angles = steps(-0.04 * math.pi, 1.04 * math.pi, 28)
        arc = [(WHEEL_RADIUS + (ARCH_RADIUS - 0.004) * math.sin(a), axle + (ARCH_RADIUS - 0.004) * math.cos(a))
               for a in angles]
        rows = [[(x, y, z) for y, z in arc] for x in (0.50, 0.66, 0.805)]
        result.join(grid(rows).facing((0.0, -1.0, 0.0)))
        middle = (0.50, WHEEL_RADIUS, axle)
        result.join(grid([rows[0], [middle] * len(arc)]).facing((1.0, 0.0, 0.0)))
    return both_sides(result)


def bonnet():
    return shell(bonnet_rows(), 0.016).facing((0.0, 1.0, 0.0))


def bonnet_rows():
    """Between the shoulders, from the windscreen to the nose, with two shallow power lines."""
    start, corner = q_at(COWL), LAMP_END
    side = [place(q, 5.0) for q in steps(start, 2.0, 9)[:-1] + steps(2.0, corner, 12)]
    side = [(x - 0.004, y, z) for x, y, z in side]
    nose = [place(q, 5.0) for q in steps(corner, 3.0, 8)]
    nose = [(x, y, z - 0.004) for x, y, z in nose]
    nose = nose + mirrored_line(nose[:-1])[::-1]
    nose[0], nose[-1] = side[-1], mirrored_line(side)[-1]
    cowl = cowl_line(len(nose) - 1)
    return _crowned(coons(cowl, nose, side, mirrored_line(side)))


def _crowned(rows):
    result = []
    for i, row in enumerate(rows):
        t, line = i / (len(rows) - 1.0), []
        for j, p in enumerate(row):
            s = 2.0 * j / (len(row) - 1.0) - 1.0
            crown = 0.026 * (1.0 - s * s) * 4.0 * t * (1.0 - t)
            ridge = 0.016 * math.exp(-((abs(s) - 0.46) / 0.16) ** 2) * math.sin(math.pi * min(1.0, t * 1.08)) ** 0.8
            line.append((p[0], p[1] + crown + ridge, p[2]))
        result.append(line)
    return result


def cowl_line(count, z_shift=0.0):
    """The line across the car below the windscreen, left to right."""
    corner = place(q_at(COWL), 5.0)
    points = []
    for s in steps(1.0, -1.0, count):
        bow = 1.0 - s * s
        points.append(((corner[0] - 0.004) * s, corner[1] + 0.052 * bow, corner[2] + z_shift + 0.13 * bow))
    return points


def scuttle():
    """The dark grille between bonnet and windscreen, and the corners beside it."""
    front = [add(p, (0.0, -0.006, -0.004)) for p in cowl_line(32)]
    corner = place(q_at(DOOR_FRONT) + 0.003, 5.0)
    back = [(p[0] * 1.02, mix(p[1], corner[1], 0.15) + 0.004, p[2] - 0.105) for p in front]
    return ribbon(front, back).facing((0.0, 1.0, 0.0))


def boot_lid():
    start, corner = q_at(DECK), TAIL_END
    side = [place(q, 5.0) for q in steps(start, 1.0, 2)[:-1] + steps(1.0, corner, 14)]
    side = [(x - 0.004, y, z) for x, y, z in side]
    tail = [place(q, 5.0) for q in steps(corner, 0.0, 8)]
    tail = [(x, y, z + 0.004) for x, y, z in tail]
    tail = tail + mirrored_line(tail[:-1])[::-1]
    tail[0], tail[-1] = side[-1], mirrored_line(side)[-1]
    deck = deck_line(DECK - 0.003, len(tail) - 1)
    deck[0], deck[-1] = side[0], mirrored_line(side)[0]
    rows = coons(deck, tail, side, mirrored_line(side))
    crowned = []
    for i, row in enumerate(rows):
        t = i / (len(rows) - 1.0)
        crowned.append([(x, y + 0.020 * (1.0 - (2.0 * j / (len(row) - 1.0) - 1.0) ** 2) * 4.0 * t * (1.0 - t), z)
                        for j, (x, y, z) in enumerate(row)])
    return shell(crowned, 0.016).facing((0.0, 1.0, 0.0))


def deck_line(z, count):
    """A line across the rear deck at z, left to right."""
    x, y, _ = place(q_at(z), 5.0)
    return [((x - 0.004) * s, y + 0.030 * (1.0 - s * s), z) for s in steps(1.0, -1.0, count)]


def tonneau():
    """The panel behind the seats, below the roof."""
    rows = [deck_line(z, 28) for z in steps(DECK + 0.003, DOOR_REAR - 0.14, 8)]
    return shell(rows, 0.03).facing((0.0, 1.0, 0.0))


def shoulder_fillets():
    """The strip of the rear shoulder beside the cockpit, from the door to the tonneau."""
    outer = edge_line(steps(q_at(DOOR_REAR - 0.14), q_at(DOOR_REAR), 6))
    inner = [(x - 0.06, y + 0.002, z) for x, y, z in outer]
    down = [(x - 0.01, y - 0.10, z) for x, y, z in inner]
    result = ribbon(outer, inner).facing((0.0, 1.0, 0.0))
    result.join(ribbon(inner, down).facing((-1.0, 0.0, 0.0)))
    return both_sides(result)


def inner_shell():
    """Dark sheet below the panels, so that shut lines look deep."""
    front = rows_between(steps(q_at(DOOR_FRONT), 3.0, 30), lambda q: max(0.2, arch_height(q, FRONT_AXLE) + 0.1), 5.0, 8,
                         -0.022)
    rear = rows_between(steps(0.0, q_at(DOOR_REAR), 30), lambda q: max(0.2, arch_height(q, REAR_AXLE) + 0.1), 5.0, 8,
                        -0.022)
    result = both_sides(Mesh().join(grid(front), grid(rear)))
    left = edge_line(steps(0.0, 3.0, 60), 0.0)
    left = [(x * 0.985, max(y, 0.17), z) for x, y, z in left]
    result.join(ribbon(left, mirrored_line(left)).facing((0.0, -1.0, 0.0)))
    lid = [[(x * s, y - 0.03, z) for s in steps(1.0, -1.0, 4)] for x, y, z in edge_line(steps(q_at(COWL), 2.98, 20))]
    result.join(grid(lid).facing((0.0, 1.0, 0.0)))
    return result.join(_boot_rim())


def _boot_rim():
    """Round the opening of the boot."""
    result, line = Mesh(), edge_line(steps(0.02, q_at(DECK), 20))
    for (x0, y0, z0), (x1, y1, z1) in zip(line, line[1:]):
        half = min(_well_half(z0), _well_half(z1))
        left0, left1 = min(x0, half), min(x1, half)
        for side in (1.0, -1.0):
            strip = [[(side * x0, y0 - 0.03, z0), (side * left0, y0 - 0.03, z0)],
                     [(side * x1, y1 - 0.03, z1), (side * left1, y1 - 0.03, z1)]]
            if x0 - left0 > 1e-4 or x1 - left1 > 1e-4:
                result.join(grid(strip).facing((0.0, 1.0, 0.0)))
    return result


WELL_REAR, WELL_FRONT, WELL_SIDE, WELL_FLOOR = -1.74, DECK - 0.03, 0.46, 0.50


def _well_half(z):
    return WELL_SIDE if WELL_REAR <= z <= WELL_FRONT else 0.0


def boot_well():
    """The carpeted tub below the boot lid."""
    loop = [(x, z) for x, z in outline(2.0 * WELL_SIDE, WELL_FRONT - WELL_REAR, 0.08, 6,
                                       (0.0, (WELL_FRONT + WELL_REAR) / 2.0))]
    loop.append(loop[0])
    middle = (0.0, (WELL_FRONT + WELL_REAR) / 2.0)
    rows = [[(mix(middle[0], x, t), y, mix(middle[1], z, t)) for x, z in loop]
            for t, y in ((0.0, WELL_FLOOR), (0.97, WELL_FLOOR), (1.0, WELL_FLOOR + 0.03), (1.0, 0.765))]
    return grid(rows).facing((0.0, 1.0, 0.0))


def travel_case():
    """A case that fits the boot: (case, straps, locks)."""
    at = (0.0, WELL_FLOOR + 0.088, -1.36)
    case = block((0.66, 0.17, 0.40), 0.045, 0.02, at)
    straps, locks = Mesh(), Mesh()
    for x in (-0.19, 0.19):
        straps.join(block((0.045, 0.182, 0.412), 0.03, 0.01, (x, at[1], at[2])))
        locks.join(block((0.05, 0.012, 0.03), 0.004, 0.003, (x, at[1] + 0.092, at[2] - 0.10)))
    handle = [(x, at[1] + y, at[2] - 0.205 - z) for x, y, z in (
        (-0.07, 0.0, 0.0), (-0.065, 0.0, 0.028), (0.065, 0.0, 0.028), (0.07, 0.0, 0.0))]
    return case, straps.join(tube(handle, 0.009, 10)), locks


def badge():
    """A round badge on the nose, turned up to face the viewer."""
    return lathe([(0.0, -0.006), (0.030, -0.006), (0.034, 0.0), (0.032, 0.004), (0.026, 0.003), (0.0, 0.005)], 36)


def fuel_cap():
    q, v = q_at(-0.98), 4.25
    result = patch(q, v, (0.062, 0.062), 5, 36, lambda r: 0.004 + 0.006 * (1.0 - r ** 4))
    rim = tube(patch_edge(q, v, (0.066, 0.066), 36, 0.003), 0.005, 8, closed=True)
    return result.join(rim)


def door_handle():
    """A slim bar standing off the skin."""
    q0, q1, v = q_at(DOOR_REAR + 0.07), q_at(DOOR_REAR + 0.21), 3.25
    path = [place(q0, v, 0.0)] + [place(q, v, 0.022) for q in steps(q0 + 0.006, q1 - 0.006, 6)] + [place(q1, v, 0.0)]
    return tube(path, lambda t: 0.0065, 10)


def side_vent():
    """Three slots behind the front wheel."""
    result = Mesh()
    for k in range(3):
        result.join(patch(q_at(0.71 + 0.035 * k), 2.75, (0.007, 0.058), 3, 24, lambda r: 0.002, 0.25, 0.7))
    return result


def bonnet_stripes():
    """Two racing stripes that follow the bonnet."""
    rows = bonnet_rows()
    result = Mesh()
    for side in (1.0, -1.0):
        lines = [[_across(row, side * x) for x in steps(0.06, 0.20, 6)] for row in rows]
        lines = [[(x, y + 0.0022, z) for x, y, z in line] for line in lines]
        result.join(grid(lines).facing((0.0, 1.0, 0.0)))
    return result


def _across(row, x):
    for p, q in zip(row, row[1:]):
        if min(p[0], q[0]) <= x <= max(p[0], q[0]) and abs(q[0] - p[0]) > 1e-9:
            return mix(p, q, (x - p[0]) / (q[0] - p[0]))
    return row[0] if abs(row[0][0] - x) < abs(row[-1][0] - x) else row[-1]
