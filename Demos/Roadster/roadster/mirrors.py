"""Outside mirrors of the left door, in car coordinates."""

import math

from .mesh import Mesh, cushion, grid, lathe, tube
from .surface import place, q_at
from .vectors import add, curve_through, steps, turn

FOOT_Z = 0.44


def designs():
    """Name -> list of (mesh, material)."""
    foot = place(q_at(FOOT_Z), 4.55)
    return {"Round Mirror": _round(foot), "Aero Mirror": _aero(foot), "Bullet Mirror": _bullet(foot)}


def _glass(centre, width, height):
    points = [(centre[0] + width * math.cos(a), centre[1] + height * math.sin(a), centre[2]) for a in
              steps(0.0, 2.0 * math.pi, 32)]
    return grid([points, [centre] * len(points)]).facing((0.0, 0.0, -1.0))


def _round(foot):
    head = add(foot, (0.115, 0.105, -0.02))
    arm = tube(curve_through([foot, add(foot, (0.04, 0.05, 0.005)), add(head, (0.0, -0.055, 0.012))], 10), 0.006, 10)
    bowl = lathe([(0.0, -0.040), (0.030, -0.034), (0.050, -0.016), (0.056, 0.0), (0.056, 0.006), (0.050, 0.006)], 36)
    bowl = bowl.turned(turn((0, 1, 0), 90.0)).moved(*head)
    return [(Mesh().join(arm, bowl), "Chrome"), (_glass(add(head, (0, 0, -0.005)), 0.050, 0.050), "Lens")]


def _aero(foot):
    head = add(foot, (0.125, 0.085, -0.03))
    line = [add(foot, (-0.01, -0.004, 0.03)), add(foot, (0.04, 0.03, 0.02)), add(head, (-0.03, -0.02, 0.02))]
    arm = tube(curve_through(line, 10), lambda t: 0.016 - 0.005 * t, 12)
    shell = cushion((0.17, 0.105, 0.10), 0.72, add(head, (0.0, 0.0, 0.02)), 32, 18)
    return [(shell, "Paint"), (arm, "Black Plastic"), (_glass(add(head, (0.0, 0.0, -0.0305)), 0.062, 0.034), "Lens")]


def _bullet(foot):
    head = add(foot, (0.095, 0.085, -0.02))
    arm = tube([foot, add(head, (0.0, -0.02, 0.01))], 0.007, 10)
    cone = lathe([(0.0, -0.115), (0.010, -0.110), (0.026, -0.080), (0.040, -0.035), (0.045, 0.0), (0.043, 0.008),
                  (0.038, 0.008)], 36)
    cone = cone.turned(turn((0, 1, 0), 90.0)).moved(*head)
    return [(cone, "Paint"), (arm, "Chrome"), (_glass(add(head, (0, 0, -0.006)), 0.039, 0.039), "Lens")]
