"""What lies in front of the picture: a data sheet of two pages, and a logo.

In a viewer that knows no overlays they stand beside the car."""

from .gltf import Node
from .mesh import Mesh, grid
from .tree import choice, part
from .vectors import turn


def board(width, height):
    """A flat picture in the xy plane, its middle at the origin."""
    x, y = width / 2.0, height / 2.0
    face = grid([[(-x, -y, 0.0), (x, -y, 0.0)], [(-x, y, 0.0), (x, y, 0.0)]])
    face.uvs = [(0.0, 1.0), (1.0, 1.0), (0.0, 0.0), (1.0, 0.0)]
    return face


def _standing(mesh, at, degrees):
    return Mesh().join(mesh.turned(turn((0.0, 1.0, 0.0), degrees)).moved(*at))


def overlays():
    """The overlays themselves do not move: their pictures have their places."""
    page = _standing(board(1.50, 1.00), (-2.45, 1.25, -1.90), 34.0)
    logo = _standing(board(1.32, 0.33), (0.72, 1.62, -3.55), 22.0)
    pages = choice("Data Sheet Page", 0, part("Performance", (page, "Performance Sheet")),
                   part("Dimensions", (page, "Dimensions Sheet")))
    return [Node("Data Sheet", pages, visible=False).extra(qxOverlay=True),
            part("Logo", (logo, "Logo")).extra(qxOverlay=True)]
