# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A clock that a test sets, for the program alone: the time of day jumps as it does when a dead battery
of the clock, a dual boot or a time server has its say. What measures durations goes on as ever."""

import os
import random

YEARS = 366 * 86400


class WallClock:
    def __init__(self, session, laptop, seed):
        self._file = os.path.join(session.folder, "clock")
        self._random = random.Random(seed)
        self.jump_to(0)
        library = os.environ["FERRIN_WALL_CLOCK"]
        self.environment = {
            "LD_PRELOAD": f"{library} {laptop.environment['LD_PRELOAD']}",
            "FERRIN_TEST_CLOCK": self._file,
        }

    def jump(self):
        """By seconds, hours or half a lifetime, back or forth."""
        self.jump_to(self._random.choice((1, 3600, 86400, 50 * YEARS)) * self._random.uniform(-1, 1))

    def jump_to(self, seconds):
        """So far from the right time."""
        with open(self._file, "w", encoding="ascii") as file:
            file.write(f"{seconds:.0f}\n")
