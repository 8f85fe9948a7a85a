# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""How dark print is on its ground, or how light, as it is read from a picture."""

import statistics
from collections import Counter

# Fainter pixels belong to the ground.
FAINTEST = 1.5
# What WCAG asks of symbols and of large text.
LEGIBLE = 3


def of_print(picture, box):
    """The median contrast of what is written in the box, by WCAG's measure; 1 for nothing."""
    return statistics.median(_print_in(picture, box))


def of_strokes(picture, box):
    """The same of the stronger half, which leaves out smoothed edges and the tint of an empty glyph."""
    contrasts = _print_in(picture, box)
    return statistics.median(contrasts[len(contrasts) // 2:])


def _print_in(picture, box):
    pixels = picture.pixels(box)
    ground = Counter(pixels).most_common(1)[0][0]
    contrasts = sorted(between(pixel, ground) for pixel in pixels)
    return [each for each in contrasts if each > FAINTEST] or [1]


def range_of(pixels):
    """Of the lightest to the darkest."""
    return between(min(pixels, key=_luminance), max(pixels, key=_luminance))


def between(one, other):
    """From 1 for the same tone to 21 for black on white."""
    darker, lighter = sorted((_luminance(one), _luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


def _luminance(pixel):
    red, green, blue = (_linear(value / 255) for value in pixel)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def _linear(value):
    return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4
