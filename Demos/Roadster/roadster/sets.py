"""What is offered: the variant sets in their groups, the hotkeys, and the plain nodes that can be shown or hidden."""

from .materials import SCHEMES, switches

PLAIN_VARIANTS = ("Bonnet Stripes", "Side Window", "Licence Plate", "Barrier", "Schild für Besucher")

HOTKEYS = {
    ("Wheels", "!Next (Loop)"): "W", ("Wheels", "!Previous (Loop)"): "Shift+W",
    ("Roof", "!Next (Loop)"): "R", ("Roof", "Soft Top"): "Alt+1",
    ("Roof", "Hard Top"): "Alt+2", ("Roof", "Open"): "Alt+4",
    ("Suspension", "!Next (Loop)"): "H", ("Steering", "!Next (Loop)"): "E",
    ("Left Door", "!Next (Loop)"): "D", ("Right Door", "!Next (Loop)"): "Shift+D",
    ("Hard Top Panel", "!Next (Loop)"): "Shift+R", ("Dashboard Trim", "!Next (Loop)"): "J",
    ("Side Window", "!Toggle"): "G", ("Barrier", "!Toggle"): "B",
    ("Paint Switch", "!Next (Loop)"): "P", ("Paint Switch", "!Previous (Loop)"): "Shift+P",
    ("Leather Switch", "!Next (Loop)"): "L",
    ("Headlight", "!Toggle"): "N", ("Interior Light", "!Toggle"): "I",
    ("Data Sheet", "!Toggle"): "S", ("Data Sheet Page", "!Next (Loop)"): "Space",
    ("Boot Lid", "!Next (Loop)"): "K", ("Turntable", "!Next (Loop)"): "T",
}


def _scheme(name):
    """The states of the material variants in a colour scheme."""
    wanted = next(scheme[2:] for scheme in SCHEMES if scheme[0] == name)
    return {default + " Switch": material for default, material in zip(switches(), wanted)}


_CAR_LIGHTS = ("Headlight", "Tail Light Left", "Tail Light Right")

# Scripts of sets. They run in Python 2.7 and 3 alike.

_SKIN = """\
body = "Exhibition/Turntable/Roadster/Suspension/Body/"
for part in ["Fenders", "Nose", "Tail Panel", "Sills", "Bonnet", "Rear Deck"]:
    findNodePath(body + part).setActive(%s)
"""

_CUT_AWAY = """\
setClippingPlaneVisualization(true, Vec3f(0.8, 0.1, 0.1))
setClippingPlane(Pnt3f(0, 0, 1.25), Vec3f(0, 0, 1), false)
enableClippingPlane(true)
"""

# One set that is made of others; the camera is not to follow each of them.
_OPEN_ALL = """\
for name in ["Open House", "Luggage", "Without Skin"]:
    selectVariantSet(name, True)
"""

_PRICE_LIST = """\
for name in getVariantSets():
    price = findVariantSet(name).getValue("Preis")
    if price:
        print(name + ": " + price + " " + findVariantSet(name).getValue("Währung"))
"""

_SHOW_DAY = """\
findNodePath("Exhibition/Hall/Sign").setActive(False)
print("Show day: the barrier is up, the sign is put away")
"""

_ROAD = (
    {"name": "Stadtwagen", "comment": "Soft top up, comfortable, easy to park", "hotkey": "Ctrl+1",
     "default_viewpoint": "Übersicht", "viewpoints": ("Front",),
     "nodes": {"Roof": "Soft Top", "Side Window": "!Enable", "Wheels": "Five Spoke", "Front Bumper": "Classic Front",
               "Rear Bumper": "Classic Rear", "Exhaust": "Twin Exhaust", "Spoiler": "!None", "Mirrors": "Aero Mirror",
               "Seats": "Comfort Seat", "Steering Wheel": "Leather Wheel", "Dashboard Trim": "Trim Aluminium",
               "Suspension": "Transform 0", "Bonnet Stripes": "!Disable"},
     "materials": _scheme("Azurblau"), "transforms": {"Boot Lid": "Closed"},
     "values": {"Preis": "39 900", "Währung": "EUR"}},
    {"name": "Küstenstraße", "comment": "Open, with wire wheels and walnut", "hotkey": "Ctrl+2",
     "viewpoints": ("Side", "Übersicht"),
     "nodes": {"Roof": "Open", "Side Window": "!Disable", "Wheels": "Wire", "Front Bumper": "Classic Front",
               "Rear Bumper": "Classic Rear", "Exhaust": "Twin Exhaust", "Spoiler": "!None", "Mirrors": "Round Mirror",
               "Seats": "Sport Seat", "Piping": "White Piping", "Steering Wheel": "Walnut Wheel",
               "Dashboard Trim": "Trim Walnut", "Suspension": "Transform 0", "Bonnet Stripes": "!Disable"},
     "materials": _scheme("Elfenbein"), "values": {"Preis": "44 500", "Währung": "EUR"}},
    {"name": "Grand Tour", "comment": "Hard top with a glass sunroof", "hotkey": "Ctrl+3", "viewpoints": ("Rear",),
     "nodes": {"Roof": "Hard Top", "Hard Top Shell": "Shell in Body Colour", "Hard Top Panel": "Glass Sunroof",
               "Side Window": "!Enable", "Wheels": "Turbine", "Exhaust": "Quad Exhaust", "Spoiler": "Ducktail",
               "Seats": "Comfort Seat", "Dashboard Trim": "Trim Walnut"},
     "materials": _scheme("Renngrün"), "targets": ("Roof", "Wheels")},
    {"name": "Winterfest", "comment": "Black hard top, windows up, more ground clearance",
     "nodes": {"Roof": "Hard Top", "Hard Top Shell": "Shell in Black", "Hard Top Panel": "Steel Panel",
               "Side Window": "!Enable", "Wheels": "Five Spoke", "Suspension": "Transform 2"},
     "materials": _scheme("Mitternachtsblau"), "lights": {name: "!Enable" for name in _CAR_LIGHTS}},
)

_TRACK = (
    {"name": "Club Racer", "comment": "Lowered, with wing, splitter and bucket seats", "hotkey": "Ctrl+4",
     "viewpoints": ("Übersicht",),
     "nodes": {"Roof": "Open", "Side Window": "!Disable", "Wheels": "Y Spoke", "Front Bumper": "Sport Front",
               "Rear Bumper": "Sport Rear", "Exhaust": "Centre Exhaust", "Spoiler": "Wing", "Mirrors": "Bullet Mirror",
               "Seats": "Bucket Seat", "Steering Wheel": "Flat Wheel", "Dashboard Trim": "Trim Carbon",
               "Suspension": "Transform 1", "Bonnet Stripes": "!Enable"},
     "materials": _scheme("Sonnengelb"), "values": {"Power": "210 kW", "Weight": "< 940 kg"}},
    {"name": "Speedster", "comment": "Two head fairings and disc wheels", "hotkey": "Ctrl+5", "viewpoints": ("Rear",),
     "nodes": {"Roof": "Speedster Cover", "Side Window": "!Disable", "Wheels": "Dish", "Mirrors": "Bullet Mirror",
               "Exhaust": "Centre Exhaust", "Spoiler": "!None", "Seats": "Bucket Seat", "Suspension": "Transform 1"},
     "materials": _scheme("Silber")},
    {"name": "Targa Sprint", "comment": "Brushed hoop, red piping", "hotkey": "Ctrl+6", "viewpoints": ("Side",),
     "nodes": {"Roof": "Targa", "Side Window": "!Disable", "Wheels": "Turbine", "Front Bumper": "Sport Front",
               "Rear Bumper": "Sport Rear", "Spoiler": "Ducktail", "Seats": "Sport Seat", "Piping": "Red Piping",
               "Steering Wheel": "Flat Wheel"},
     "materials": {"Paint Switch": "Paint Black", "Leather Switch": "Leather Black"}},
    {"name": "Pit Lane", "comment": "Wheels turned in, lowered, headlights on", "viewpoints": ("Wheel",),
     "nodes": {"Steering": "Transform 1", "Suspension": "Transform 1"}, "lights": {"Headlight": "!Enable"},
     "animations": ("Wheels turn",)},
)

_COLOURS = tuple({"name": name, "comment": comment, "materials": _scheme(name)} for name, comment, *_ in SCHEMES)

_SHOW = (
    {"name": "Next Wheel", "comment": "Steps through the five rims", "hotkey": "F5", "viewpoints": ("Wheel",),
     "nodes": {"Wheels": "!Next (Loop)"}},
    {"name": "Previous Roof", "comment": "Steps back through the roofs", "hotkey": "F6",
     "nodes": {"Roof": "!Previous (Loop)"}},
    {"name": "Next Paint", "comment": "Steps through the paints", "hotkey": "F4",
     "materials": {"Paint Switch": "!Next (Loop)"}},
    {"name": "Open House", "comment": "Doors open; look inside", "hotkey": "F7", "viewpoints": ("Interior",),
     "nodes": {"Left Door": "Transform 2", "Right Door": "Transform 2", "Roof": "Open"},
     "lights": {"Interior Light": "!Enable"}},
    {"name": "Demonstration", "comment": "Each selection starts the next clip", "hotkey": "F8", "sequential": True,
     "default_viewpoint": "Übersicht", "nodes": {"Roof": "Soft Top"},
     "animations": ("Doors open", "Roof opens", "Turntable")},
    {"name": "Show Day", "comment": "Timber deck, fins, barrier up", "hotkey": "F9", "viewpoints": ("Übersicht",),
     "nodes": {"Environments": "Dusk", "Plinth": "Timber Deck", "Backdrop": "Timber Fins", "Barrier": "!Enable",
               "Licence Plate": "!Disable"},
     "transforms": {"Turntable": "Three Quarter", "Truss": "High"}, "lights": {"Hall Light": "!Enable"},
     "overlays": {"Logo": "!Enable"},
     "geometries": ("Sign",), "script": _SHOW_DAY},
    {"name": "Night Show", "comment": "Portals of light over a steel grating", "viewpoints": ("Front",),
     "nodes": {"Environments": "Night", "Plinth": "Steel Grating", "Backdrop": "Light Portals",
               "Barrier": "!Toggle"},
     "transforms": {"Truss": "Low"}, "materials": {"Paint Switch": "Paint Midnight Blue"},
     "lights": {"Hall Light": "!Disable", "Headlight": "!Enable", "Tail Light Left": "!Enable",
                "Tail Light Right": "!Enable", "Interior Light": "!Enable", "Spot Left": "!Enable",
                "Spot Middle": "!Enable", "Spot Right": "!Enable"},
     "overlays": {"Logo": "!Disable"}, "animations": ("Turntable",)},
    {"name": "Lamp Check", "comment": "Headlights and tail lights change over", "hotkey": "F3",
     "lights": {name: "!Toggle" for name in _CAR_LIGHTS}},
    {"name": "Luggage", "comment": "The boot opens; a case that matches the seats lies inside", "hotkey": "Shift+F3",
     "viewpoints": ("Rear",), "transforms": {"Boot Lid": "Open"}},
    {"name": "Turn the Stand", "comment": "The car's next side", "hotkey": "F10",
     "viewpoints": ("Übersicht",), "transforms": {"Turntable": "!Next (Loop)"}},
    {"name": "Data Sheet", "comment": "The figures, before the picture", "hotkey": "F1",
     "overlays": {"Data Sheet": "!Enable", "Data Sheet Page": "Performance", "Logo": "!Disable"}},
    {"name": "Turn the Page", "comment": "The data sheet's next page", "hotkey": "Shift+F1",
     "overlays": {"Data Sheet": "!Enable", "Data Sheet Page": "!Next (Loop)"}},
    {"name": "Section", "comment": "The car cut along its middle", "hotkey": "Ctrl+F11", "viewpoints": ("Side",),
     "clipping": {"clipState": 1, "clipPlaneNormalX": 1.0, "clipPlaneNormalY": 0.0, "clipContourWidth": 2}},
    {"name": "Section Off", "comment": "Whole again", "hotkey": "Ctrl+Shift+F11", "clipping": {"clipState": 2}},
    {"name": "Cut-Away", "comment": "A script cuts the car across, before the windscreen", "viewpoints": ("Front",),
     "script": _CUT_AWAY},
    {"name": "Without Skin", "comment": "A script takes the outer panels off", "hotkey": "F12",
     "script": _SKIN % "False"},
    {"name": "With Skin", "comment": "A script puts them on again", "hotkey": "Shift+F12", "script": _SKIN % "True"},
    {"name": "Everything Open", "comment": "A script selects three other sets", "viewpoints": ("Rear",),
     "script": _OPEN_ALL},
    {"name": "Price List", "comment": "A script prints what the sets know about prices", "script": _PRICE_LIST},
)

GROUPS = (("Für die Straße", "Cars to drive every day", _ROAD), ("Rennstrecke", "Cars for the track", _TRACK),
          ("Farbwelten", "Paint, leather and rims that go together", _COLOURS),
          ("Messe & Präsentation", "For the stand at the show", _SHOW))

UNGROUPED = (
    {"name": "As Delivered", "comment": "Everything back to the start", "hotkey": "Ctrl+0",
     "default_viewpoint": "Übersicht",
     "nodes": {"Environments": "Studio", "Backdrop": "Rotunda", "Barrier": "!Disable", "Schild für Besucher": "!Enable",
               "Plinth": "Disc",
               "Steering": "Transform 0", "Wheels": "Five Spoke", "Suspension": "Transform 0",
               "Bonnet Stripes": "!Disable", "Front Bumper": "Classic Front", "Rear Bumper": "Classic Rear",
               "Licence Plate": "!Enable", "Exhaust": "Twin Exhaust", "Spoiler": "!None", "Left Door": "Transform 0",
               "Right Door": "Transform 0", "Side Window": "!Disable", "Mirrors": "Round Mirror", "Roof": "Open",
               "Hard Top Shell": "Shell in Body Colour", "Hard Top Panel": "Steel Panel", "Seats": "Sport Seat",
               "Piping": "!None", "Dashboard Trim": "Trim Aluminium", "Steering Wheel": "Leather Wheel"},
     "transforms": {"Truss": "High", "Turntable": "Front", "Boot Lid": "Closed"},
     "materials": {default + " Switch": default for default in switches()},
     "lights": {"Spot Left": "!Enable", "Spot Middle": "!Enable", "Spot Right": "!Enable", "Hall Light": "!Enable",
                "Headlight": "!Enable", "Tail Light Left": "!Enable", "Tail Light Right": "!Enable",
                "Interior Light": "!Disable"},
     "overlays": {"Data Sheet": "!Disable", "Data Sheet Page": "Performance", "Logo": "!Enable"},
     "script": _SKIN % "True" + 'findNodePath("Exhibition/Hall/Sign").setActive(True)\n', "clipping": {"clipState": 2}},
)
