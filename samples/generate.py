#!/usr/bin/env python3
"""Writes the sample drawings of a traction motor, and what their regions must be.

usage: generate.py [FOLDER]     (the folder of this script when none is given)

The machine: 48 slots with four hairpins each, 8 poles with two magnets each in the shape of a V. All lengths are in
millimetres, all angles in degrees. The areas of expected.json are worked out here in closed form, from the
dimensions alone; no drawing is read for them.
"""

import json
import math
import pathlib
import sys

from dxf import Drawing, Turned, polar

SLOTS = 48
SLOT_PITCH = 360 / SLOTS
STATOR_RADIUS = 120.0
BORE_RADIUS = 80.5
OPENING_WIDTH = 2.0
TIP_HEIGHT = 0.9        # of the straight part of the slot opening
SHOULDER_HEIGHT = 1.0   # over which the opening widens to the slot
SLOT_WIDTH = 5.0
SLOT_BOTTOM = 110.5     # distance of the slot's bottom from the axis
SLOT_CORNER = 1.2       # radius between a slot's sides and its bottom
HAIRPINS = 4            # in a slot
HAIRPIN_WIDTH = 4.2
HAIRPIN_HEIGHT = 6.2
HAIRPIN_CORNER = 0.6
HAIRPIN_PITCH = 6.8

GAP_RADIUS = 80.15      # the circle in the middle of the air gap
ROTOR_RADIUS = 79.8
SHAFT_RADIUS = 27.5
POLES = 8
POLE_PITCH = 360 / POLES
MAGNET_LENGTH = 20.0
MAGNET_THICKNESS = 6.0
MAGNET_CORNER = (54.0, 7.0)  # the magnet's inner corner away from the gap, with the pole's axis along x
MAGNET_ANGLE = 55.0          # of the magnet's long sides to the pole's axis
OUTER_POCKET = 3.0           # length of the pocket's straight part, before its half-round end
INNER_POCKET = 1.0
HOLE_RADIUS = 5.0
HOLE_DISTANCE = 42.0

LAYERS = {"Stator": 5, "Slot": 3, "Opening": 4, "Hairpin": 30, "AirGap": 9, "Rotor": 1, "Magnet": 6, "Pocket": 2,
          "Hole": 8, "Shaft": 252}

SHOULDER = BORE_RADIUS + TIP_HEIGHT
WEDGE = SHOULDER + SHOULDER_HEIGHT  # where the slot proper begins
QUARTER_BULGE = math.tan(math.radians(90 / 4))
QUARTER_CUT = 1 - math.pi / 4  # what a rounded corner of radius 1 takes away
OPENING_ANGLE = math.degrees(2 * math.asin(OPENING_WIDTH / 2 / BORE_RADIUS))


# --- the drawings ---------------------------------------------------------------------------------------------------

def draw_slot(out):
    """One slot pitch about the x axis: both halves of the tooth tips, the opening, the slot and its hairpins."""
    b, w = OPENING_WIDTH / 2, SLOT_WIDTH / 2
    bore = math.sqrt(BORE_RADIUS**2 - b**2)
    bend = SLOT_BOTTOM - SLOT_CORNER
    out.arc("AirGap", (0, 0), BORE_RADIUS, -SLOT_PITCH / 2, -OPENING_ANGLE / 2)
    out.arc("AirGap", (0, 0), BORE_RADIUS, OPENING_ANGLE / 2, SLOT_PITCH / 2)
    out.arc("Opening", (0, 0), BORE_RADIUS, -OPENING_ANGLE / 2, OPENING_ANGLE / 2)
    for side in (-1, 1):
        out.line("Opening", (bore, side * b), (SHOULDER, side * b))
        out.line("Opening", (SHOULDER, side * b), (WEDGE, side * w))
        out.line("Slot", (WEDGE, side * w), (bend, side * w))
    out.line("Slot", (WEDGE, -w), (WEDGE, w))
    out.arc("Slot", (bend, -w + SLOT_CORNER), SLOT_CORNER, 270, 360)
    out.arc("Slot", (bend, w - SLOT_CORNER), SLOT_CORNER, 0, 90)
    out.line("Slot", (SLOT_BOTTOM, -w + SLOT_CORNER), (SLOT_BOTTOM, w - SLOT_CORNER))
    first = (WEDGE + SLOT_BOTTOM - (HAIRPINS - 1) * HAIRPIN_PITCH) / 2
    for layer in range(HAIRPINS):
        draw_hairpin(out, first + layer * HAIRPIN_PITCH)


def draw_hairpin(out, middle):
    h, w, r = HAIRPIN_HEIGHT / 2, HAIRPIN_WIDTH / 2, HAIRPIN_CORNER
    corners = [(h, -w, 0, 1), (h, w, -1, 0), (-h, w, 0, -1), (-h, -w, 1, 0)]  # corner and the way on from it
    vertices = []
    for x, y, on_x, on_y in corners:
        back_x, back_y = -on_y, on_x  # the way to the corner is the way on, a quarter turn before; this is its reverse
        vertices.append((middle + x + r * back_x, y + r * back_y, QUARTER_BULGE))
        vertices.append((middle + x + r * on_x, y + r * on_y, 0))
    out.polyline("Hairpin", vertices)


def draw_half_pole(out):
    """The magnet on the left of the pole's axis, which is the x axis, with the pockets at both its ends."""
    along = polar(1, MAGNET_ANGLE)
    across = polar(1, MAGNET_ANGLE - 90)  # towards the air gap

    def at(u, v):
        return (MAGNET_CORNER[0] + u * along[0] + v * across[0], MAGNET_CORNER[1] + u * along[1] + v * across[1])

    length, thickness = MAGNET_LENGTH, MAGNET_THICKNESS
    corners = [at(0, 0), at(0, thickness), at(length, thickness), at(length, 0)]
    for start, end in zip(corners, corners[1:] + corners[:1]):
        out.line("Magnet", start, end)
    for from_u, to_u in ((length, length + OUTER_POCKET), (0, -INNER_POCKET)):
        out.line("Pocket", at(from_u, 0), at(to_u, 0))
        out.line("Pocket", at(from_u, thickness), at(to_u, thickness))
        begin = MAGNET_ANGLE - 90 if to_u > from_u else MAGNET_ANGLE + 90
        out.arc("Pocket", at(to_u, thickness / 2), thickness / 2, begin, begin + 180)


def draw_hole(out):
    out.circle("Hole", (HOLE_DISTANCE, 0), HOLE_RADIUS)


def stator_sector():
    """Twelve slots between two cuts through the middle of a tooth, with the outer half of the air gap."""
    drawing = Drawing("Stator sector of twelve slots, millimetres", LAYERS)
    sector = 12 * SLOT_PITCH
    drawing.arc("Stator", (0, 0), STATOR_RADIUS, 0, sector)
    drawing.arc("AirGap", (0, 0), GAP_RADIUS, 0, sector)
    for angle in (0, sector):
        drawing.line("Stator", polar(BORE_RADIUS, angle), polar(STATOR_RADIUS, angle))
        drawing.line("AirGap", polar(GAP_RADIUS, angle), polar(BORE_RADIUS, angle))
    for slot in range(12):
        draw_slot(Turned(drawing, (slot + 0.5) * SLOT_PITCH))
    return drawing


def rotor_pole():
    """One pole between its two neighbours' boundaries, from the axis of the shaft to the middle of the air gap."""
    drawing = Drawing("One rotor pole with its magnets and air pockets, millimetres", LAYERS)
    drawing.arc("AirGap", (0, 0), GAP_RADIUS, 0, POLE_PITCH)
    drawing.arc("Rotor", (0, 0), ROTOR_RADIUS, 0, POLE_PITCH)
    drawing.arc("Shaft", (0, 0), SHAFT_RADIUS, 0, POLE_PITCH)
    for angle in (0, POLE_PITCH):
        drawing.line("Shaft", (0, 0), polar(SHAFT_RADIUS, angle))
        drawing.line("Rotor", polar(SHAFT_RADIUS, angle), polar(ROTOR_RADIUS, angle))
        drawing.line("AirGap", polar(ROTOR_RADIUS, angle), polar(GAP_RADIUS, angle))
    for mirrored in (False, True):
        draw_half_pole(Turned(drawing, POLE_PITCH / 2, mirrored))
    draw_hole(Turned(drawing, POLE_PITCH / 2))
    return drawing


def full_machine():
    """The whole machine: slots and poles are blocks, a pole's block places that of its half twice, once mirrored."""
    drawing = Drawing("Traction motor, 48 slots, 8 poles, millimetres", LAYERS)
    draw_slot(drawing.block("SLOT"))
    draw_half_pole(drawing.block("HALF_POLE"))
    pole = drawing.block("POLE")
    pole.insert("Rotor", "HALF_POLE")
    pole.insert("Rotor", "HALF_POLE", mirrored=True)
    draw_hole(pole)
    drawing.circle("Stator", (0, 0), STATOR_RADIUS)
    drawing.circle("AirGap", (0, 0), GAP_RADIUS)
    drawing.circle("Rotor", (0, 0), ROTOR_RADIUS)
    drawing.circle("Shaft", (0, 0), SHAFT_RADIUS)
    for slot in range(SLOTS):
        drawing.insert("Slot", "SLOT", (slot + 0.5) * SLOT_PITCH)
    for number in range(POLES):
        drawing.insert("Rotor", "POLE", (number + 0.5) * POLE_PITCH)
    return drawing


# --- what their regions must be -------------------------------------------------------------------------------------

def ring(outer, inner, sector):
    return (outer**2 - inner**2) * math.radians(sector) / 2


HAIRPIN_AREA = HAIRPIN_WIDTH * HAIRPIN_HEIGHT - 4 * QUARTER_CUT * HAIRPIN_CORNER**2
SLOT_AREA = SLOT_WIDTH * (SLOT_BOTTOM - WEDGE) - 2 * QUARTER_CUT * SLOT_CORNER**2  # with its hairpins
OPENING_CAP = (math.radians(OPENING_ANGLE) - math.sin(math.radians(OPENING_ANGLE))) / 2 * BORE_RADIUS**2
OPENING_AREA = (OPENING_WIDTH * (SHOULDER - math.sqrt(BORE_RADIUS**2 - OPENING_WIDTH**2 / 4)) - OPENING_CAP +
                (OPENING_WIDTH + SLOT_WIDTH) / 2 * SHOULDER_HEIGHT)
MAGNET_AREA = MAGNET_LENGTH * MAGNET_THICKNESS
HALF_ROUND = math.pi * (MAGNET_THICKNESS / 2)**2 / 2
OUTER_POCKET_AREA = MAGNET_THICKNESS * OUTER_POCKET + HALF_ROUND
INNER_POCKET_AREA = MAGNET_THICKNESS * INNER_POCKET + HALF_ROUND
HOLE_AREA = math.pi * HOLE_RADIUS**2


def kind(name, count, area, inside=None):
    """Regions of one kind: how many, the net area of each, and the kind of region that they lie in."""
    return {"kind": name, "count": count, "net_area": round(area, 9), "inside": inside}


def slot_kinds(slots, sector, iron):
    return [
        kind("stator iron", 1, ring(STATOR_RADIUS, BORE_RADIUS, sector) - slots * (SLOT_AREA + OPENING_AREA)),
        kind("slot", slots, SLOT_AREA - HAIRPINS * HAIRPIN_AREA, iron),
        kind("slot opening", slots, OPENING_AREA, iron),
        kind("hairpin", slots * HAIRPINS, HAIRPIN_AREA, "slot"),
        kind("outer air gap", 1, ring(BORE_RADIUS, GAP_RADIUS, sector), iron),
    ]


def pole_kinds(poles, sector, gap, outer_gap=None, iron=None):
    pole_area = 2 * (MAGNET_AREA + OUTER_POCKET_AREA + INNER_POCKET_AREA) + HOLE_AREA
    return [
        kind("inner air gap", 1, ring(GAP_RADIUS, ROTOR_RADIUS, sector), outer_gap),
        kind("rotor iron", 1, ring(ROTOR_RADIUS, SHAFT_RADIUS, sector) - poles * pole_area, gap),
        kind("magnet", 2 * poles, MAGNET_AREA, "rotor iron"),
        kind("outer pocket", 2 * poles, OUTER_POCKET_AREA, "rotor iron"),
        kind("inner pocket", 2 * poles, INNER_POCKET_AREA, "rotor iron"),
        kind("hole", poles, HOLE_AREA, "rotor iron"),
        kind("shaft", 1, ring(SHAFT_RADIUS, 0, sector), iron),
    ]


def expected():
    drawings = {
        "stator_sector.dxf": slot_kinds(12, 12 * SLOT_PITCH, None),
        "rotor_pole.dxf": pole_kinds(1, POLE_PITCH, None),
        "full_machine.dxf": (slot_kinds(SLOTS, 360, "stator iron") +
                             pole_kinds(POLES, 360, "inner air gap", "outer air gap", "rotor iron")),
    }
    return {name: {"regions": sum(row["count"] for row in kinds), "kinds": kinds} for name, kinds in drawings.items()}


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    for make in (stator_sector, rotor_pole, full_machine):
        (folder / f"{make.__name__}.dxf").write_text(make().text(), encoding="ascii", newline="\n")
    (folder / "expected.json").write_text(json.dumps(expected(), indent=1) + "\n", encoding="ascii", newline="\n")


if __name__ == "__main__":
    main()
