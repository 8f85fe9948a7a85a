# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The symbols that stand beside the windows' texts.

Every frame is 18 high, and that height is what a font size maps on: beside a text of 18 pixels a
circle is 18 across and strokes are two pixels; those that the cards show in the regular weight are drawn
lighter. Frames are as wide as their signs, in whole pixels.
"""

import math

from shapes import Picture, arc, band, circle, inset, polygon, rectangle, ring, turned, wound

HEIGHT = 18
MIDDLE = HEIGHT / 2
STROKE = 2.0
REGULAR = 1.5
# The chevron takes turns with the cross, which is drawn in the item's frame.
XMARK_STROKE = 2.2
DOT = 2.5
GAP = 1.5


def sign(width, solids, holes=()):
    """Solids that may overlap, less the holes."""
    outlines = [wound(o, 1) for o in solids] + [wound(o, -1) for o in holes]
    return Picture(width, HEIGHT, outlines, "nonzero")


def line(*points, stroke=STROKE):
    return band(*points, stroke=stroke)


def dot(x, y, stroke=STROKE):
    return circle(x, y, DOT * stroke / STROKE)


DISC = circle(MIDDLE, MIDDLE, HEIGHT)


def in_circle(*solids, stroke=STROKE):
    outer, inner = ring(DISC, stroke)
    return sign(HEIGHT, [outer, *solids], [inner])


def out_of_disc(*holes):
    return sign(HEIGHT, [DISC], holes)


def chart_bar_fill():
    """Three bars and two gaps on the eleven columns of the menu's size."""
    column = HEIGHT / 11
    bars = [
        rectangle(4 * i * column, HEIGHT - high * column, 3 * column, high * column, 1.25)
        for i, high in enumerate((6, 11, 8))
    ]
    return sign(HEIGHT, bars)


def heart_fill():
    """A square on its corner, its upper edges widened to half circles."""
    side, foot = 10.3, 17.4
    step = side / math.sqrt(2)
    right = [(9 + 1.5 * step, foot - 1.5 * step), (9 + step / 2, foot - 2.5 * step)]
    left = [(HEIGHT - x, y) for x, y in reversed(right)]
    lobes = [(x, y, side / 2) for x, y in right]
    mirrored = [(x, y, side / 2) for x, y in left]
    return sign(HEIGHT, [polygon((9, foot, 1.5), *lobes, (9, foot - 2 * step, 0.4), *mirrored)])


def switch_2():
    """One switch on, filled with its knob cut out; one off, its knob resting on the left."""
    width, pill = 20, 8
    lower = HEIGHT - pill
    on = rectangle(0, 0, width, pill, pill / 2)
    off = rectangle(0, lower, width, pill, pill / 2)
    return sign(
        width,
        [on, off, circle(pill / 2, lower + pill / 2, pill - 1)],
        [circle(width - pill / 2, pill / 2, pill - 2 * STROKE + 0.5), inset(off, STROKE)],
    )


def question_mark(stroke=STROKE):
    bowl = arc(MIDDLE, 6.5, 2.75, 265, 520)
    hook = line(*bowl[:-1], (MIDDLE, 9.42, 1.43), (MIDDLE, 10.5), stroke=stroke)
    return [hook, dot(MIDDLE, 13.6, stroke)]


def arrow_up(top, reach, x=7):
    head = line((x - reach, top + reach), (x, top), (x + reach, top + reach))
    return [line((x, top), (x, 16.5)), head]


def arrow_clockwise():
    head = polygon((8.75, -0.8), (15.1, 3), (8.75, 6.8), radius=0.75)
    return sign(HEIGHT, [line(*arc(MIDDLE, 10, 7, 75, 360)), head])


CHECK = line((5.25, 9.25), (8, 12), (12.75, 6.25))


def warning(x, top, half_width, bottom, radius):
    return polygon((x, top), (x + half_width, bottom), (x - half_width, bottom), radius=radius)


def way_out(start, end, radius):
    """Where a line that starts within a circle about the middle of the frame leaves it."""
    x, y = start[0] - MIDDLE, start[1] - MIDDLE
    dx, dy = end[0] - start[0], end[1] - start[1]
    a, b, c = dx * dx + dy * dy, x * dx + y * dy, x * x + y * y - radius * radius
    part = (math.sqrt(b * b - a * c) - b) / a
    return start[0] + dx * part, start[1] + dy * part


def bearing(point):
    return math.degrees(math.atan2(point[0] - MIDDLE, MIDDLE - point[1])) % 360


def checkmark_with_badge():
    """The circle is open where a gap runs round the badge, cut along the badge's own edges."""
    badge = warning(14, 7.6, 6.9, 18, 1.5)
    apex, right, left = inset(badge, -GAP)

    def edge(radius):
        start, end = (bearing(way_out(apex, corner, radius)) for corner in (left, right))
        return arc(MIDDLE, MIDDLE, radius, start, end + 360)

    open_ring = tuple(edge(HEIGHT / 2) + edge(HEIGHT / 2 - STROKE)[::-1])
    check = line((4.75, 8.5), (7, 10.75), (10.75, 6))
    mark = [line((14, 11.5), (14, 13)), circle(14, 16, STROKE)]
    return sign(20, [open_ring, check, badge], mark)


def exclamationmark_triangle():
    outer, inner = ring(warning(10, -1, 11.25, 17.5, 2.75), STROKE)
    return sign(20, [outer, line((10, 7), (10, 10.5)), dot(10, 13.5)], [inner])


def waveform():
    halves = (2, 5, 8, 3.5, 1)
    bars = [line((x, MIDDLE - h), (x, MIDDLE + h), stroke=REGULAR)
            for x, h in zip(range(1, HEIGHT, 4), halves)]
    return sign(HEIGHT, bars)


def text_bubble():
    outer, inner = ring(rectangle(0, 0, 20, 15, 4), REGULAR)
    tail = polygon((4.5, 14, 0), (10.5, 14, 0), (4.5, 18.7, 0.5))
    lines = [line((5.5, y), (end, y), stroke=REGULAR) for y, end in ((5, 14.5), (10, 11.5))]
    return sign(20, [outer, tail, *lines], [inner])


def apple():
    """A fruit with its stem and a leaf."""
    right = [(10.8, 4.4, 2.4), (16, 4.4, 4.6), (16, 13, 10), (11.3, 18.4, 2.4)]
    left = [(16 - x, y, r) for x, y, r in reversed(right)]
    outer, inner = ring(polygon((8, 6, 1.2), *right, (8, 17.3, 2), *left), STROKE)
    leaf = polygon((9.5, 0, 3), (13, 0, 0.3), (13, 3.25, 3), (9.5, 3.25, 0.3))
    return sign(16, [outer, line((8, 5.75), (8, 2)), leaf], [inner])


def person_text_rectangle():
    outer, inner = ring(rectangle(0, 1, 22, 16, 3.5), REGULAR)
    shoulders = polygon((4, 13, 0.5), (4, 9.6, 3), (10, 9.6, 3), (10, 13, 0.5))
    lines = [line((13.5, y), (17, y), stroke=REGULAR) for y in (7, 11)]
    return sign(22, [outer, circle(7, 6.9, 4), shoulders, *lines], [inner])


def gearshape_fill():
    tooth = ((-13.5, 7, 0.5), (-9.5, 9.1, 1), (9.5, 9.1, 1), (13.5, 7, 0.5))
    rim = []
    for i in range(8):
        for degrees, radius, corner in tooth:
            angle = math.radians(45 * i + degrees)
            rim.append((9 + radius * math.sin(angle), 9 - radius * math.cos(angle), corner))
    return sign(HEIGHT, [tuple(rim)], [circle(MIDDLE, MIDDLE, 6)])


def battery(charge):
    """A level battery; of the charge, the part that is full."""
    outer, inner = ring(rectangle(0, 3, 24, 12, 3.5), STROKE)
    fill = rectangle(3.25, 6.25, 17.5 * charge, 5.5, 1)
    cap = polygon((25, 6.5, 0), (27, 6.5, 1.5), (27, 11.5, 1.5), (25, 11.5, 0))
    return sign(27, [outer, fill, cap], [inner])


def link():
    """Two links of a chain and the part that they share."""
    left = line((7.5, 5), (1, 5, 4), (1, 13, 4), (7.5, 13))
    right = tuple((20 - x, y, r) for x, y, r in left)
    return sign(20, [left, right, line((6.5, MIDDLE), (13.5, MIDDLE))])


def envelope():
    outer, inner = ring(rectangle(0, 1, 20, 16, 3.5), STROKE)
    return sign(20, [outer, line((1.75, 5), (10, 11), (18.25, 5))], [inner])


def power():
    return sign(HEIGHT, [line(*arc(9, 10, 7, 35, 325)), line((9, 1), (9, 9))])


def symbols():
    """Every symbol of the windows that the item does not show, by its name."""
    cross = [line((6, 6), (12, 12)), line((6, 12), (12, 6))]
    hand = line((9, 4.75), (9, 9), (12, 11), stroke=REGULAR)
    letter_i = [dot(9, 5.25), line((9, 9), (9, 13))]
    upward = sign(14, arrow_up(2, 5.5))
    return {
        "apple.logo": apple(),
        "arrow.clockwise": arrow_clockwise(),
        "arrow.down": sign(14, [turned(o, 180, 7, MIDDLE) for o in upward.outlines]),
        "arrow.up": upward,
        "arrow.up.to.line": sign(14, [line((1.5, 2), (12.5, 2)), *arrow_up(6, 5)]),
        "battery.100": battery(1),
        "battery.75": battery(0.75),
        "chart.bar.fill": chart_bar_fill(),
        "checkmark": sign(16, [line((1.75, 9.75), (6, 14), (14.25, 4))]),
        "checkmark.circle": in_circle(CHECK),
        "checkmark.circle.trianglebadge.exclamationmark": checkmark_with_badge(),
        "chevron.down": sign(16, [band((1.5, 6), (8, 12.5), (14.5, 6), stroke=XMARK_STROKE)]),
        "clock": in_circle(hand, stroke=REGULAR),
        "envelope": envelope(),
        "exclamationmark.triangle": exclamationmark_triangle(),
        "gearshape.fill": gearshape_fill(),
        "heart.fill": heart_fill(),
        "info.circle.fill": out_of_disc(*letter_i),
        "link": link(),
        "pause": sign(14, [line((4.5, 3.75), (4.5, 14.25)), line((9.5, 3.75), (9.5, 14.25))]),
        "person.text.rectangle": person_text_rectangle(),
        "plus": sign(16, [line((8, 2), (8, 16)), line((1, 9), (15, 9))]),
        "power": power(),
        "questionmark.circle": in_circle(*question_mark(REGULAR), stroke=REGULAR),
        "questionmark.circle.fill": out_of_disc(*question_mark()),
        "switch.2": switch_2(),
        "text.bubble": text_bubble(),
        "waveform": waveform(),
        "xmark.circle": in_circle(*cross),
    }
