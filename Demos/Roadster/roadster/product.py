"""The tree of the car: which parts it has, where they stand and what can be chosen; and what moves."""

from . import body, cabin, ends, lamps, mirrors, roofs, stand, surface, wheels
from .environments import environments
from .gltf import Node
from .interior import interior
from .mesh import Mesh, both_sides
from .setting import cameras, hall, plinth
from .overlays import overlays
from .tree import AT_REST, NONE, UPRIGHT, again, choice, part, poses, shared, states
from .vectors import turn, turn_after


class Parts:
    """Nodes that the animations move."""


def build():
    """Returns (the roots of the scene, the Parts)."""
    moving = Parts()
    car = Node("Roadster", _chassis(moving), _suspended(moving))
    turned = {name: ((0, 0, 0), turn((0, 1, 0), angle)) for name, angle in (
        ("Front", 0), ("Three Quarter", 35), ("Side", 90), ("Rear", 180))}
    moving.turntable = poses("Turntable", turned, plinth(), car)
    exhibition = Node("Exhibition", hall(), lamps.of_the_stand(), moving.turntable)
    return [exhibition, cameras(), environments(), *overlays()], moving


def _chassis(moving):
    """Four wheels. The later ones are clones of the first, turned round on the right side."""
    designs = _wheel_designs()
    tyre = part("Tyre", (wheels.tyre(), "Rubber"), (wheels.tyre_letters(), "Tyre Lettering"))
    brake = part("Brake", (wheels.brake_disc(), "Cast Iron"), (wheels.caliper(), "Caliper"))
    straight, left, right = AT_REST, ((0, 0, 0), turn((0, 1, 0), 24)), ((0, 0, 0), turn((0, 1, 0), -24))
    steering = states("Steering", [straight, left, right])
    moving.wheels = []
    chassis = Node("Chassis")
    for name, side, z in (("Front Left", 1, surface.FRONT_AXLE), ("Front Right", -1, surface.FRONT_AXLE),
                          ("Rear Left", 1, surface.REAR_AXLE), ("Rear Right", -1, surface.REAR_AXLE)):
        first = not moving.wheels
        rims = designs if first else shared("Wheels", "Wheels", *[again(child) for child in designs.children])
        spin = Node("Wheel Spin " + name, again(tyre), rims)
        moving.wheels.append((spin, side))
        carried = [spin, again(brake)]
        if z > 0.0:
            steered = steering if first else shared("Steering", "Steering")
            steered.children += carried
            carried = [steered]
        mount = Node("Wheel " + name, *carried, translation=[0.742 * side, surface.WHEEL_RADIUS, z])
        if side < 0:
            mount.properties["rotation"] = [0.0, 1.0, 0.0, 0.0]
        chassis.children.append(mount)
    return chassis


def _wheel_designs():
    barrel, narrow = wheels.barrel(), wheels.barrel(0.007)
    nuts = wheels.bolts(0.070)
    return choice(
        "Wheels", 0,
        part("Five Spoke", (wheels.five_spoke(), "Rim"), (barrel, "Rim"), (nuts, "Chrome"),
             (wheels.cap(0.070), "Black Plastic")),
        part("Turbine", (wheels.turbine(), "Brushed Aluminium"), (barrel, "Rim Graphite"), (nuts, "Steel"),
             (wheels.cap(0.074), "Brushed Aluminium")),
        part("Y Spoke", (wheels.y_spoke(), "Rim Gold"), (narrow, "Rim"), (nuts, "Steel"),
             (wheels.cap(0.074), "Black Plastic")),
        part("Wire", (wheels.wire_spokes(), "Chrome"), (barrel, "Chrome"), (wheels.wire_hub(), "Chrome")),
        part("Dish", (wheels.dish(), "Brushed Aluminium"), (barrel, "Rim")))


def _suspended(moving):
    """All that rides on the springs."""
    return states("Suspension", [AT_REST, ((0, -0.028, 0), UPRIGHT), ((0, 0.035, 0), UPRIGHT)],
                  _body(), _doors(moving), _roof(moving), interior())


def _body():
    fenders = both_sides(Mesh().join(body.front_fender(), body.rear_fender()))
    bonnet = Node("Bonnet", part("Bonnet Panel", (body.bonnet(), "Paint")),
                  part("Bonnet Stripes", (body.bonnet_stripes(), "Paint Stripe"), visible=False))
    return Node(
        "Body",
        part("Fenders", (fenders, "Paint"), (both_sides(body.arch_lips()), "Paint")),
        part("Nose", (ends.nose_panel(), "Paint")), part("Tail Panel", (ends.tail_panel(), "Paint")),
        part("Sills", (both_sides(body.sill()), "Paint")), bonnet,
        _boot(), part("Rear Deck", (body.tonneau(), "Paint"), (
            body.shoulder_fillets(), "Paint")),
        part("Scuttle", (body.scuttle(), "Black Plastic")),
        part("Inner Shell", (body.inner_shell(), "Black Plastic"), (body.wheel_housings(), "Black Plastic")),
        part("Side Vents", (both_sides(body.side_vent()), "Black Plastic")),
        part("Fuel Cap", (body.fuel_cap(), "Brushed Aluminium")),
        _front(), _rear(), _lamps(), _exhausts(),
        part("Windscreen", (roofs.windscreen(), "Glass")),
        part("Windscreen Frame", (roofs.windscreen_frame(), "Chrome"), (roofs.screen_seal(), "Rubber")),
        part("Wipers", (roofs.wipers(), "Black Plastic")))


def _boot():
    """The lid turns about its front edge and carries the spoiler; below it lies the luggage."""
    hinge = (0.0, 0.83, surface.DECK)
    closed = {"Closed": (hinge, UPRIGHT), "Ajar": (hinge, turn((1, 0, 0), 12)), "Open": (hinge, turn((1, 0, 0), 58))}

    def hung(mesh):
        return mesh.moved(-hinge[0], -hinge[1], -hinge[2])

    spoiler = choice("Spoiler", NONE, part("Ducktail", (hung(ends.ducktail()), "Paint")),
                     part("Wing", (hung(ends.wing()), "Carbon")))
    case, straps, locks = body.travel_case()
    return Node("Boot", poses("Boot Lid", closed, part("Boot Lid Panel", (hung(body.boot_lid()), "Paint")), spoiler),
                part("Boot Well", (body.boot_well(), "Carpet")),
                part("Travel Case", (case, "Leather"), (straps, "Leather Black"), (locks, "Brass")))


def _front():
    oval, wide = ends.Mouth(0.37, 1.95, 0.62), ends.Mouth(0.52, 1.40, 0.72, 4.0)
    return choice(
        "Front Bumper", 0,
        part("Classic Front", (ends.front_bumper(oval), "Paint"), (oval.recess(0.10), "Black Plastic"),
             (oval.bars(22, 0.035, 0.004, True), "Chrome"), (oval.rim(0.010), "Chrome"),
             (ends.chrome_bars(), "Chrome")),
        part("Sport Front", (ends.front_bumper(wide), "Paint"), (wide.recess(0.10), "Black Plastic"),
             (wide.bars(6, 0.03, 0.005, False), "Black Plastic"), (wide.rim(0.006), "Black Plastic"),
             (ends.splitter(), "Carbon"), (ends.side_intakes(), "Black Plastic"),
             (ends.side_intake_rims(), "Black Plastic")))


def _rear():
    skin, bolt = ends.rear_bumper(), stand.bolt()
    backwards = turn_after(turn((0, 1, 0), 180.0), turn((1, 0, 0), 2.0))
    number = part("Licence Plate", (ends.plate_frame(), "Black Plastic"), (ends.plate(), "Licence Plate"),
                  translation=[0.0, 0.495, -2.038], rotation=list(backwards))
    number.children += [part("Bolt", (bolt, "Chrome"), translation=[x, 0.0, 0.006]) for x in (-0.205, 0.245)]
    bumper = choice("Rear Bumper", 0, part("Classic Rear", (skin, "Paint"), (ends.rear_chrome_bars(), "Chrome")),
                    part("Sport Rear", (skin, "Paint"), (ends.diffuser(), "Carbon")))
    return Node("Tail", bumper, number)


def _lamps():
    badge = body.badge().turned(turn((0, 1, 0), -90.0)).turned(turn((1, 0, 0), -52.0)).moved(0.0, 0.617, 1.872)
    return Node(
        "Lamps",
        part("Headlamps", (ends.lamp_bowls(), "Black Plastic"), (ends.lamp_rings(), "Chrome"),
             (ends.lamp_projectors(), "Lens"), (ends.lamp_projector_rings(), "Chrome")),
        part("Headlamp Glasses", (ends.lamp_glasses(), "Lamp Glass")),
        part("Indicators", (ends.indicators(), "Indicator Glass")),
        part("Tail Lamps", (ends.tail_glasses(), "Tail Glass"), (ends.tail_rings(), "Chrome")),
        part("Reversing Lamps", (ends.reverse_lamps(), "Lens")), part("Badge", (badge, "Chrome")),
        *lamps.of_the_car())


def _exhausts():
    def pipes(places, radius):
        tubes, holes = Mesh(), Mesh()
        for x in places:
            tubes.join(ends.exhaust_pipe(x, radius))
            holes.join(ends.exhaust_hole(x, radius))
        return (tubes, "Chrome"), (holes, "Black Plastic")

    return choice("Exhaust", 0, part("Twin Exhaust", *pipes((-0.52, 0.52), 0.042)),
                  part("Centre Exhaust", *pipes((-0.055, 0.055), 0.046)),
                  part("Quad Exhaust", *pipes((-0.58, -0.47, 0.47, 0.58), 0.038)))


HINGE = (0.80, 0.45, surface.DOOR_FRONT)


def _doors(moving):
    moving.doors = []
    doors = Node("Doors")
    for side, sign in (("Left", 1), ("Right", -1)):
        leaf = _door_leaf(side, sign)
        moving.doors.append((leaf, sign))
        ajar, wide = ((0, 0, 0), turn((0, 1, 0), -22 * sign)), ((0, 0, 0), turn((0, 1, 0), -58 * sign))
        hinge = states(side + " Door", [AT_REST, ajar, wide], leaf)
        doors.children.append(Node(side + " Hinge", hinge, translation=[sign * HINGE[0], HINGE[1], HINGE[2]]))
    return doors


def _door_leaf(side, sign):
    """All that swings with a door, in coordinates of its hinge."""
    def meant(mesh):
        mesh = mesh if sign > 0 else mesh.mirrored()
        return mesh.moved(-sign * HINGE[0], -HINGE[1], -HINGE[2])

    return Node(
        side + " Door Leaf",
        part(side + " Door Skin", (meant(body.door_skin()), "Paint"), (meant(body.door_handle()), "Chrome")),
        part(side + " Door Trim", (meant(cabin.door_trim()), "Leather"), (meant(cabin.arm_rest()), "Leather Black"),
             (meant(cabin.door_pull()), "Brushed Aluminium")),
        part("Side Window", (meant(roofs.side_window()), "Glass"), visible=False),
        _mirror(meant, sign))


def _mirror(meant, sign):
    children = [part(name, *[(meant(mesh), material) for mesh, material in parts])
                for name, parts in mirrors.designs().items()]
    if sign > 0:
        return choice("Mirrors", 0, *children)
    return shared("Mirrors", "Mirrors", *children)


def _roof(moving):
    return choice(
        "Roof", 3,
        Node("Soft Top", _canvas(moving)), _hard_top(),
        Node("Targa", part("Targa Bar", (roofs.targa_bar(), "Brushed Aluminium")),
             part("Targa Window", (roofs.targa_window(), "Tinted Glass")),
             part("Targa Panel", (roofs.targa_panel(), "Paint Black"))),
        part("Open", (roofs.roll_hoops(), "Chrome"), (roofs.folded_top(), "Canvas")),
        part("Speedster Cover", (roofs.speedster_humps(), "Paint"), (roofs.speedster_screen(), "Tinted Glass")))


def _canvas(moving):
    """The soft top about the pivot at which it folds."""
    pivot = (0.0, 0.82, -0.90)

    def at_pivot(mesh):
        return mesh.moved(-pivot[0], -pivot[1], -pivot[2])

    cover = part("Soft Top Cover", (at_pivot(roofs.soft_top()), "Canvas"), (at_pivot(roofs.soft_top_seams()), "Canvas"))
    window = part("Soft Top Window", (at_pivot(roofs.soft_top_window()), "Tinted Glass"))
    moving.canvas = Node("Canvas", cover, window, translation=list(pivot))
    return moving.canvas


def _hard_top():
    """A switch of shells that differ in colour, and a switch of panels that go into their opening."""
    shell, panel = roofs.hard_top(), roofs.roof_panel()
    return Node(
        "Hard Top",
        choice("Hard Top Shell", 0,
               part("Shell in Body Colour", (shell, "Paint")), part("Shell in Black", (shell, "Paint Black"))),
        choice("Hard Top Panel", 0,
               part("Steel Panel", (panel, "Paint Black")), part("Glass Sunroof", (panel, "Tinted Glass")),
               part("Open Sunroof")),
        part("Hard Top Window", (roofs.hard_top_window(), "Tinted Glass")))


def animate(writer, moving):
    """Adds the clips; the nodes must have been written."""
    quarter = [list(turn((0, 1, 0), 90.0 * k)) for k in range(5)]
    writer.animation("Turntable", [(moving.turntable, "rotation", [0, 4, 8, 12, 16], quarter)])
    opened = [(leaf, "rotation", [0.0, 0.6, 1.8, 2.2], [turn((0, 1, 0), -angle * sign) for angle in (0, 14, 52, 58)])
              for leaf, sign in moving.doors]
    writer.animation("Doors open", opened)
    writer.animation("Roof opens", [
        (moving.canvas, "rotation", [0, 2, 4], [UPRIGHT, turn((1, 0, 0), -16), turn((1, 0, 0), -4)]),
        (moving.canvas, "scale", [0, 2, 4], [(1, 1, 1), (0.97, 0.8, 0.6), (0.94, 0.28, 0.26)])])
    rolling = [(node, "rotation", [0.0, 0.5, 1.0, 1.5, 2.0], [list(turn((1, 0, 0), 90.0 * sign * k)) for k in range(5)])
               for node, sign in moving.wheels]
    writer.animation("Wheels turn", rolling)
