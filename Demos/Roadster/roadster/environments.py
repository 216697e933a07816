"""What surrounds the stand: domes painted inside, of which one is the background.

A viewer that knows no environments shows the innermost one."""

import math

from .materials import SKIES
from .mesh import grid
from .tree import choice, part
from .vectors import steps


def _dome(radius):
    """A sphere that is seen from inside; the upper edge of its picture is straight above."""
    def ring(rise):
        return [(radius * math.cos(rise) * math.sin(turn), radius * math.sin(rise),
                 radius * math.cos(rise) * math.cos(turn)) for turn in steps(0.0, 2.0 * math.pi, 48)]

    rows = [ring(rise) for rise in steps(math.pi / 2.0, -math.pi / 2.0, 24)]
    return grid(rows).outside_out().reversed()


def environments():
    domes = [part(name[:-len(" Sky")], (_dome(24.0 + 2.0 * k), name)) for k, name in enumerate(SKIES)]
    return choice("Environments", 0, *domes).extra(qxEnvironment=True)
