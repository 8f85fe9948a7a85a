# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Closed outlines with round corners, and their SVG path data.

An outline is a tuple of corners (x, y, radius). A circle is a square whose corners meet.
"""

import math


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


def signed_area(outline):
    following = outline[1:] + outline[:1]
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(outline, following)) / 2


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


def inset(outline, distance):
    """The outline whose edges lie inside by this distance; a negative one lies outside."""
    side = math.copysign(1, signed_area(outline))
    result = []
    for before, corner, after in neighbours(outline):
        x, y, radius = corner
        angle = turn(before, corner, after)
        length = math.hypot(x - before[0], y - before[1])
        along = (x - before[0]) / length, (y - before[1]) / length
        inward = -along[1] * side, along[0] * side
        slide = -side * distance * math.tan(angle / 2)
        convex = angle * side > 0
        result.append(
            (
                x + inward[0] * distance + along[0] * slide,
                y + inward[1] * distance + along[1] * slide,
                max(0.0, radius + (-distance if convex else distance)),
            )
        )
    return tuple(result)


def ring(outline, stroke):
    """The outline as a stroke that lies wholly inside it."""
    return [outline, inset(outline, stroke)]


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
