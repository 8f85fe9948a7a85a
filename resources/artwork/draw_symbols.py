#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Draw Ferrin's symbols, battery outlines and bolts as SVG files.

One file per name, one path per file, filled even-odd in black: whoever shows a picture tints it.
One unit is one logical pixel. A new picture is one more entry in `symbols()` or `battery_parts()`.

    draw_symbols.py           write the files beside this folder, in symbols/
    draw_symbols.py --check   only tell whether they are what would be written
"""

import argparse
import math
import sys
from dataclasses import dataclass
from pathlib import Path

from shapes import circle, flipped, inset, moved, path_data, polygon, rectangle, ring

SYMBOLS = Path(__file__).resolve().parent.parent / "symbols"

# A symbol is shown 16.5 high and centred in a bar of an even height. Its top then falls on three
# quarters of a pixel, so an edge is sharp where its height ends in one quarter; widths are whole and
# even, so that their edges and their middle are sharp too.
HEIGHT = 16.5
TOP = 0.25
MIDDLE = HEIGHT / 2

# The family: circles span the whole height; squares stay one pixel inside them on each side, which
# gives both the same area.
CIRCLE = 16.0
SQUARE = 14.0
SQUARE_RADIUS = 3.5
STROKE = 1.5
SIGN_STROKE = 2.0
SOFT = 0.75


@dataclass(frozen=True)
class Picture:
    """A frame in logical pixels and the outlines within it, filled even-odd."""

    width: float
    height: float
    outlines: list

    def svg(self):
        size = f"{self.width:g}", f"{self.height:g}"
        return (
            "<!-- SPDX-License-Identifier: GPL-3.0-or-later -->\n"
            "<!-- SPDX-FileCopyrightText: 2026 The Ferrin developers -->\n"
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{size[0]}" height="{size[1]}" '
            f'viewBox="0 0 {size[0]} {size[1]}">\n'
            f'  <path fill-rule="evenodd" d="{path_data(self.outlines)}"/>\n'
            "</svg>\n"
        )


def arrow(top, bottom, half_width, stroke=SIGN_STROKE, x=CIRCLE / 2):
    """An upward arrow of strokes with round ends; top is where the mitre of its tip would lie."""
    half, slant, cap = stroke / 2, stroke / math.sqrt(2), stroke / 2
    crotch = top + half + stroke * math.sqrt(2)
    elbow = top + half_width
    return polygon(
        (x, top, SOFT),
        (x + half_width, elbow, cap),
        (x + half_width - slant, elbow + slant, cap),
        (x + half, crotch, 0),
        (x + half, bottom, cap),
        (x - half, bottom, cap),
        (x - half, crotch, 0),
        (x - half_width + slant, elbow + slant, cap),
        (x - half_width, elbow, cap),
    )


def arrowshape(top, shoulder, bottom, half_head, half_shaft, radius, x=CIRCLE / 2):
    """An upward block arrow."""
    return polygon(
        (x, top),
        (x + half_head, shoulder),
        (x + half_shaft, shoulder, 0),
        (x + half_shaft, bottom),
        (x - half_shaft, bottom),
        (x - half_shaft, shoulder, 0),
        (x - half_head, shoulder),
        radius=radius,
    )


def triangle(top, bottom, half_width, radius, x=CIRCLE / 2):
    return polygon((x, top), (x + half_width, bottom), (x - half_width, bottom), radius=radius)


def bolt(half_width, half_height, wing, lean, radius, x=CIRCLE / 2, y=MIDDLE):
    """A bolt about a centre, the same when turned half round; its two wings overlap by 2 * wing."""
    right = [(lean, -half_height, radius), (-half_width, wing, radius), (-lean / 4, wing, 0)]
    left = [(-dx, -dy, r) for dx, dy, r in right]
    return moved(polygon(*right, *left), x, y)


def disc(filled, sign):
    outer = circle(CIRCLE / 2, MIDDLE, CIRCLE)
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


ARROW = [arrow(3.5, 12.75, 4)]
ARROW_TO_LINE = [
    rectangle(4.5, 4.25, 7, STROKE, STROKE / 2),
    arrow(6.25, 12.75, 3.5, stroke=1.75),
]
ARROWSHAPE = [arrowshape(3, 8.25, 12.25, 5.5, 2, SOFT)]
TRIANGLE = [triangle(3.25, 11.25, 5.25, 1)]
BOLT = [bolt(4.35, 5.75, 1, 1.7, 0.35)]
OUTLET_A = [slot(5, MIDDLE, 2, 6), slot(11, MIDDLE, 2, 6)]
OUTLET_C = [circle(5.5, MIDDLE, 3), circle(10.5, MIDDLE, 3)]
OUTLET_G = [slot(8, 5.25, 2, 4), slot(5, 10.25, 4, 2), slot(11, 10.25, 4, 2)]


def upside_down(picture):
    outlines = [flipped(outline, picture.height) for outline in picture.outlines]
    return Picture(picture.width, picture.height, outlines)


def symbols():
    """Every symbol by its name; ".fill" is the solid one, "down" the mirrored "up"."""
    pictures = {}
    for suffix, filled in (("", False), (".fill", True)):
        for name, sign in (
            ("arrow.up", ARROW),
            ("arrow.up.to.line", ARROW_TO_LINE),
            ("arrowshape.up", ARROWSHAPE),
            ("arrowtriangle.up", TRIANGLE),
            ("bolt", BOLT),
        ):
            pictures[f"{name}.circle{suffix}"] = disc(filled, sign)
            if sign is not ARROWSHAPE:
                pictures[f"{name}.square{suffix}"] = tile(filled, sign)
        for letter, holes in (("a", OUTLET_A), ("c", OUTLET_C), ("g", OUTLET_G)):
            pictures[f"poweroutlet.type.{letter}{suffix}"] = tile(filled, holes)
        pictures[f"arrowshape.up{suffix}"] = bare(
            16, filled, arrowshape(-0.25, 9.25, 16.25, 9.5, 4, 1)
        )
        pictures[f"bolt{suffix}"] = bare(12, filled, bolt(6.95, 10.3, 2, 2.9, 0.75))
    for name in [n for n in pictures if ".up" in n and ".to." not in n]:
        pictures[name.replace(".up", ".down")] = upside_down(pictures[name])
    pictures["xmark"] = xmark()
    return pictures


def xmark():
    """A cross of two strokes with round ends."""
    half, reach = SIGN_STROKE / 2 * math.sqrt(2), 7.5
    slant = half / 2
    arm = [(reach, reach - half), (reach + 0, reach)]
    corners = []
    for quarter in range(4):
        for x, y in ((half, 0), (reach + slant, reach - slant), (reach - slant, reach + slant)):
            for _ in range(quarter):
                x, y = -y, x
            corners.append((x, y, 0 if 0 in (x, y) else SIGN_STROKE / 2))
    return Picture(CIRCLE, HEIGHT, [moved(polygon(*corners), CIRCLE / 2, MIDDLE)])


# The fills that the application draws in the batteries; their round corners are 1.2.
FILL_RADIUS = 1.2
VERTICAL_FILL = 6.0, 12.0


def bodies():
    """First generation: a pale body that the whole fill covers, and a terminal that it leaves."""
    upright = polygon(
        (0, 2, FILL_RADIUS), (1, 2, 0), (1, 0, 1), (5, 0, 1), (5, 2, 0), (6, 2, FILL_RADIUS),
        (6, 14, FILL_RADIUS), (0, 14, FILL_RADIUS),
    )
    level = tuple((14 - y, x, r) for x, y, r in reversed(upright))
    level = polygon(
        (0, 0, FILL_RADIUS), (18, 0, FILL_RADIUS), (18, 2, 0), (20, 2, 1), (20, 6, 1), (18, 6, 0),
        (18, 8, FILL_RADIUS), (0, 8, FILL_RADIUS),
    )
    return {"vertBatt1Border": Picture(6, 14, [upright]), "horzBatt1Border": Picture(20, 8, [level])}


def level_outline(height, stroke):
    """Second generation: a wall round a fill of 16 that starts at 2.5, and a terminal at its end."""
    wall = rectangle(0, 0, 21, height, 3.25)
    cap = polygon((23 - stroke, 3, 0), (23, 3, 1), (23, height - 3, 1), (23 - stroke, height - 3, 0))
    return Picture(23, height, ring(wall, stroke) + [cap])


def upright_outline(stroke):
    wall = rectangle(0, 2, 10, 14, 3)
    cap = polygon((3, 0, 1), (7, 0, 1), (7, stroke, 0), (3, stroke, 0))
    return Picture(10, 16, ring(wall, stroke) + [cap])


def battery_parts():
    """The parts of the battery glyphs; the application draws the fill between them."""
    pictures = bodies()
    for name, stroke in (("100", 1.0), ("125", 1.25), ("150", 1.5)):
        pictures[f"horzBatt2Border.{name}"] = level_outline(11, stroke)
        if name != "150":
            pictures[f"vertBatt2Border.{name}"] = upright_outline(stroke)
    spark = bolt(4.6, 7, 1, 1.75, 0.35, 4, 7)
    pictures["customBolt"] = Picture(10, 14, [spark])
    pictures["customBoltMask"] = Picture(10, 14, [inset(spark, -1.25)])
    return pictures


def files():
    pictures = symbols() | battery_parts()
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
        path.write_text(wanted[path]) if path in wanted else path.unlink()
    return 0


if __name__ == "__main__":
    sys.exit(main())
