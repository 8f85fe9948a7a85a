# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Reads what a host shows of the item, by comparison with our own painting of it."""

import math
import os
import subprocess
from collections import Counter
from dataclasses import dataclass, replace

from harness.picture import Box

# Of a picture and a perfect copy, whatever their brightness, the likeness is 1.
ALIKE = 0.95

# How small letters are handed to a reader that was brought up on print.
ENLARGED = 4
BORDER = 20


@dataclass(frozen=True)
class Shown:
    """The elements that the item may show; None for one that it does not."""

    status: str
    icon: str | None = "battery1V"
    percent: int = 50
    charge: str | None = None
    time: str | None = None

    def words(self):
        return ",".join(str("-" if word is None else word) for word in (
            self.status, self.icon, self.percent, self.charge, self.time))

    def others(self):
        """What could be mistaken for it: other figures at the same places, another fill."""
        return [other for other in self._others() if other != self]

    def _others(self):
        for charge in ("31", "87", "64", "100", "??"):
            if self.charge is not None:
                yield replace(self, charge=charge)
        for time in ("2:41", "7:47", "0:18", "12:05", "?:??"):
            if self.time is not None:
                yield replace(self, time=time)
        if self.icon is not None:
            yield replace(self, percent=95 if self.percent < 60 else 20)
            yield replace(self, icon="battery1V" if self.icon == "fault" else "fault")


@dataclass(frozen=True)
class Look:
    """How a host shows its items: by the name of its process, the height in device pixels of the
    picture that it takes, or "scaled:HEIGHT" where it brings the largest one to its own, or
    "OTHER:HEIGHT" where it does that with the one of another height; the
    desktop's scale, and its names where they matter."""

    process: str
    height: int | str
    scale: int = 1
    desktop: str = ""
    # "Dark" or "Light" where the item brings a ground of its own.
    chip: str | None = None


def likenesses(look, picture, box, contents):
    """How like each content is to what is in the box, at the place where it is most alike."""
    # A picture has air around its ink.
    around = Box(max(0, box.left - 8), max(0, box.top - 8),
                 min(picture.width, box.right + 8), min(picture.height, box.bottom + 8))
    ground = Counter(picture.pixels(around)).most_common(1)[0][0]
    rows = [[_grey(picture.pixel(x, y)) for x in range(around.left, around.right)]
            for y in range(around.top, around.bottom)]
    text = look.chip or ("white" if _grey(ground) < 128 else "black")
    under = "#%02x%02x%02x" % ground
    output = subprocess.run(
        [os.environ["FERRIN_ITEM_PICTURE"], look.process, str(look.scale), under, text,
         str(look.height), *(content.words() for content in contents)],
        env=os.environ | {"QT_QPA_PLATFORM": "offscreen", "XDG_CURRENT_DESKTOP": look.desktop},
        capture_output=True, text=True, check=True)
    return [_best(rows, line) for line in output.stdout.splitlines()]


def recognised(look, picture, box, shown):
    """Whether the box shows the content, and nothing that could be mistaken for it."""
    first, *others = likenesses(look, picture, box, [shown, *shown.others()])
    return first > ALIKE and first > max(others)


def _grey(pixel):
    red, green, blue = pixel
    return (11 * red + 16 * green + 5 * blue) // 32


def _best(rows, line):
    width, height, *expected = map(int, line.split())
    expected = [expected[width * y:width * (y + 1)] for y in range(height)]
    inked = [(x, y) for y in range(height) for x in range(width)]
    wanted = _level([expected[y][x] for x, y in inked])
    best = -1
    for top in range(len(rows) - height + 1):
        for left in range(len(rows[0]) - width + 1):
            found = _level([rows[top + y][left + x] for x, y in inked])
            best = max(best, sum(map(lambda one, other: one * other, wanted, found)))
    return best


def _level(values):
    """The values around their mean, of length one; all nought where nothing is to be seen."""
    mean = sum(values) / len(values)
    level = [value - mean for value in values]
    length = math.sqrt(sum(value * value for value in level))
    return [value / length for value in level] if length > 1 else level


def read(picture, box):
    """The lines in the box and where they stand, top to bottom, as a program reads them that knows
    nothing of what to expect."""
    ground = Counter(picture.pixels(box)).most_common(1)[0][0]
    dark = ["-negate"] if _grey(ground) < 128 else []
    part = f"{box.width}x{box.height}+{box.left}+{box.top}"
    enlarged = subprocess.run(
        ["convert", "ppm:-", "-crop", part, "+repage", "-colorspace", "gray", *dark, "-normalize",
         "-resize", f"{ENLARGED}00%", "-bordercolor", "white", "-border", str(BORDER), "png:-"],
        input=picture.file, capture_output=True, check=True).stdout
    output = subprocess.run(["tesseract", "-", "-", "--psm", "6", "tsv"], input=enlarged,
                            env=os.environ | {"OMP_THREAD_LIMIT": "1"}, capture_output=True,
                            check=True).stdout.decode()
    lines = {}
    for row in output.splitlines()[1:]:
        _, _, block, paragraph, line, _, left, top, width, height, _, word = row.split("\t")
        if word.strip():
            lines.setdefault((block, paragraph, line), []).append(
                (word.strip(), int(left), int(top), int(width), int(height)))
    return [(" ".join(word for word, *_ in words), _place(box, *words[0][1:]))
            for words in lines.values()]


def _place(box, left, top, width, height):
    """Where in the picture a word of the enlarged box stands."""
    return (box.left + (left + width // 2 - BORDER) // ENLARGED,
            box.top + (top + height // 2 - BORDER) // ENLARGED)
