"""Nodes of the kinds that the scene is made of."""

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


def again(node):
    """A second node that draws the same parts; its children likewise."""
    twin = Node(node.name, *[again(child) for child in node.children], **dict(node.properties))
    twin.parts = node.parts
    return twin
