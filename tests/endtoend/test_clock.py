# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The time of day may jump however it likes: nothing that Ferrin says of the battery depends on it."""

import datetime
import os
import subprocess

from harness.case import AT_START, OnADesktop, main
from harness.randomlife import RandomLife
from harness.wallclock import WallClock

SEED = 20260101
JUMPS = 40
BACK = datetime.timedelta(days=9000)


class Clock(OnADesktop):
    def setUp(self):
        super().setUp()
        self.clock = WallClock(self.session, self.laptop, SEED)

    def test_the_item_is_right_whatever_the_clock_does(self):
        program = self.start(**self.clock.environment)
        program.says(AT_START)
        life = RandomLife(self.laptop, program, SEED)
        for _ in range(JUMPS):
            self.clock.jump()
            life.live(5)
        self.clock.jump()
        life.come_to_rest()
        self.laptop.send("drain", "BAT0", 33)
        program.says(r"33%, \d+:[0-5]\d to empty")

    def test_the_clock_of_this_test_jumps(self):
        self.clock.jump_to(-BACK.total_seconds())
        said = subprocess.run(["date", "+%Y"], env=os.environ | self.clock.environment, check=True,
                              capture_output=True, text=True).stdout
        self.assertEqual(int(said), (datetime.datetime.now() - BACK).year)


if __name__ == "__main__":
    main()
