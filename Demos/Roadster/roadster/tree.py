"""Nodes of the kinds that the scene is made of."""

import math

from .gltf import Node

NONE = -1  # no child of a switch
UPRIGHT = (0.0, 0.0, 0.0, 1.0)
AT_REST = ((0.0, 0.0, 0.0), UPRIGHT)


def part(name, *parts, **properties):
    """A node that draws: `parts` are (mesh, material) pairs."""
    node = Node(name, **properties)
    for mesh, material in parts:
        node.draw(mesh, material)
    return node


def choice(name, chosen, *children, **properties):
    """A switch over its children."""
    return Node(name, *children, **properties).extra(qxSwitch=chosen)


def shared(name, original, *children, **properties):
    """A clone: shares the choice of the node `original`."""
    return Node(name, *children, **properties).extra(qxSharesCoreOf=original)


def states(name, transforms, *children):
    """A transform switch; `transforms` are (translation, rotation) pairs."""
    flat = [float(x) for move, rotation in transforms for x in (*move, *rotation, 1, 1, 1)]
    return Node(name, *children).extra(qxTransformStates=flat, qxTransformChoice=0)


def poses(name, named, *children, **properties):
    """A node with named transform states, standing in the first; `named` maps them to (translation, rotation) pairs."""
    node = Node(name, *children, **properties)
    flat = [float(x) for move, rotation in named.values() for x in (*move, *rotation, 1, 1, 1)]
    move, rotation = next(iter(named.values()))
    node.properties["translation"] = list(move)
    if rotation != UPRIGHT:
        node.properties["rotation"] = list(rotation)
    return node.extra(qxPoses=flat, qxPoseNames=list(named), qxPose=0)


def light(name, entry, on=True, **properties):
    """A light that shines along -z."""
    node = Node(name, light=entry, **properties)
    return node if on else node.extra(qxLightOn=False)


def spot(colour, candela, degrees, soft=0.6):
    """A cone of light; `degrees` is its whole opening."""
    outer = math.radians(degrees / 2.0)
    return {"type": "spot", "color": list(colour), "intensity": candela,
            "spot": {"innerConeAngle": outer * soft, "outerConeAngle": outer}}


def again(node):
    """A second node that draws the same parts; its children likewise."""
    twin = Node(node.name, *[again(child) for child in node.children], **dict(node.properties))
    twin.parts = node.parts
    return twin
