#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Draw Ferrin's application icon: a green tile with a battery that fills.

The large drawing is the scalable icon and every picture from 64 pixels on. Smaller pictures have a
drawing of their own each, on whole pixels, with less in it. The symbolic icon is for shells that tint
it. The pictures are rendered with rsvg-convert (Debian: librsvg2-bin).

    draw_icons.py           write the icons beside this folder, in icons/
    draw_icons.py --check   only tell whether the drawings are what would be written
"""

import argparse
import subprocess
import sys
from pathlib import Path

from shapes import Picture, inset, moved, path_data, polygon, rectangle, ring

ICONS = Path(__file__).resolve().parent.parent / "icons" / "hicolor"
NAME = "org.ferrin.Ferrin"
SIZES = (16, 22, 24, 32, 48, 64, 96, 128, 256, 512)

# From the top of the tile to its foot, the house's greens between a lighter and a darker one.
TILE = (("0", "#53d29a"), ("0.55", "#2c9a60"), ("1", "#186a41"))
GLASS = "#0b3d25"
WHITE = (("0", "#ffffff"), ("1", "#dcefe5"))


def gradient(name, stops):
    """Downwards; a stop is (offset, colour) or (offset, colour, opacity)."""
    lines = [
        f'    <stop offset="{offset}" stop-color="{colour}"'
        + "".join(f' stop-opacity="{opacity}"' for opacity in rest)
        + "/>"
        for offset, colour, *rest in stops
    ]
    head = f'  <linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1">'
    return "\n".join([head, *lines, "  </linearGradient>"])


def path(data, fill, opacity=None):
    faint = f' fill-opacity="{opacity}"' if opacity else ""
    return f'  <path fill="{fill}"{faint} fill-rule="evenodd" d="{data}"/>'


def drawing(size, *elements):
    return "\n".join(
        (
            # REUSE-IgnoreStart
            "<!-- SPDX-License-Identifier: GPL-3.0-or-later -->",
            "<!-- SPDX-FileCopyrightText: 2026 The Ferrin developers -->",
            # REUSE-IgnoreEnd
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" '
            f'viewBox="0 0 {size} {size}">',
            *elements,
            "</svg>\n",
        )
    )


def pool(left, right, bottom, radius, level, swell):
    """What is in the battery: round at its foot, with one wave on its surface."""
    quarter, half = (right - left) / 4, (right - left) / 2
    return (
        f"M{left} {level}q{quarter} {-2 * swell} {half} 0t{half} 0V{bottom - radius}"
        f"a{radius} {radius} 0 0 1 {-radius} {radius}H{left + radius}"
        f"a{radius} {radius} 0 0 1 {-radius} {-radius}Z"
    )


def large():
    """On a grid of 64; the battery's edges are multiples of 4, so that they are sharp at 96 too."""
    tile = rectangle(3, 3, 58, 58, 14)
    wall = rectangle(20, 20, 24, 32, 7)
    cap = polygon((26, 17.5, 1), (26, 13, 3), (38, 13, 3), (38, 17.5, 1))
    shade = moved(wall, 0, 1.25), moved(cap, 0, 1.25)
    return drawing(
        64,
        gradient("tile", TILE),
        gradient("rim", (("0", "#fff", "0.5"), ("0.5", "#fff", "0.08"), ("1", "#fff", "0.12"))),
        gradient("white", WHITE),
        path(path_data([tile]), "url(#tile)"),
        path(path_data(ring(tile, 0.6)), "url(#rim)"),
        *(path(path_data([inset(part, -0.5)]), GLASS, "0.12") for part in shade),
        *(path(path_data([part]), GLASS, "0.18") for part in shade),
        path(path_data([inset(wall, 2.5)]), GLASS, "0.55"),
        path(pool(25, 39, 47, 2.4, 32, -1.4), "#8fdcb5"),
        path(pool(25, 39, 47, 2.4, 32, 1.4), "#ffffff"),
        path(path_data(ring(wall, 3)), "url(#white)"),
        path(path_data([cap]), "#ffffff"),
    )


def small(size, tile, cap, body, stroke, pool_box):
    """Boxes are (x, y, width, height, radius); the pool is as solid as the wall it may touch."""
    return drawing(
        size,
        gradient("tile", TILE),
        path(path_data([rectangle(*tile)]), "url(#tile)"),
        path(path_data([inset(rectangle(*body), stroke / 2)]), GLASS, "0.6"),
        path(path_data([rectangle(*cap)]), "#ffffff"),
        path(path_data(ring(rectangle(*body), stroke)), "#ffffff"),
        path(path_data([rectangle(*pool_box)]), "#ffffff"),
    )


def medium(size):
    """Of 22 and of 24: the same twenty pixels in another margin."""
    edge = (size - 20) // 2
    return small(
        size,
        (edge, edge, 20, 20, 5),
        (edge + 8, edge + 3, 4, 2, 0.75),
        (edge + 5, edge + 5, 10, 12, 2.5),
        1,
        (edge + 7, edge + 9, 6, 6, 0.5),
    )


SMALL = {
    16: small(16, (1, 1, 14, 14, 3.5), (6, 3, 4, 1, 0.25), (4, 4, 8, 9, 1.75), 1, (5, 8, 6, 4, 0)),
    22: medium(22),
    24: medium(24),
    32: small(32, (1, 1, 30, 30, 7), (13, 6, 6, 2, 1), (9, 8, 14, 18, 3.5), 2, (12, 15, 8, 8, 0.5)),
    48: small(
        48, (2, 2, 44, 44, 10.5), (20, 10, 8, 3, 1.25), (15, 14, 18, 24, 5), 2, (18, 23, 12, 12, 1.5)
    ),
}


def symbolic():
    body = rectangle(3, 3, 10, 12, 2.5)
    parts = [*ring(body, 1), rectangle(6, 1, 4, 2, 0.75), rectangle(5, 8, 6, 5, 0.75)]
    return Picture(16, 16, parts).svg()


def drawings():
    return {
        ICONS / "scalable/apps" / f"{NAME}.svg": large(),
        ICONS / "symbolic/apps" / f"{NAME}-symbolic.svg": symbolic(),
    }


def render(size):
    target = ICONS / f"{size}x{size}/apps" / f"{NAME}.png"
    target.parent.mkdir(parents=True, exist_ok=True)
    command = ["rsvg-convert", "--width", str(size), "--height", str(size), "--output", target]
    subprocess.run(command, input=SMALL.get(size, large()).encode(), check=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare the drawings, write nothing")
    check = parser.parse_args().check
    wanted = drawings()
    stale = [p for p, svg in wanted.items() if not p.exists() or p.read_text() != svg]
    if check:
        for path in stale:
            print(f"{path.name} is not what draw_icons.py draws", file=sys.stderr)
        return 1 if stale else 0
    for path in stale:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(wanted[path])
    for size in SIZES:
        render(size)
    return 0


if __name__ == "__main__":
    sys.exit(main())
