# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What the default glyph looks like wherever it is drawn, said without any painter of ours: a bottle
that is narrower at its neck, full from below as far as the battery is charged, and red when that is
hardly at all."""

from collections import Counter
from dataclasses import dataclass

from harness.picture import Box, is_red

# Of the strongest contrast: what is drawn at all, and what is full.
INK, FULL = 0.25, 0.8
# Its walls and the rounding of small pictures hide about a fifth of its height.
NEAR = 0.2
LEAST_HEIGHT = 8
# Around the box of an item, so that its ground is seen.
AIR = 2
LOW_PERCENT = 10


@dataclass(frozen=True)
class Bottle:
    """A glyph as it stands in a picture."""

    box: Box
    is_standing: bool
    has_neck: bool
    # Of what is below the neck.
    fill: float
    has_red: bool

    def shows(self, percent):
        """Whether it is what a battery with that charge is to look like."""
        return self.is_standing and self.has_neck and abs(self.fill - percent / 100) <= NEAR \
            and self.has_red == (percent <= LOW_PERCENT)


def bottle_in(picture, box, on_chip=False):
    """The glyph of the item in the box: of all that is drawn there, the tallest. None where that is
    too small to be one."""
    around = _chip_in(picture, box) if on_chip else Box(
        max(0, box.left - AIR), max(0, box.top - AIR), min(picture.width, box.right + AIR),
        min(picture.height, box.bottom + AIR))
    ground = _ground(picture, around)
    contrasts = {(x, y): _contrast(picture.pixel(x, y), ground)
                 for y in range(around.top, around.bottom) for x in range(around.left, around.right)}
    parts = _parts(contrasts, INK * max(contrasts.values()))
    glyph = max(parts, key=_height, default=())
    return _described(picture, glyph, contrasts)


def _chip_in(picture, box):
    """The ground that the item brings, which is of one colour."""
    colour = _ground(picture, box)
    columns, rows = zip(*((x, y) for y in range(box.top, box.bottom)
                          for x in range(box.left, box.right) if picture.pixel(x, y) == colour))
    return Box(min(columns), min(rows), max(columns) + 1, max(rows) + 1)


def _ground(picture, box):
    return Counter(picture.pixels(box)).most_common(1)[0][0]


def _described(picture, glyph, contrasts):
    rows = {}
    for x, y in glyph:
        rows.setdefault(y, []).append(x)
    if len(rows) < LEAST_HEIGHT:
        return None
    widths = [len(rows[y]) for y in sorted(rows)]
    widest = max(widths)
    body = [y for y in sorted(rows) if len(rows[y]) == widest]
    middle = (min(rows[body[0]]) + max(rows[body[0]])) // 2
    strongest = max(contrasts[place] for place in glyph)
    full = [contrasts.get((middle, y), 0) >= FULL * strongest
            for y in range(body[-1], body[0] - 1, -1)]
    # Below the fill there may be a wall.
    first = full.index(True) if True in full[:2] else 0
    after = full.index(False, first) if False in full[first:] else len(full)
    columns = [x for x, _ in glyph]
    return Bottle(box=Box(min(columns), min(rows), max(columns) + 1, max(rows) + 1),
                  is_standing=len(rows) > widest, has_neck=widths[0] < widest,
                  fill=(after - first) / (len(full) - first),
                  has_red=any(is_red(picture.pixel(x, y)) for x, y in glyph))


def _parts(contrasts, least):
    """The places of at least that contrast, in sets of neighbours."""
    left = {place for place, contrast in contrasts.items() if contrast >= least}
    parts = []
    while left:
        part, reached = set(), [left.pop()]
        while reached:
            x, y = place = reached.pop()
            part.add(place)
            neighbours = {(x + across, y + down) for across in (-1, 0, 1) for down in (-1, 0, 1)}
            reached += neighbours & left
            left -= neighbours
        parts.append(part)
    return parts


def _height(part):
    rows = {y for _, y in part}
    return max(rows) - min(rows)


def _contrast(pixel, ground):
    return max(abs(one - other) for one, other in zip(pixel, ground))
