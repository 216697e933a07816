"""Writes a glTF 2.0 file that carries its buffer and pictures inside."""

import array
import base64
import json
import sys

FLOAT, USHORT, UINT = 5126, 5123, 5125


class Node:
    """A node of the scene tree: a name, children, and whatever of a glTF node it needs."""

    def __init__(self, name, *children, **properties):
        self.name = name
        self.children = list(children)
        self.parts = []  # (Mesh, material name) pairs, one primitive each
        self.properties = properties

    def draw(self, mesh, material):
        self.parts.append((mesh, material))
        return self

    def extra(self, **values):
        self.properties.setdefault("extras", {}).update(values)
        return self

    def walk(self):
        yield self
        for child in self.children:
            yield from child.walk()


class Writer:
    """Gathers the parts of one file; `save` writes it."""

    def __init__(self):
        self.data = bytearray()
        self.document = {"asset": {"version": "2.0", "generator": "make-roadster"}}
        self._accessors = {}
        self._meshes = {}
        self._materials = {}
        self._mappings = {}
        self._textured = set()

    def append(self, key, entry):
        entries = self.document.setdefault(key, [])
        entries.append(entry)
        return len(entries) - 1

    def use(self, extension):
        used = self.document.setdefault("extensionsUsed", [])
        if extension not in used:
            used.append(extension)

    def picture(self, name, png):
        """Adds a texture; returns its index."""
        image = self.append("images", {"name": name, "mimeType": "image/png", "bufferView": self._view(png)})
        if "samplers" not in self.document:
            self.append("samplers", {"magFilter": 9729, "minFilter": 9987, "wrapS": 10497, "wrapT": 10497})
        return self.append("textures", {"name": name, "sampler": 0, "source": image})

    def material(self, name, entry):
        extensions = entry.get("extensions", ())
        # Anisotropy runs along the texture coordinates.
        if "baseColorTexture" in entry.get("pbrMetallicRoughness", {}) or "KHR_materials_anisotropy" in extensions:
            self._textured.add(name)
        for extension in extensions:
            self.use(extension)
        self._materials[name] = self.append("materials", dict(entry, name=name))

    def schemes(self, names, choices):
        """Adds material variants: `choices` has, per default material, the material of each variant."""
        self.document.setdefault("extensions", {})["KHR_materials_variants"] = {
            "variants": [{"name": name} for name in names]}
        self.use("KHR_materials_variants")
        for default, wanted in choices.items():
            self._mappings[default] = [
                {"material": self._materials[material],
                 "variants": [i for i, each in enumerate(wanted) if each == material]}
                for material in dict.fromkeys(wanted)]

    def light(self, name, entry):
        """Adds a light; returns its index."""
        self.use("KHR_lights_punctual")
        extension = self.document.setdefault("extensions", {}).setdefault("KHR_lights_punctual", {"lights": []})
        extension["lights"].append(dict(entry, name=name))
        return len(extension["lights"]) - 1

    def scene(self, name, roots, extras=None):
        entry = {"name": name, "nodes": [self._node(root) for root in roots]}
        if extras:
            entry["extras"] = extras
        self.document["scene"] = self.append("scenes", entry)

    def animation(self, name, channels):
        """Adds a clip of (node, path, times, values) channels with linear interpolation."""
        entry = {"name": name, "channels": [], "samplers": []}
        for node, path, times, values in channels:
            kind = "VEC4" if path == "rotation" else "VEC3"
            entry["samplers"].append({"input": self._floats([(t,) for t in times], "SCALAR", bounds=True),
                                      "output": self._floats(values, kind), "interpolation": "LINEAR"})
            entry["channels"].append({"sampler": len(entry["samplers"]) - 1,
                                      "target": {"node": node.index, "path": path}})
        self.append("animations", entry)

    def save(self, path):
        text = base64.b64encode(bytes(self.data)).decode("ascii")
        self.document["buffers"] = [{"byteLength": len(self.data),
                                     "uri": "data:application/octet-stream;base64," + text}]
        with open(path, "w", encoding="utf-8") as file:
            json.dump(self.document, file, ensure_ascii=False, indent=1)
            file.write("\n")

    def _node(self, node):
        entry = {"name": node.name}
        node.index = self.append("nodes", entry)
        for key, value in node.properties.items():
            if key == "visible":
                entry.setdefault("extensions", {})["KHR_node_visibility"] = {"visible": value}
                self.use("KHR_node_visibility")
            elif key == "light":
                light = self.light(node.name, value)
                entry.setdefault("extensions", {})["KHR_lights_punctual"] = {"light": light}
            elif key == "camera":
                entry["camera"] = self.append("cameras", dict(value, name=node.name))
            else:
                entry[key] = value
        if node.parts:
            entry["mesh"] = self._mesh(node)
        if node.children:
            entry["children"] = [self._node(child) for child in node.children]
        return node.index

    def _mesh(self, node):
        """Nodes that draw the same parts share one glTF mesh, which bears the name of the first."""
        key = tuple((id(mesh), material) for mesh, material in node.parts)
        if key not in self._meshes:
            primitives = [self._primitive(mesh, material) for mesh, material in node.parts]
            self._meshes[key] = self.append("meshes", {"name": node.name, "primitives": primitives})
        return self._meshes[key]

    def _primitive(self, mesh, material):
        textured = material in self._textured
        key = (id(mesh), textured)
        if key not in self._accessors:
            attributes = {"POSITION": self._floats(mesh.points, "VEC3", bounds=True, target=34962),
                          "NORMAL": self._floats(mesh.normals, "VEC3", target=34962)}
            if textured:
                attributes["TEXCOORD_0"] = self._floats(mesh.uvs, "VEC2", target=34962)
            self._accessors[key] = (attributes, self._indices(mesh), mesh)
        attributes, indices, _ = self._accessors[key]
        primitive = {"attributes": attributes, "indices": indices, "material": self._materials[material]}
        if material in self._mappings:
            primitive["extensions"] = {"KHR_materials_variants": {"mappings": self._mappings[material]}}
        return primitive

    def _floats(self, tuples, kind, bounds=False, target=None):
        values = array.array("f", [x for entry in tuples for x in entry])
        entry = {"bufferView": self._view(_little(values), target), "componentType": FLOAT,
                 "count": len(tuples), "type": kind}
        if bounds:
            width = len(tuples[0])
            entry["min"] = [min(values[i::width]) for i in range(width)]
            entry["max"] = [max(values[i::width]) for i in range(width)]
        return self.append("accessors", entry)

    def _indices(self, mesh):
        wide = len(mesh.points) > 65535
        values = array.array("I" if wide else "H", [i for triangle in mesh.triangles for i in triangle])
        return self.append("accessors", {"bufferView": self._view(_little(values), 34963),
                                         "componentType": UINT if wide else USHORT,
                                         "count": len(values), "type": "SCALAR"})

    def _view(self, data, target=None):
        self.data += b"\0" * (-len(self.data) % 4)
        entry = {"buffer": 0, "byteOffset": len(self.data), "byteLength": len(data)}
        if target:
            entry["target"] = target
        self.data += data
        return self.append("bufferViews", entry)


def _little(values):
    if sys.byteorder == "big":
        values.byteswap()
    return values.tobytes()
