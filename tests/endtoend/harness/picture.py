# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Pictures of a screen, compared pixel by pixel."""

import subprocess
from dataclasses import dataclass


@dataclass(frozen=True)
class Box:
    left: int
    top: int
    right: int
    bottom: int

    @property
    def width(self):
        return self.right - self.left

    @property
    def height(self):
        return self.bottom - self.top

    @property
    def centre(self):
        return (self.left + self.right) // 2, (self.top + self.bottom) // 2


class Picture:
    """An RGB picture; pixels are triples of 0..255."""

    def __init__(self, portable_pixmap):
        # P6, width, height, 255, then one byte of white space before the pixels.
        fields = portable_pixmap.split(maxsplit=4)
        if fields[0] != b"P6":
            raise ValueError("not a picture")
        self.width, self.height = int(fields[1]), int(fields[2])
        self.file = portable_pixmap
        self._rgb = portable_pixmap[-3 * self.width * self.height:]

    def pixel(self, x, y):
        at = 3 * (y * self.width + x)
        return tuple(self._rgb[at:at + 3])

    def row(self, y):
        return self._rgb[3 * y * self.width:3 * (y + 1) * self.width]

    def difference(self, other, below=0, within=None):
        """The smallest box around all pixels in which two pictures differ, or None; below a row, or
        within a box."""
        within = within or Box(0, below, self.width, self.height)

        def part(picture, y):
            start = 3 * y * self.width
            return picture._rgb[start + 3 * within.left:start + 3 * within.right]
        rows = [y for y in range(within.top, within.bottom) if part(self, y) != part(other, y)]
        if not rows:
            return None
        columns = [x for x in range(within.left, within.right)
                   if any(self.pixel(x, y) != other.pixel(x, y) for y in rows)]
        return Box(columns[0], rows[0], columns[-1] + 1, rows[-1] + 1)

    def pixels(self, box):
        return [self.pixel(x, y) for y in range(box.top, box.bottom)
                for x in range(box.left, box.right)]

    def save(self, path, box, times=3):
        """Writes a part of the picture as a file, enlarged so that its pixels can be seen."""
        part = f"{box.width}x{box.height}+{box.left}+{box.top}"
        subprocess.run(["convert", "ppm:-", "-crop", part, "+repage", "-scale", f"{times}00%", path],
                       input=self.file, check=True)


def is_red(pixel):
    red, green, blue = pixel
    return red > 140 and red > 1.8 * green and red > 1.8 * blue
