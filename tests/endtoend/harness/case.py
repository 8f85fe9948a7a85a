# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The common ground of the end-to-end tests: a laptop and a desktop, new for each test."""

import os
import unittest

from harness import desktop
from harness.dashboard import Dashboard
from harness.program import Program, store_settings
from virtuallaptop import VirtualLaptop

MACHINES = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", "..", "machines"))

# What the item says on the default laptop: 17.02 Wh of 46 Wh, 6.1 W going out.
AT_START = "37%, 2:47 to empty"


class OnADesktop(unittest.TestCase):
    machine = None
    upower = True
    settings = {}

    def setUp(self):
        machine = self.machine and os.path.join(MACHINES, self.machine)
        self.laptop = self.enterContext(VirtualLaptop(machine, self.upower))
        self.session = self.enterContext(self.make_session())
        if self.settings:
            store_settings(self.session, **self.settings)

    def make_session(self):
        return desktop.XfceScreen()

    def start(self, **environment):
        return Program(self.session, self.laptop, environment)


class WithADashboard(OnADesktop):
    """The program runs, and its dashboard has not been opened yet."""

    says = AT_START

    def setUp(self):
        super().setUp()
        self.prepare()
        self.dashboard = self.start_dashboard()

    def prepare(self):
        """What happens to the laptop before the program starts."""

    def start_dashboard(self):
        return self.enterContext(Dashboard(self.session, self.laptop, self.says))


def main():
    unittest.main(verbosity=2)
