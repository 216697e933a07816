"""The tree of everything inside the car."""

from . import cabin, lamps, roofs
from .gltf import Node
from .tree import NONE, again, choice, part, shared
from .vectors import turn


def interior():
    lever, boot, knob = cabin.gear_lever()
    faces, rings, needles = cabin.instruments()
    vent_faces, vent_rings = cabin.vents()
    trim = cabin.dash_trim()
    seats = _seat_designs()
    left = Node("Driver Seat", seats, translation=[0.36, 0.0, -0.10])
    right = Node("Passenger Seat", _seat_clone(seats), translation=[-0.36, 0.0, -0.10])
    return Node(
        "Cabin",
        part("Tub", (cabin.tub(), "Carpet"), (cabin.carpets(), "Carpet"), (cabin.door_sills(), "Black Plastic")),
        part("Tunnel", (cabin.tunnel(), "Leather"), (boot, "Leather Black"), (cabin.hand_brake(), "Leather Black")),
        part("Gear Lever", (lever, "Chrome"), (knob, "Brushed Aluminium")),
        part("Pedals", (cabin.pedals(), "Brushed Aluminium")),
        part("Rear View Mirror", (roofs.mirror_inside(), "Black Plastic")),
        left, right,
        part("Dashboard", (cabin.dashboard(), "Leather Black")),
        part("Instruments", (faces, "Dial"), (rings, "Chrome"), (needles, "Needle"), (vent_faces, "Black Plastic"),
             (vent_rings, "Brushed Aluminium")),
        choice("Dashboard Trim", 0, part("Trim Aluminium", (trim, "Brushed Aluminium")),
               part("Trim Walnut", (trim, "Walnut")), part("Trim Carbon", (trim, "Carbon")),
               part("Trim Painted", (trim, "Paint"))),
        _steering_wheels(), lamps.of_the_cabin())


def _seat_designs():
    soft, hard = cabin.seat(0.05)
    broad, base = cabin.seat(0.015, 0.52)
    rest, posts = cabin.headrest()
    bead = cabin.piping()
    bucket, pads, belts = cabin.bucket()
    sport = Node(
        "Sport Seat",
        part("Sport Cushions", (soft, "Leather"), (rest, "Leather"), (hard, "Black Plastic"),
             (posts, "Chrome")),
        choice("Piping", NONE, part("Red Piping", (bead, "Piping Red")), part("White Piping", (bead, "Piping White"))))
    return choice("Seats", 0, sport,
                  part("Comfort Seat", (broad, "Leather Cream"), (rest, "Leather Cream"), (base, "Leather Black"),
                       (posts, "Chrome")),
                  part("Bucket Seat", (bucket, "Carbon"), (pads, "Alcantara"), (belts, "Piping Red")))


def _seat_clone(seats):
    sport = seats.children[0]
    piping = sport.children[1]
    beads = shared("Piping", "Piping", *[again(child) for child in piping.children])
    return shared("Seats", "Seats", Node("Sport Seat", again(sport.children[0]), beads),
                  *[again(child) for child in seats.children[1:]])


def _steering_wheels():
    tilt = list(turn((1, 0, 0), 21.0))
    wheel = choice(
        "Steering Wheel", 0,
        part("Leather Wheel", (cabin.steering_ring(), "Leather Black"),
             (cabin.steering_arms((0, 180, 270)), "Brushed Aluminium"), (cabin.horn(), "Leather Black")),
        part("Walnut Wheel", (cabin.steering_ring(0.185, 0.012), "Walnut"),
             (cabin.steering_arms((0, 180, 270), 0.178, 0.022), "Chrome"), (cabin.horn(0.036), "Chrome")),
        part("Flat Wheel", (cabin.steering_ring(0.168, 0.017, True), "Alcantara"),
             (cabin.steering_arms((8, 172), 0.160, 0.036), "Black Plastic"), (cabin.horn(0.044), "Caliper")))
    return Node("Steering Column", part("Column", (cabin.column(), "Black Plastic")),
                Node("Steering Wheel Mount", wheel, translation=[0.36, 0.665, 0.275], rotation=tilt))
