"""The variants document of the scene, in the form in which the variants module writes it."""

import struct

from .materials import switches
from .sets import GROUPS, HOTKEYS, PLAIN_VARIANTS, UNGROUPED

STEPS = ("!Next", "!Next (Loop)", "!Previous", "!Previous (Loop)")

_CLIPPING = (
    ("clipState", 0), ("clipPlanePositionX", 0.0), ("clipPlanePositionY", 0.0), ("clipPlanePositionZ", 0.0),
    ("clipPlaneNormalX", 0.0), ("clipPlaneNormalY", 1.0), ("clipPlaneNormalZ", 0.0), ("clipPlaneInvert", 0),
    ("clipPlaneHideScene", 0), ("clipPlaneShow", 1), ("clipPlaneColorR", 0.2), ("clipPlaneColorG", 0.3),
    ("clipPlaneColorB", 0.4), ("clipGridShow", 1), ("clipGridColorR", 0.63), ("clipGridColorG", 0.82),
    ("clipGridColorB", 0.89), ("clipContourShow", 1), ("clipContourColorR", 1.0), ("clipContourColorG", 0.7),
    ("clipContourColorB", 0.0), ("clipContourWidth", 1))

# What a set refers to, in the order of the document: element, key of the set's description.
_REFERENCES = (
    ("NodeVariantRef", "nodes"), ("TransformRef", "transforms"), ("MaterialVariantRef", "materials"),
    ("LightVariantRef", "lights"), ("ViewpointRef", "viewpoints"), ("OverlayRef", "overlays"),
    ("AnimationRef", "animations"), ("GeometryRef", "geometries"))


def text(roots):
    """The whole document for the node tree."""
    nodes, overlays = {}, {}
    for root in roots:
        kept = overlays if root.properties.get("extras", {}).get("qxOverlay") else nodes
        for node in root.walk():
            kept.setdefault(node.name, node)
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE variants>", "<Variants>"]
    for name, comment, sets in GROUPS:
        lines.append(' <VariantGroup name="%s" comment="%s" visible="true">' % (_attribute(name), _attribute(comment)))
        for entry in sets:
            lines += _set(entry, 2)
        lines.append(" </VariantGroup>")
    for entry in UNGROUPED:
        lines += _set(entry, 1)
    for kind, variants in (("Node", _node_variants(nodes)), ("Material", _material_variants()),
                           ("Light", _light_variants(nodes)), ("Overlay", _overlay_variants(overlays)),
                           ("Transform", _transform_variants(nodes))):
        for name, default, options in variants:
            lines += _variant(kind + "Variant", name, default, options)
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
    for tag, key in _REFERENCES:
        for reference in entry.get(key, ()):
            if isinstance(entry[key], dict):
                child(tag, ("ref", reference), ("state", entry[key][reference]))
            else:
                child(tag, ("ref", reference))
    for name in entry.get("targets", ()):
        child("TargetName", ("name", name))
    child("InclInfo", ("inclNodes", int("nodes" in entry)), ("inclMats", int("materials" in entry)),
          ("inclLights", int("lights" in entry)), ("inclEnv", int("Environments" in entry.get("nodes", ()))),
          ("inclView", int("viewpoints" in entry)))
    for key in sorted(entry.get("values", {}), key=lambda k: k.encode("utf-16-be")):
        child("Value", ("name", key), content=entry["values"][key])
    clipping = entry.get("clipping", {})
    child("Analyzer", *[(key, _number(clipping.get(key, value))) for key, value in _CLIPPING])
    lines.append("%s</VariantSet>" % indent)
    return lines


def _variant(tag, name, default, options):
    quoted = _attribute(name)
    lines = [' <%s name="%s" base="%s">' % (tag, quoted, quoted), '  <Default ref="%s"/>' % _attribute(default)]
    for option in options:
        hotkey = _content(HOTKEYS.get((name, option), ""))
        lines += ['  <State name="%s">' % _attribute(option), "   <Hotkey>%s</Hotkey>" % hotkey, "  </State>"]
    return lines + [" </%s>" % tag]


# The variants of each kind: (name, default state, options). All follow from what the scene holds.

def _node_variants(nodes):
    for node in nodes.values():
        extras = node.properties.get("extras", {})
        if "qxTransformStates" in extras:
            count = len(extras["qxTransformStates"]) // 10
            yield node.name, "!Next (Loop)", [*STEPS, *["Transform %d" % i for i in range(count)]]
        elif "qxSwitch" in extras or node.name in PLAIN_VARIANTS:
            yield node.name, *_shown(node)


def _material_variants():
    for default, materials in switches().items():
        yield default + " Switch", default, [*STEPS, *materials]


def _light_variants(nodes):
    for node in nodes.values():
        if "light" in node.properties:
            on = node.properties.get("extras", {}).get("qxLightOn", True)
            yield node.name, "!Enable" if on else "!Disable", ["!Enable", "!Disable", "!Toggle"]


def _overlay_variants(overlays):
    for node in overlays.values():
        extras = node.properties.get("extras", {})
        if "qxOverlay" in extras or "qxSwitch" in extras:
            yield node.name, *_shown(node)


def _transform_variants(nodes):
    for node in nodes.values():
        if "qxPoses" in node.properties.get("extras", {}):
            yield node.name, "!Next", [*STEPS, *node.properties["extras"]["qxPoseNames"]]


def _shown(node):
    """The default state and the options of a node that is a switch, or shown and hidden."""
    extras = node.properties.get("extras", {})
    if "qxSwitch" not in extras:
        return "!Enable" if node.properties.get("visible", True) else "!Disable", ["!Enable", "!Disable", "!Toggle"]
    names = [child.name for child in node.children]
    chosen = extras["qxSwitch"]
    return names[chosen] if 0 <= chosen < len(names) else "!None", ["!All", "!None", *STEPS, *names]


def _number(value):
    """A number as the writer prints it: integers as they are, others with the digits of a 32-bit float."""
    if isinstance(value, int):
        return str(value)
    return "%.8g" % struct.unpack("f", struct.pack("f", value))


def _attribute(value):
    return _content(value).replace('"', "&quot;")


def _content(value):
    return value.replace("&", "&amp;").replace("<", "&lt;").replace("]]>", "]]&gt;")
