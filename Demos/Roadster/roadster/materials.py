"""The materials: PBR factors, a few with textures; and which of them can be exchanged. Base colours are linear."""

from . import pictures, sheets


def _plain(colour, metallic, roughness, **more):
    entry = {"pbrMetallicRoughness": {"baseColorFactor": list(colour) + [1.0] * (4 - len(colour)),
                                      "metallicFactor": metallic, "roughnessFactor": roughness}}
    entry.update(more)
    return entry


def _clear(colour, roughness=0.04):
    return _plain(colour, 0.0, roughness, alphaMode="BLEND", doubleSided=True)


def _lacquer(colour, metallic, roughness):
    coat = {"KHR_materials_clearcoat": {"clearcoatFactor": 1.0, "clearcoatRoughnessFactor": 0.03}}
    return _plain(colour, metallic, roughness, doubleSided=True, extensions=coat)


# "Paint" is what the car is delivered in.
PAINTS = {
    "Paint": _lacquer((0.42, 0.012, 0.018), 0.35, 0.26),
    "Paint Racing Green": _lacquer((0.006, 0.060, 0.026), 0.35, 0.26),
    "Paint Midnight Blue": _lacquer((0.006, 0.015, 0.068), 0.45, 0.24),
    "Paint Silver": _lacquer((0.50, 0.51, 0.53), 0.80, 0.30),
    "Paint Ivory": _lacquer((0.74, 0.68, 0.53), 0.0, 0.30),
    "Paint Sun Yellow": _lacquer((0.78, 0.40, 0.010), 0.05, 0.28),
    "Paint Azure": _lacquer((0.085, 0.30, 0.50), 0.25, 0.28),
    "Paint Black": _lacquer((0.008, 0.008, 0.010), 0.30, 0.22),
    "Paint Stripe": _plain((0.86, 0.84, 0.78), 0.0, 0.32, doubleSided=True),
}

OTHERS = {
    "Chrome": _plain((0.78, 0.79, 0.80), 1.0, 0.08),
    "Brushed Aluminium": _plain((0.60, 0.61, 0.63), 1.0, 0.34, doubleSided=True),
    "Rim": _plain((0.56, 0.57, 0.59), 0.9, 0.24),
    "Rim Graphite": _plain((0.075, 0.078, 0.085), 0.85, 0.30),
    "Rim Gold": _plain((0.50, 0.33, 0.11), 0.95, 0.26),
    "Rubber": _plain((0.012, 0.012, 0.013), 0.0, 0.78),
    "Tyre Lettering": _plain((0.55, 0.55, 0.53), 0.0, 0.70),
    "Black Plastic": _plain((0.013, 0.013, 0.014), 0.0, 0.58, doubleSided=True),
    "Cast Iron": _plain((0.24, 0.24, 0.25), 0.9, 0.40),
    "Caliper": _plain((0.55, 0.03, 0.02), 0.1, 0.32),
    "Glass": _clear((0.55, 0.66, 0.66, 0.20)),
    "Tinted Glass": _clear((0.03, 0.04, 0.045, 0.55)),
    "Lamp Glass": _clear((0.85, 0.90, 0.95, 0.22)),
    "Tail Glass": _plain((0.50, 0.006, 0.010), 0.0, 0.12, emissiveFactor=[0.16, 0.0, 0.0]),
    "Indicator Glass": _plain((0.85, 0.28, 0.02), 0.0, 0.15),
    "Lens": _plain((0.75, 0.82, 0.90), 0.6, 0.05, emissiveFactor=[0.10, 0.11, 0.12]),
    "Leather": _plain((0.36, 0.155, 0.058), 0.0, 0.55, doubleSided=True),
    "Leather Black": _plain((0.022, 0.021, 0.022), 0.0, 0.50, doubleSided=True),
    "Leather Cream": _plain((0.66, 0.55, 0.40), 0.0, 0.55, doubleSided=True),
    "Leather Burgundy": _plain((0.110, 0.012, 0.018), 0.0, 0.50, doubleSided=True),
    "Alcantara": _plain((0.035, 0.036, 0.040), 0.0, 0.95),
    "Piping Red": _plain((0.50, 0.015, 0.02), 0.0, 0.50),
    "Piping White": _plain((0.80, 0.78, 0.74), 0.0, 0.50),
    "Carpet": _plain((0.030, 0.028, 0.027), 0.0, 0.98, doubleSided=True),
    "Canvas": _plain((0.030, 0.031, 0.036), 0.0, 0.92, doubleSided=True),
    "Dial": _plain((0.010, 0.010, 0.012), 0.0, 0.30),
    "Needle": _plain((0.80, 0.10, 0.02), 0.0, 0.40, emissiveFactor=[0.3, 0.03, 0.0]),
    "Plinth White": _plain((0.72, 0.72, 0.71), 0.0, 0.40),
    "Steel": _plain((0.30, 0.31, 0.33), 0.9, 0.42),
    "Light Line": _plain((1.0, 0.96, 0.88), 0.0, 0.50, emissiveFactor=[1.0, 0.94, 0.84]),
    "Backdrop Grey": _plain((0.40, 0.41, 0.43), 0.0, 0.85, doubleSided=True),
    "Rope": _plain((0.24, 0.012, 0.020), 0.0, 0.90),
    "Brass": _plain((0.70, 0.48, 0.18), 1.0, 0.20),
}

TEXTURED = {
    "Licence Plate": (pictures.licence_plate, 0.0, 0.45),
    "Floor Tiles": (pictures.floor_tiles, 0.0, 0.35),
    "Sign": (pictures.sign, 0.0, 0.50),
    "Performance Sheet": (sheets.performance, 0.0, 0.60),
    "Dimensions Sheet": (sheets.dimensions, 0.0, 0.60),
    "Logo": (sheets.logo, 0.0, 0.60),
    "Walnut": (pictures.wood, 0.0, 0.30),
    "Carbon": (pictures.carbon, 0.2, 0.22),
}


# Around everything: they shine by themselves.
SKIES = {"Studio Sky": pictures.studio_sky, "Dusk Sky": pictures.dusk_sky, "Night Sky": pictures.night_sky}


# A colour scheme of the car: its name, what it is, and the materials that stand in for "Paint", "Leather" and "Rim".
SCHEMES = (
    ("Rubinrot", "Ruby with tan leather", "Paint", "Leather", "Rim"),
    ("Renngrün", "Racing green with tan leather", "Paint Racing Green", "Leather", "Rim"),
    ("Mitternachtsblau", "Midnight blue with cream leather", "Paint Midnight Blue", "Leather Cream", "Rim"),
    ("Silber", "Silver with burgundy leather", "Paint Silver", "Leather Burgundy", "Rim"),
    ("Elfenbein", "Ivory with burgundy leather", "Paint Ivory", "Leather Burgundy", "Rim"),
    ("Sonnengelb", "Sun yellow with black leather, graphite rims", "Paint Sun Yellow", "Leather Black",
     "Rim Graphite"),
    ("Azurblau", "Azure with cream leather", "Paint Azure", "Leather Cream", "Rim"),
    ("Schwarz", "Black with tan leather, golden rims", "Paint Black", "Leather", "Rim Gold"),
)


def switches():
    """The materials that can be exchanged: default material -> its alternatives, itself first."""
    return {column[0]: list(dict.fromkeys(column)) for column in _columns()}


def _columns():
    """Per exchangeable material what it is in each scheme. In the first scheme all are what they are by default."""
    return list(zip(*[scheme[2:] for scheme in SCHEMES]))


def add_to(writer):
    """Adds all materials to the file, and the pictures they need."""
    for name, entry in {**PAINTS, **OTHERS}.items():
        writer.material(name, entry)
    for name, (paint, metallic, roughness) in TEXTURED.items():
        entry = _plain((1.0, 1.0, 1.0), metallic, roughness, doubleSided=True)
        entry["pbrMetallicRoughness"]["baseColorTexture"] = {"index": writer.picture(name, paint())}
        writer.material(name, entry)
    for name, paint in SKIES.items():
        entry = _plain((1.0, 1.0, 1.0), 0.0, 1.0, extensions={"KHR_materials_unlit": {}},
                       extras={"qxEnvironment": True})
        entry["pbrMetallicRoughness"]["baseColorTexture"] = {"index": writer.picture(name, paint())}
        writer.material(name, entry)
    writer.schemes([scheme[0] for scheme in SCHEMES], {column[0]: column for column in _columns()})
