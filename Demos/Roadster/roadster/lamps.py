"""The lights: those of the car, and those of the stand on their truss."""

from .gltf import Node
from .mesh import Mesh, block, lathe, tube
from .stand import GROUND, upright
from .tree import UPRIGHT, light, part, poses, spot
from .vectors import aim, steps, turn, turn_after

WARM, COOL, RED = (1.0, 0.86, 0.68), (0.92, 0.96, 1.0), (1.0, 0.06, 0.03)
HALF, BEAM = 3.35, 2.85   # of the truss: half its width, the height of its beam
DEPTH = -2.75


def of_the_car():
    """Two headlights of one name, which are switched together, and two tail lights of their own."""
    forward = list(turn_after(turn((0, 1, 0), 180.0), turn((1, 0, 0), -4.0)))
    nodes = [light("Headlight", spot(COOL, 60.0, 56.0), translation=[x, 0.56, 1.86], rotation=forward)
             for x in (0.60, -0.60)]
    for side, x in (("Left", 0.62), ("Right", -0.62)):
        glow = {"type": "point", "color": list(RED), "intensity": 0.5, "range": 2.0}
        nodes.append(light("Tail Light " + side, glow, translation=[x, 0.66, -2.02]))
    return nodes


def of_the_cabin():
    bulb = {"type": "point", "color": list(WARM), "intensity": 0.7, "range": 1.6}
    return light("Interior Light", bulb, False, translation=[0.0, 0.78, 0.05])


def of_the_stand():
    """A truss behind the car that carries three spots, and the light of the hall."""
    high, low = ((0.0, BEAM, DEPTH), UPRIGHT), ((0.0, BEAM - 0.80, DEPTH), UPRIGHT)
    spots = [_projector("Spot Left", 1.9, (0.55, 0.4, -0.3), WARM),
             _projector("Spot Middle", 0.0, (0.0, 0.3, 0.3), COOL),
             _projector("Spot Right", -1.9, (-0.55, 0.4, -0.3), WARM)]
    beam = poses("Truss", {"High": high, "Low": low}, part("Truss Beam", (_beam(), "Brushed Aluminium")), *spots)
    sky = {"type": "directional", "color": [1.0, 0.98, 0.95], "intensity": 1.2}
    hall = light("Hall Light", sky, rotation=list(aim((2.0, 6.0, 3.0), (0.0, 0.0, 0.0))))
    return Node("Lighting", part("Truss Posts", (_posts(), "Steel")), beam, hall)


def _projector(name, x, target, colour):
    """A spot in its housing, hung below the beam and aimed at a place on the car."""
    eye = (x, BEAM - 0.36, DEPTH)
    housing = part(name + " Housing", (_housing(), "Black Plastic"), (_lens(), "Light Line"),
                   translation=[x, -0.36, 0.0], rotation=list(aim(eye, target)))
    housing.children.append(light(name, spot(colour, 45.0, 44.0)))
    return Node(name + " Hanger", part(name + " Yoke", (_yoke(x), "Steel")), housing)


def _beam():
    """Two chords with a lattice between them."""
    result = Mesh()
    for y in (-0.13, 0.13):
        result.join(tube([(-HALF, y, 0.0), (HALF, y, 0.0)], 0.024, 14))
    corners = steps(-HALF + 0.06, HALF - 0.06, 26)
    for k, (x0, x1) in enumerate(zip(corners, corners[1:])):
        rise = 0.13 if k % 2 else -0.13
        result.join(tube([(x0, rise, 0.0), (x1, -rise, 0.0)], 0.010, 8))
    for x in (-HALF, HALF):
        result.join(block((0.15, 0.36, 0.15), 0.02, 0.01, (x, 0.0, 0.0)))
    return result


def _posts():
    result = Mesh()
    for x in (-HALF, HALF):
        foot = upright([(0.30, 0.0), (0.30, 0.014), (0.28, 0.022), (0.0, 0.022)], 40)
        post = tube([(0.0, 0.01, 0.0), (0.0, 1.6, 0.0), (0.0, BEAM - GROUND + 0.30, 0.0)], 0.045, 20)
        result.join(foot.join(post).moved(x, GROUND, DEPTH))
    return result


def _yoke(x):
    result = tube([(x, -0.13, 0.0), (x, -0.24, 0.0)], 0.014, 10)
    return result.join(tube([(x + dx, y, 0.0) for dx, y in ((-0.12, -0.37), (-0.12, -0.24), (0.12, -0.24),
                                                            (0.12, -0.37))], 0.010, 10))


def _housing():
    """A can that opens along -z."""
    can = lathe([(0.0, -0.16), (0.070, -0.16), (0.090, -0.12), (0.095, 0.10), (0.105, 0.14), (0.098, 0.14),
                 (0.085, 0.09)], 32)
    return can.turned(turn((0.0, 1.0, 0.0), 90.0))


def _lens():
    return lathe([(0.085, 0.092), (0.06, 0.105), (0.0, 0.110)], 32).turned(turn((0.0, 1.0, 0.0), 90.0))
