# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The entry in the application menu: a second start and the actions reach the program that runs."""

import os
import signal

from harness import processes
from harness.case import OnADesktop, WithADashboard, main
from harness.item import PROGRAM
from harness.processes import a_moment, eventually
from harness.program import MOCK, binary
from harness.settings import Settings

PACKAGING = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "packaging")
LAUNCHER = os.path.join(os.path.dirname(processes.__file__), "launcher.py")


class Menu:
    """The application menu of a session in which the program is installed for the user."""

    def __init__(self, session):
        self._session = session
        self._entry = self._install("applications", f"{PROGRAM}.desktop")
        self._install("dbus-1/services", f"{PROGRAM}.service", ".in")
        # Where the menu and the user find the program.
        session.environment["PATH"] = self.path()

    def path(self):
        folder = os.path.dirname(os.path.abspath(binary()))
        return folder + os.pathsep + os.environ["PATH"]

    def choose(self, *action):
        """Starts the program, or one of its actions."""
        self._session.run("/usr/bin/python3", "-B", LAUNCHER, self._entry, *action)

    def _install(self, folder, name, template=""):
        """A template gets the path of the program, as by the installation."""
        folder = os.path.join(self._session.environment["XDG_DATA_HOME"], folder)
        os.makedirs(folder, exist_ok=True)
        path = os.path.join(folder, name)
        with open(os.path.join(PACKAGING, name + template), encoding="utf-8") as source:
            text = source.read()
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace("@program@", os.path.abspath(binary())))
        return path


class WhileItRuns(WithADashboard):
    def prepare(self):
        self.menu = Menu(self.session)

    def setUp(self):
        super().setUp()
        self.settings = Settings(self.session, self.dashboard)

    def is_the_only_one(self):
        self.assertTrue(self.dashboard.program.is_running())
        self.assertTrue(self.dashboard.program.owns_its_name())
        self.assertEqual(self.session.bus.item_count(), 1)

    def test_a_second_start_opens_the_dashboard_at_the_item(self):
        self.dashboard.open()
        by_a_click = self.dashboard.root().box
        self.dashboard.close()
        self.menu.choose()
        eventually(lambda: self.dashboard.root() and self.dashboard.windows(), "the dashboard opens")
        self.assertEqual(self.dashboard.root().box, by_a_click)
        self.is_the_only_one()

    def test_a_second_start_leaves_an_open_dashboard_open(self):
        self.dashboard.open()
        self.menu.choose()
        a_moment()
        self.assertTrue(self.dashboard.root())
        self.assertEqual(len(self.dashboard.windows()), 1)

    def test_the_action_opens_the_settings_once_and_brings_them_to_the_front(self):
        self.menu.choose("settings")
        eventually(lambda: self.settings.window() and self.settings.is_in_front(), "the settings open")
        self.session.open_another_program()
        self.session.focus_another_program()
        eventually(lambda: not self.settings.is_in_front(), "the other program is in front")
        self.menu.choose("settings")
        eventually(self.settings.is_in_front, "the settings are in front")
        self.assertEqual(len(self.dashboard.windows()), 1)
        self.is_the_only_one()

    def test_the_action_closes_an_open_dashboard_for_the_settings(self):
        self.dashboard.open()
        self.menu.choose("settings")
        eventually(self.settings.is_in_front, "the settings are in front")
        eventually(lambda: not self.dashboard.root(), "the dashboard has closed")

    def test_the_action_to_quit_ends_it_well(self):
        self.menu.choose("quit")
        self.assertEqual(self.dashboard.program.exit_code(), 0)

    def test_the_action_to_quit_ends_it_with_its_windows_open(self):
        self.menu.choose("settings")
        eventually(self.settings.is_in_front, "the settings are in front")
        self.menu.choose("quit")
        self.assertEqual(self.dashboard.program.exit_code(), 0)


class WhileItDoesNotRun(OnADesktop):
    """The bus then starts it, in the environment that the session told the bus of."""

    def setUp(self):
        super().setUp()
        self.menu = Menu(self.session)
        environment = {"PATH": self.menu.path()} | {key: self.laptop.environment[key] for key in MOCK}
        bus = "org.freedesktop.DBus"
        self.session.bus.call(bus, "/org/freedesktop/DBus", bus, "UpdateActivationEnvironment",
                              "(a{ss})", environment)

    def test_the_action_starts_it_and_opens_the_settings(self):
        self.assertIsNone(self.session.bus.owner(PROGRAM))
        self.menu.choose("settings")
        owner = eventually(lambda: self.session.bus.owner(PROGRAM), "it runs")
        process = self.session.bus.process_of(owner)
        self.addCleanup(os.kill, process, signal.SIGKILL)
        eventually(lambda: self.session.windows_of(process), "the settings open")
        title = self.session.run("xdotool", "getwindowname", self.session.windows_of(process)[0])
        self.assertEqual(title.strip(), b"Ferrin Settings")
        eventually(lambda: self.session.bus.item_of(process), "its item is in the panel")


if __name__ == "__main__":
    main()
