#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Draw the piece of a panel that the previews of the item stand on, light and dark.

It holds, at its right end, what a panel shows beside the item: network, sound and the time. The item
belongs left of them: its right edge 5 left of the network symbol, its middle 7 above that symbol's
foot, which is the middle of the bar. ANCHOR is that symbol's lower left corner.

    draw_mockup.py           write the files beside this folder, in mockup/
    draw_mockup.py --check   only tell whether they are what would be written
"""

import argparse
import sys
from pathlib import Path

from shapes import arc, band, circle, inset, moved, path_data, polygon, rectangle, ring, wound

MOCKUP = Path(__file__).resolve().parent.parent / "mockup"

WIDTH, HEIGHT = 180, 22
ANCHOR = (94, 18)
STROKE = 1.25

# By appearance: the bar from its top to its foot, its edge, and what stands on it.
COLOURS = {
    "light": ("#f1f2f4", "#e4e6ea", "#c6c9cf", "#1d1f22"),
    "dark": ("#34373c", "#2a2c30", "#4a4d52", "#f0f1f3"),
}
OPACITY = "0.6"


def network():
    """Two waves over a dot, in a frame of 14 by 14."""
    waves = [band(*arc(7, 11.5, radius, -45, 45), stroke=STROKE) for radius in (8.6, 5.1)]
    return [*waves, circle(7, 10.75, 2.5)]


def sound():
    """A loudspeaker with one wave, in a frame of 14 by 14."""
    box = polygon(
        (1, 5, 0.5), (3.5, 5), (7, 2, 0.5), (7, 12, 0.5), (3.5, 9), (1, 9, 0.5), radius=0.25
    )
    return [
        box,
        band(*arc(6.5, 7, 3.2, 50, 130), stroke=STROKE),
        band(*arc(6.5, 7, 6, 50, 130), stroke=STROKE),
    ]


def clock():
    """The time as "10:42", each digit 8 high, in a frame of 26 by 14."""
    outer = rectangle(4.5, 3, 5, 8, 2.5)
    zero = [wound(outer, 1), wound(inset(outer, STROKE), -1)]
    colon = [rectangle(11.5, y, 1.5, 1.5, 0.5) for y in (5, 8.5)]
    four = [
        band((19.75, 9), (14.9, 9), (17.6, 3.6), stroke=STROKE),
        band((18.25, 6.6), (18.25, 10.4), stroke=STROKE),
    ]
    two = band(
        (21.6, 5.2), (21.6, 3.6, 1.7), (25.4, 3.6, 1.7), (25.4, 6.4, 1.2), (21.6, 10.4, 0.2),
        (25.4, 10.4), stroke=STROKE,
    )  # fmt: skip
    one = band((0.8, 4.6), (2.2, 3.6), (2.2, 10.4), stroke=STROKE)
    return [one, *zero, *colon, *four, two]


def signs():
    left, top = ANCHOR[0], ANCHOR[1] - 14
    places = ((network(), 0), (sound(), 24), (clock(), 50))
    return [[moved(part, left + x, top) for part in sign] for sign, x in places]


def path(outlines, fill, rule="nonzero"):
    return f'<path fill="{fill}" fill-rule="{rule}" d="{path_data(outlines)}"/>'


def svg(top, foot, edge, sign):
    bar = rectangle(0, 0, WIDTH, HEIGHT, 6)
    return "\n".join(
        (
            # REUSE-IgnoreStart
            "<!-- SPDX-License-Identifier: GPL-3.0-or-later -->",
            "<!-- SPDX-FileCopyrightText: 2026 The Ferrin developers -->",
            # REUSE-IgnoreEnd
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
            f'viewBox="0 0 {WIDTH} {HEIGHT}">',
            '  <linearGradient id="bar" x1="0" y1="0" x2="0" y2="1">',
            f'    <stop offset="0" stop-color="{top}"/>',
            f'    <stop offset="1" stop-color="{foot}"/>',
            "  </linearGradient>",
            f'  {path([inset(bar, 0.5)], "url(#bar)")}',
            f'  {path(ring(bar, 1), edge, "evenodd")}',
            f'  <g opacity="{OPACITY}">',
            *(f"    {path(parts, sign)}" for parts in signs()),
            "  </g>",
            "</svg>\n",
        )
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare the files, write nothing")
    check = parser.parse_args().check
    wanted = {
        MOCKUP / f"mockupMenuBarPreview.{name}.svg": svg(*colours)
        for name, colours in COLOURS.items()
    }
    stale = [p for p, text in wanted.items() if not p.exists() or p.read_text() != text]
    if check:
        for file in stale:
            print(f"{file.name} is not what draw_mockup.py draws", file=sys.stderr)
        return 1 if stale else 0
    MOCKUP.mkdir(exist_ok=True)
    for file in stale:
        file.write_text(wanted[file])
    return 0


if __name__ == "__main__":
    sys.exit(main())
