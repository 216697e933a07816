"""The variants document of the scene, in the form in which the variants module writes it."""

import struct

from .sets import GROUPS, HOTKEYS, PLAIN_VARIANTS, UNGROUPED

STEPS = ("!Next", "!Next (Loop)", "!Previous", "!Previous (Loop)")

_CLIPPING = (
    ("clipState", 0), ("clipPlanePositionX", 0.0), ("clipPlanePositionY", 0.0), ("clipPlanePositionZ", 0.0),
    ("clipPlaneNormalX", 0.0), ("clipPlaneNormalY", 1.0), ("clipPlaneNormalZ", 0.0), ("clipPlaneInvert", 0),
    ("clipPlaneHideScene", 0), ("clipPlaneShow", 1), ("clipPlaneColorR", 0.2), ("clipPlaneColorG", 0.3),
    ("clipPlaneColorB", 0.4), ("clipGridShow", 1), ("clipGridColorR", 0.63), ("clipGridColorG", 0.82),
    ("clipGridColorB", 0.89), ("clipContourShow", 1), ("clipContourColorR", 1.0), ("clipContourColorG", 0.7),
    ("clipContourColorB", 0.0), ("clipContourWidth", 1))


def text(roots):
    """The whole document for the node tree."""
    nodes = {}
    for root in roots:
        for node in root.walk():
            nodes.setdefault(node.name, node)
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE variants>", "<Variants>"]
    for name, comment, sets in GROUPS:
        lines.append(' <VariantGroup name="%s" comment="%s" visible="true">' % (_attribute(name), _attribute(comment)))
        for entry in sets:
            lines += _set(entry, 2)
        lines.append(" </VariantGroup>")
    for entry in UNGROUPED:
        lines += _set(entry, 1)
    for node in nodes.values():
        extras = node.properties.get("extras", {})
        if "qxSwitch" in extras or "qxTransformStates" in extras or node.name in PLAIN_VARIANTS:
            lines += _node_variant(node, extras)
    return "\n".join(lines + ["</Variants>"]) + "\n"


def _set(entry, depth):
    indent = " " * depth
    lines = ['%s<VariantSet name="%s" comment="%s" default-viewpoint="%s">' % (
        indent, _attribute(entry["name"]), _attribute(entry.get("comment", "")),
        _attribute(entry.get("default_viewpoint", "")))]

    def child(tag, *attributes, content=None):
        opening = "".join(' %s="%s"' % (key, _attribute(str(value))) for key, value in attributes)
        tail = "/>" if content is None else ">%s</%s>" % (_content(content), tag)
        lines.append("%s <%s%s%s" % (indent, tag, opening, tail))

    child("Hotkey", content=entry.get("hotkey", ""))
    child("SequentialAnimation", content="true" if entry.get("sequential") else "false")
    child("Script", content=entry.get("script", ""))
    for variant, state in entry.get("nodes", {}).items():
        child("NodeVariantRef", ("ref", variant), ("state", state))
    for tag, key in (("ViewpointRef", "viewpoints"), ("AnimationRef", "animations"), ("GeometryRef", "geometries")):
        for name in entry.get(key, ()):
            child(tag, ("ref", name))
    for name in entry.get("targets", ()):
        child("TargetName", ("name", name))
    child("InclInfo", ("inclNodes", int("nodes" in entry)), ("inclMats", 0), ("inclLights", 0), ("inclEnv", 0),
          ("inclView", int("viewpoints" in entry)))
    for key in sorted(entry.get("values", {}), key=lambda k: k.encode("utf-16-be")):
        child("Value", ("name", key), content=entry["values"][key])
    clipping = entry.get("clipping", {})
    child("Analyzer", *[(key, _number(clipping.get(key, value))) for key, value in _CLIPPING])
    lines.append("%s</VariantSet>" % indent)
    return lines


def _node_variant(node, extras):
    default, options = _options(node, extras)
    name = _attribute(node.name)
    lines = [' <NodeVariant name="%s" base="%s">' % (name, name), '  <Default ref="%s"/>' % _attribute(default)]
    for option in options:
        hotkey = _content(HOTKEYS.get((node.name, option), ""))
        lines += ['  <State name="%s">' % _attribute(option), "   <Hotkey>%s</Hotkey>" % hotkey, "  </State>"]
    return lines + [" </NodeVariant>"]


def _options(node, extras):
    """The default state and the options of a node's variant."""
    if "qxTransformStates" in extras:
        count = len(extras["qxTransformStates"]) // 10
        return "!Next (Loop)", [*STEPS, *["Transform %d" % i for i in range(count)]]
    if "qxSwitch" in extras:
        names = [child.name for child in node.children]
        chosen = extras["qxSwitch"]
        default = names[chosen] if 0 <= chosen < len(names) else "!None"
        return default, ["!All", "!None", *STEPS, *names]
    return "!Enable" if node.properties.get("visible", True) else "!Disable", ["!Enable", "!Disable", "!Toggle"]


def _number(value):
    """A number as the writer prints it: integers as they are, others with the digits of a 32-bit float."""
    if isinstance(value, int):
        return str(value)
    return "%.8g" % struct.unpack("f", struct.pack("f", value))


def _attribute(value):
    return _content(value).replace('"', "&quot;")


def _content(value):
    return value.replace("&", "&amp;").replace("<", "&lt;").replace("]]>", "]]&gt;")
