# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Closed outlines with round corners, and the SVG files made of them.

An outline is a tuple of corners (x, y, radius). A circle is a square whose corners meet. A band is
the outline of a stroke along such corners, with round ends.
"""

import math
from dataclasses import dataclass


def polygon(*corners, radius=0.0):
    """Corners as (x, y) with the common radius, or as (x, y, radius)."""
    return tuple(c if len(c) == 3 else (*c, radius) for c in corners)


def rectangle(x, y, width, height, radius=0.0):
    right, bottom = x + width, y + height
    return polygon((x, y), (right, y), (right, bottom), (x, bottom), radius=radius)


def circle(x, y, diameter):
    half = diameter / 2
    return rectangle(x - half, y - half, diameter, diameter, half)


def moved(outline, dx, dy):
    return tuple((x + dx, y + dy, r) for x, y, r in outline)


def flipped(outline, height):
    """Upside down within a frame of this height."""
    return tuple((x, height - y, r) for x, y, r in outline)


def turned(outline, degrees, x, y):
    """Clockwise about a centre."""
    sine, cosine = math.sin(math.radians(degrees)), math.cos(math.radians(degrees))
    return tuple(
        (x + (px - x) * cosine - (py - y) * sine, y + (px - x) * sine + (py - y) * cosine, r)
        for px, py, r in outline
    )


def signed_area(outline):
    following = outline[1:] + outline[:1]
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(outline, following)) / 2


def wound(outline, direction):
    """The outline run through clockwise (1) or counterclockwise (-1)."""
    return outline if signed_area(outline) * direction > 0 else outline[::-1]


def turn(before, corner, after):
    """The angle by which the outline turns at a corner, in radians; its sign is the direction."""
    ax, ay = corner[0] - before[0], corner[1] - before[1]
    bx, by = after[0] - corner[0], after[1] - corner[1]
    return math.atan2(ax * by - ay * bx, ax * bx + ay * by)


def neighbours(outline):
    """Each corner between the one before and the one after it."""
    return zip(outline[-1:] + outline[:-1], outline, outline[1:] + outline[:1])


def towards(corner, other, distance):
    part = distance / math.dist(corner[:2], other[:2])
    return corner[0] + (other[0] - corner[0]) * part, corner[1] + (other[1] - corner[1]) * part


def parallel(before, corner, after, distance):
    """The corner of the line that runs beside, by this distance on the side of a positive turn."""
    x, y, radius = corner
    angle = turn(before, corner, after)
    length = math.hypot(x - before[0], y - before[1])
    along = (x - before[0]) / length, (y - before[1]) / length
    slide = -distance * math.tan(angle / 2)
    return (
        x - along[1] * distance + along[0] * slide,
        y + along[0] * distance + along[1] * slide,
        max(0.0, radius - math.copysign(1, angle) * distance),
    )


def inset(outline, distance):
    """The outline whose edges lie inside by this distance; a negative one lies outside."""
    across = math.copysign(1, signed_area(outline)) * distance
    return tuple(parallel(*corners, across) for corners in neighbours(outline))


def ring(outline, stroke):
    """The outline as a stroke that lies wholly inside it."""
    return [outline, inset(outline, stroke)]


def band(*points, stroke):
    """A stroke along corners from the first to the last, round where it ends and where it turns."""
    half = stroke / 2
    points = polygon(*points)
    outline = []
    for way in (points, points[::-1]):
        (x, y, _), following = way[0], way[1]
        part = half / math.dist((x, y), following[:2])
        dx, dy = part * (following[0] - x), part * (following[1] - y)
        outline += [(x - dx + dy, y - dy - dx, half), (x - dx - dy, y - dy + dx, half)]
        outline += [parallel(*corners, half) for corners in zip(way, way[1:], way[2:])]
    return tuple(outline)


def arc(x, y, radius, start, end):
    """The points of an arc about a centre, in degrees clockwise from the top."""
    count = math.ceil(abs(end - start) / 60)
    step = math.radians(end - start) / count

    def at(steps, distance, corner):
        angle = math.radians(start) + step * steps
        return x + distance * math.sin(angle), y - distance * math.cos(angle), corner

    corners = [at(i + 0.5, radius / math.cos(step / 2), radius) for i in range(count)]
    return [at(0, radius, 0), *corners, at(count, radius, 0)]


def number(value):
    return f"{round(value, 3) + 0:g}"


def point(x, y):
    return f"{number(x)} {number(y)}"


def outline_data(outline):
    """Lines between the corners, an arc round each corner that has a radius."""
    steps, at = [], None
    for before, corner, after in neighbours(outline):
        x, y, radius = corner
        angle = turn(before, corner, after)
        reach = radius * abs(math.tan(angle / 2))
        start, end = (point(*towards(corner, other, reach)) for other in (before, after))
        if start != at:
            steps.append(f"{'L' if steps else 'M'}{start}")
        if reach > 0:
            steps.append(f"A{number(radius)} {number(radius)} 0 0 {int(angle > 0)} {end}")
        at = end
    return "".join(steps) + "Z"


def path_data(outlines):
    return "".join(outline_data(o) for o in outlines)


@dataclass(frozen=True)
class Picture:
    """A frame in logical pixels and the outlines in it, filled even-odd unless said otherwise."""

    width: float
    height: float
    outlines: list
    fill_rule: str = "evenodd"

    def svg(self):
        width, height = f"{self.width:g}", f"{self.height:g}"
        return (
            "<!-- SPDX-License-Identifier: GPL-3.0-or-later -->\n"
            "<!-- SPDX-FileCopyrightText: 2026 The Ferrin developers -->\n"
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n'
            f'  <path fill-rule="{self.fill_rule}" d="{path_data(self.outlines)}"/>\n'
            "</svg>\n"
        )
