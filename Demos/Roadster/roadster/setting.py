"""Around the car: hall, plinth and cameras."""

import math

from . import stand
from .gltf import Node
from .tree import choice, part
from .vectors import aim, turn


def plinth():
    return choice(
        "Plinth", 0,
        part("Disc", (stand.disc(), "Plinth White"), (stand.disc_light(), "Light Line"), (stand.disc_ring(), "Steel")),
        part("Timber Deck", (stand.timber(), "Walnut"), (stand.timber_frame(), "Black Plastic")),
        part("Steel Grating", (stand.grating(), "Steel")))


def hall():
    frames, lines = stand.light_frames()
    posts, rope = stand.barrier()
    backdrop = choice(
        "Backdrop", 0,
        part("Rotunda", (stand.rotunda(), "Backdrop Grey")),
        part("Timber Fins", (stand.fins(), "Walnut")),
        part("Light Portals", (frames, "Steel"), (lines, "Light Line")))
    face = part("Schild für Besucher", (stand.sign_board(), "Black Plastic"), (stand.sign_face(), "Sign"),
                translation=[0.0, 1.08, 0.0], rotation=list(turn((1, 0, 0), -18.0)))
    sign = Node("Sign", part("Sign Post", (stand.sign_post(), "Steel")), face,
                translation=[-2.75, stand.GROUND, 2.35], rotation=list(turn((0, 1, 0), -12.0)))
    return Node(
        "Hall",
        part("Floor", (stand.floor(), "Floor Tiles")), backdrop,
        part("Barrier", (posts, "Brass"), (rope, "Rope"), visible=False), sign)


# Name, eye, target, vertical opening angle in degrees.
_VIEWS = (
    ("Front", (1.75, 0.95, 5.0), (0.0, 0.48, 0.25), 30),
    ("Side", (6.0, 0.95, 0.0), (0.0, 0.50, 0.0), 32),
    ("Rear", (-2.5, 1.25, -4.7), (0.0, 0.48, -0.2), 32),
    ("Interior", (0.03, 1.16, -0.56), (0.06, 0.62, 0.45), 66),
    ("Wheel", (2.35, 0.52, 2.1), (0.72, 0.33, 1.10), 26),
    ("Top", (0.01, 6.8, -0.6), (0.0, 0.3, 0.0), 44),
    ("Übersicht", (4.1, 2.0, 4.9), (0.0, 0.35, -0.05), 33))


def cameras():
    nodes = []
    for name, eye, target, angle in _VIEWS:
        lens = {"type": "perspective", "perspective": {"yfov": math.radians(angle), "znear": 0.05, "zfar": 60.0}}
        nodes.append(Node(name, camera=lens, translation=list(eye), rotation=list(aim(eye, target))))
    return Node("Cameras", *nodes)
