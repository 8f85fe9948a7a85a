# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The common ground of the end-to-end tests: a laptop and a desktop, new for each test."""

import os
import unittest

from harness import desktop
from harness.dashboard import Dashboard
from harness.processes import a_moment
from harness.program import Program, store_settings
from harness.settings import Settings
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

    def start(self, command=None, **environment):
        return Program(self.session, self.laptop, environment, command)

    def start_under(self, theme):
        """A start by a user who wants the windows "Light" or "Dark"."""
        store_settings(self.session, appColor=theme)
        return self.start()


class WithADashboard(OnADesktop):
    """The program runs, and its dashboard has not been opened yet."""

    says = AT_START
    dashboard_class = Dashboard

    def setUp(self):
        super().setUp()
        self.prepare()
        self.dashboard = self.start_dashboard()

    def prepare(self):
        """What happens to the laptop before the program starts."""

    def start_dashboard(self, environment=None):
        return self.enterContext(self.make_dashboard(environment))

    def make_dashboard(self, environment):
        return self.dashboard_class(self.session, self.laptop, self.says, environment)


class WithSettings(WithADashboard):
    """The settings window is open, at the page that it begins with unless told otherwise."""

    page = None
    environment = None

    def make_session(self):
        screen = desktop.XfceScreen()
        # With room beside the window for its frame and for a pointer at rest.
        screen.size = (1000, 600)
        return screen

    def start_dashboard(self, environment=None):
        dashboard = super().start_dashboard(environment or self.environment)
        self.window = Settings(self.session, dashboard)
        self.window.open()
        if self.page:
            self.window.select(self.page)
        return dashboard

    def begin_anew(self, environment=None):
        """Another start of the program in the same session."""
        if self.dashboard.program.is_running():
            self.assertEqual(self.dashboard.program.terminate(), 0)
        self.session.point((5, 590))
        a_moment()
        self.dashboard = self.start_dashboard(environment)


def main():
    unittest.main(verbosity=2)
