# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""How dark print is on its ground, or how light, as it is read from a picture."""

import statistics
from collections import Counter

# Fainter pixels belong to the ground.
FAINTEST = 1.5


def of_print(picture, box):
    """The median contrast of what is written in the box, by WCAG's measure; None for nothing."""
    pixels = picture.pixels(box)
    ground = Counter(pixels).most_common(1)[0][0]
    contrasts = [between(pixel, ground) for pixel in pixels]
    return statistics.median([each for each in contrasts if each > FAINTEST] or [None])


def between(one, other):
    """From 1 for the same tone to 21 for black on white."""
    darker, lighter = sorted((_luminance(one), _luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


def _luminance(pixel):
    red, green, blue = (_linear(value / 255) for value in pixel)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def _linear(value):
    return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4
