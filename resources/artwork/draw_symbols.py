#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Draw Ferrin's symbols, battery outlines and bolts as SVG files.

One file per name, one path per file, filled in black: whoever shows a picture tints it. One unit is
one logical pixel. A new picture of the item is one more entry in `symbols()` or `battery_parts()`;
those of the windows, in frames 18 high that a font size maps on, are in window_symbols.py.

    draw_symbols.py           write the files beside this folder, in symbols/
    draw_symbols.py --check   only tell whether they are what would be written
"""

import argparse
import math
import sys
from pathlib import Path

import window_symbols
from shapes import Picture, circle, flipped, inset, moved, polygon, rectangle, ring

SYMBOLS = Path(__file__).resolve().parent.parent / "symbols"

# A symbol is shown 16.5 high and centred in a bar of an even height. Its top then falls on three
# quarters of a pixel, so an edge is sharp where its height ends in one quarter; widths are whole
# and even, so that their edges and their middle are sharp too.
HEIGHT = 16.5
MIDDLE = HEIGHT / 2

# The family: circles span the whole height; squares stay one pixel inside them on each side, which
# gives both the same area.
CIRCLE = 16.0
CENTRE = CIRCLE / 2
SQUARE = 14.0
SQUARE_RADIUS = 3.5
STROKE = 1.5
SIGN_STROKE = 2.0
SOFT = 0.75


def arrow(top, bottom, half_width, stroke=SIGN_STROKE):
    """An upward arrow of strokes with round ends; top is where the mitre of its tip would lie."""
    half, slant, cap = stroke / 2, stroke / math.sqrt(2), stroke / 2
    crotch = top + half + stroke * math.sqrt(2)
    elbow = top + half_width
    return polygon(
        (CENTRE, top, SOFT),
        (CENTRE + half_width, elbow, cap),
        (CENTRE + half_width - slant, elbow + slant, cap),
        (CENTRE + half, crotch, 0),
        (CENTRE + half, bottom, cap),
        (CENTRE - half, bottom, cap),
        (CENTRE - half, crotch, 0),
        (CENTRE - half_width + slant, elbow + slant, cap),
        (CENTRE - half_width, elbow, cap),
    )


def arrowshape(top, shoulder, bottom, half_head, half_shaft, radius):
    """An upward block arrow."""
    return polygon(
        (CENTRE, top),
        (CENTRE + half_head, shoulder),
        (CENTRE + half_shaft, shoulder, 0),
        (CENTRE + half_shaft, bottom),
        (CENTRE - half_shaft, bottom),
        (CENTRE - half_shaft, shoulder, 0),
        (CENTRE - half_head, shoulder),
        radius=radius,
    )


def triangle(top, bottom, half_width, radius):
    return polygon(
        (CENTRE, top),
        (CENTRE + half_width, bottom),
        (CENTRE - half_width, bottom),
        radius=radius,
    )


def bolt(half_width, half_height, wing, lean, radius, x=CENTRE, y=MIDDLE):
    """A bolt about a centre, the same when turned half round; its two wings overlap by 2 * wing."""
    right = [(lean, -half_height, radius), (-half_width, wing, radius), (-lean / 4, wing, 0)]
    left = [(-dx, -dy, r) for dx, dy, r in right]
    return moved(polygon(*right, *left), x, y)


def disc(filled, sign):
    outer = circle(CENTRE, MIDDLE, CIRCLE)
    return Picture(CIRCLE, HEIGHT, ([outer] if filled else ring(outer, STROKE)) + sign)


def tile(filled, sign):
    edge = (HEIGHT - SQUARE) / 2
    outer = rectangle(0, edge, SQUARE, SQUARE, SQUARE_RADIUS)
    sign = [moved(outline, (SQUARE - CIRCLE) / 2, 0) for outline in sign]
    return Picture(SQUARE, HEIGHT, ([outer] if filled else ring(outer, STROKE)) + sign)


def bare(width, filled, outline):
    outline = moved(outline, (width - CIRCLE) / 2, 0)
    return Picture(width, HEIGHT, [outline] if filled else ring(outline, STROKE))


def slot(x, y, width, height):
    """A hole of a power outlet about a centre."""
    return rectangle(x - width / 2, y - height / 2, width, height, SOFT)


# The signs are drawn in a frame as wide as a circle.
ARROWSHAPE = [arrowshape(3, 8.25, 12.25, 5.5, 2, SOFT)]
SIGNS = {
    "arrow.up": [arrow(3.5, 12.75, 4)],
    "arrow.up.to.line": [
        rectangle(4.25, 4.25, 7.5, 1.25, 0.625),
        arrow(6.25, 12.75, 3.75, stroke=STROKE),
    ],
    "arrowshape.up": ARROWSHAPE,
    "arrowtriangle.up": [triangle(3.25, 11.25, 5.25, 1)],
    "bolt": [bolt(4.35, 5.75, 1, 1.7, 0.35)],
}
OUTLETS = {
    "a": [slot(5, MIDDLE, 2, 6), slot(11, MIDDLE, 2, 6)],
    "c": [circle(5, MIDDLE, 3), circle(11, MIDDLE, 3)],
    "g": [slot(8, 6.25, 2, 4), slot(5.5, 11.25, 3, 2), slot(10.5, 11.25, 3, 2)],
}


def xmark():
    """A cross of two strokes with round ends."""
    reach, cap = 7.7, SIGN_STROKE / 2
    crotch = SIGN_STROKE / math.sqrt(2)
    near, far = reach - crotch / 2, reach + crotch / 2
    arm = [(crotch, 0, 0), (far, near, cap), (near, far, cap)]
    corners = []
    for _ in range(4):
        corners += arm
        arm = [(-y, x, r) for x, y, r in arm]
    return Picture(CIRCLE, HEIGHT, [moved(polygon(*corners), CENTRE, MIDDLE)])


def upside_down(picture):
    outlines = [flipped(outline, picture.height) for outline in picture.outlines]
    return Picture(picture.width, picture.height, outlines)


def symbols():
    """Every symbol by its name; ".fill" is the solid one, "down" the mirrored "up"."""
    pictures = {"xmark": xmark()}
    for suffix, filled in (("", False), (".fill", True)):
        for name, sign in SIGNS.items():
            pictures[f"{name}.circle{suffix}"] = disc(filled, sign)
            if sign is not ARROWSHAPE:
                pictures[f"{name}.square{suffix}"] = tile(filled, sign)
        for letter, holes in OUTLETS.items():
            pictures[f"poweroutlet.type.{letter}{suffix}"] = tile(filled, holes)
        block = arrowshape(-0.15, 9.25, 16.25, 9.4, 4, 1)
        pictures[f"arrowshape.up{suffix}"] = bare(16, filled, block)
        pictures[f"bolt{suffix}"] = bare(14, filled, bolt(7.8, 10.25, 2, 3.4, 0.75))
    upward = {name: picture for name, picture in pictures.items() if ".up." in f"{name}."}
    for name, picture in upward.items():
        if "to.line" not in name:
            pictures[name.replace(".up", ".down")] = upside_down(picture)
    return pictures


# The fill that the application draws in a battery has corners of this radius. In an upright frame it
# is 6 wide and up to 12 high and stands on the lower edge or, in an outline, two above it. In a level
# frame it starts at the left edge, up to 18 wide and 8 high, or at 2.5 from it, up to 16 wide and 7
# high.
FILL_RADIUS = 1.2
CAP_RADIUS = 1.0


def solid_battery(width, height, cap_width):
    """An upright body that the whole fill covers, and a terminal of two pixels that it leaves."""
    left, right = (width - cap_width) / 2, (width + cap_width) / 2
    return polygon(
        (0, 2, FILL_RADIUS),
        (left, 2, 0),
        (left, 0, CAP_RADIUS),
        (right, 0, CAP_RADIUS),
        (right, 2, 0),
        (width, 2, FILL_RADIUS),
        (width, height, FILL_RADIUS),
        (0, height, FILL_RADIUS),
    )


def terminal(width, length, stroke):
    """The terminal of an upright outline, round at its top, in the middle of a width."""
    left, right = (width - length) / 2, (width + length) / 2
    return polygon((left, stroke), (left, 0, CAP_RADIUS), (right, 0, CAP_RADIUS), (right, stroke))


def lying(outline, length):
    """An upright outline turned to the right, in a frame of this length."""
    return tuple((length - y, x, r) for x, y, r in outline)


def upright_outline(stroke):
    """A level one set upright: the fill stands two above the lower edge, clear of the wall."""
    wall = rectangle(0, 2, 10, 16, 3)
    return Picture(10, 18, ring(wall, stroke) + [terminal(10, 4, stroke)])


def level_outline(stroke):
    """Odd in height as its fill is, so that the edges of both meet the same pixels."""
    wall = rectangle(0, 0, 21, 11, 3.25)
    return Picture(23, 11, ring(wall, stroke) + [lying(terminal(11, 5, stroke), 23)])


def battery_parts():
    """The outlines by their stroke, and the bolt with the gap that it is set into."""
    # The bolt stands one pixel left of its frame's middle: over the body, not body and terminal.
    spark = bolt(4.5, 7, 1, 1.75, 0.35, x=6.5, y=8)
    return {
        "vertBatt1Border": Picture(6, 14, [solid_battery(6, 14, 4)]),
        "horzBatt1Border": Picture(20, 8, [lying(solid_battery(8, 20, 4), 20)]),
        "vertBatt2Border.100": upright_outline(1.0),
        "vertBatt2Border.125": upright_outline(1.25),
        "horzBatt2Border.100": level_outline(1.0),
        "horzBatt2Border.125": level_outline(1.25),
        "horzBatt2Border.150": level_outline(1.5),
        "customBolt": Picture(15, 16, [spark]),
        "customBoltMask": Picture(15, 16, [inset(spark, -1.5)]),
    }


def files():
    pictures = symbols() | battery_parts() | window_symbols.symbols()
    return {SYMBOLS / f"{name}.svg": picture.svg() for name, picture in pictures.items()}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare the files, write nothing")
    check = parser.parse_args().check
    wanted = files()
    stale = [p for p, svg in wanted.items() if not p.exists() or p.read_text() != svg]
    stale += [p for p in SYMBOLS.glob("*.svg") if p not in wanted]
    if check:
        for path in sorted(stale):
            print(f"{path.name} is not what draw_symbols.py draws", file=sys.stderr)
        return 1 if stale else 0
    SYMBOLS.mkdir(exist_ok=True)
    for path in stale:
        if path in wanted:
            path.write_text(wanted[path])
        else:
            path.unlink()
    return 0


if __name__ == "__main__":
    sys.exit(main())
