#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The Flatpak: its manifest, and the program as it is installed, in a sandbox with the permissions that
the manifest asks for."""

import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.abspath(os.path.join(HERE, "..", ".."))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(SOURCE, "tests", "endtoend"))
from harness import login  # noqa: E402
from harness.accessible import ScreenReader  # noqa: E402
from harness.case import WithSettings  # noqa: E402
from harness.item import PROGRAM  # noqa: E402
from harness.portal import Desktop  # noqa: E402
from harness.processes import a_moment, eventually  # noqa: E402
from harness.readwindow import BUTTON  # noqa: E402
from harness.sandbox import (  # noqa: E402
    Permissions, Sandbox, SandboxedDashboard, SandboxedProgram, data_folder, manifest)
from harness.settings import LINK  # noqa: E402

MANIFEST = os.path.join(SOURCE, "packaging", "flatpak", f"{PROGRAM}.yaml")
BUILD = os.environ["FERRIN_BUILD"]
SWITCH = "Launch at login"


def install(folder):
    """What the builder would put into /app; the folder itself."""
    subprocess.run(["cmake", "--install", BUILD, "--prefix", "/app"], check=True,
                   env=os.environ | {"DESTDIR": folder}, stdout=subprocess.DEVNULL)
    return os.path.join(folder, "app")


class TheManifest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.manifest = manifest(MANIFEST)
        cls.app = install(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="ferrin-app-")))

    def test_asks_for_what_the_program_needs_and_no_more(self):
        self.assertEqual(set(self.manifest["finish-args"]), {
            "--socket=wayland", "--socket=fallback-x11", "--share=ipc", "--device=dri",
            "--talk-name=org.kde.StatusNotifierWatcher",
            "--system-talk-name=org.freedesktop.UPower", "--system-talk-name=org.freedesktop.login1"})

    def test_starts_a_program_that_is_installed_and_shown_by_the_desktop_under_its_name(self):
        self.assertEqual(self.manifest["id"], PROGRAM)
        for path in (f"bin/{self.manifest['command']}", f"share/applications/{PROGRAM}.desktop",
                     f"share/dbus-1/services/{PROGRAM}.service",
                     f"share/metainfo/{PROGRAM}.metainfo.xml",
                     f"share/icons/hicolor/scalable/apps/{PROGRAM}.svg"):
            self.assertTrue(os.path.exists(os.path.join(self.app, path)), path)

    def test_builds_the_tree_that_it_lies_in_without_tests(self):
        module, = self.manifest["modules"]
        source, = module["sources"]
        self.assertEqual(os.path.normpath(os.path.join(os.path.dirname(MANIFEST), source["path"])),
                         SOURCE)
        self.assertIn("-DBUILD_TESTING=OFF", module["config-opts"])


class InTheSandbox(WithSettings):
    page = "General"
    dashboard_class = SandboxedDashboard

    def prepare(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(prefix="ferrin-app-"))
        self.portal = Desktop(self.session, "light")
        self.addCleanup(self.portal.close)
        permissions = Permissions(manifest(MANIFEST)["finish-args"])
        ScreenReader.prepare(self.session)
        self.session.sandbox = Sandbox(self.session, self.laptop, install(folder), permissions)

    def log_says(self, line):
        eventually(lambda: line in self.dashboard.program.log(), line)

    def test_the_item_and_the_dashboard_follow_the_laptop(self):
        self.laptop.send("plug")
        self.laptop.send("adapter-details")
        self.dashboard.program.says(r".*to full")
        self.dashboard.open()
        self.dashboard.select("POWER ADAPTER")
        self.dashboard.shows_all({"Power": "65 watts", "Volts & amps": r"20 volts, 3\.25 amps",
                                  "Description": "65W USB-C", "Manufacturer": "Acme"})
        self.laptop.send("unplug")
        self.dashboard.program.says(r".*to empty")

    def test_the_switch_has_the_desktop_start_it_at_login(self):
        self.assertFalse(self.window.is_on(SWITCH))
        self.window.click(SWITCH)
        self.window.becomes(SWITCH, True)
        self.assertEqual(login.command_at_login(self.session),
                         ["flatpak", "run", "--command=ferrin", PROGRAM, "--background"])
        self.begin_anew()
        self.assertTrue(self.window.is_on(SWITCH))
        self.window.click(SWITCH)
        self.window.becomes(SWITCH, False)
        self.assertIsNone(login.command_at_login(self.session))

    def test_a_start_at_login_that_is_refused_leaves_the_switch_off(self):
        self.portal.refuses_background()
        self.window.click(SWITCH)
        self.log_says("Failed to enable launch at login: refused by the user")
        a_moment()
        self.assertFalse(self.window.is_on(SWITCH))
        self.assertIsNone(login.command_at_login(self.session))

    def test_the_window_wears_the_colours_that_the_portal_tells(self):
        def brightness():
            box = self.window.box()
            return sum(self.session.picture().pixel(box.right - 10, box.bottom - 10))
        light = brightness()
        self.portal.prefers("dark")
        eventually(lambda: brightness() < light, "the window is dark")

    def test_links_are_opened_by_the_portal(self):
        self.window.select("Support")
        self.window.click("Ferrin FAQ", LINK)
        eventually(lambda: self.portal.opened() == ["file:///app/share/ferrin/faq/index.html"],
                   "the portal opens the page")

    def test_what_it_stores_lies_in_its_own_folder(self):
        self.window.click("Dark", "radio button")
        path = os.path.join(data_folder(self.session), "config", PROGRAM, "defaults.json")

        def is_stored():
            with open(path, encoding="utf-8") as file:
                return '"Dark"' in file.read()
        eventually(lambda: os.path.exists(path) and is_stored(), "the choice is stored")
        self.begin_anew()
        self.assertTrue(self.window.is_on("Dark", "radio button"))

    def test_updates_are_left_to_flatpak(self):
        texts = self.window.texts()
        self.assertTrue(any("Flatpak" in text for text in texts), texts)
        self.assertIn("Flatpak", self.window.find("Check for Updates.*", BUTTON).description)

    def test_another_start_opens_the_dashboard_and_one_at_login_shows_nothing(self):
        self.window.close()
        at_login = SandboxedProgram(self.session, self.laptop, command=["ferrin", "--background"])
        self.assertEqual(at_login.exit_code(), 0)
        a_moment()
        self.assertEqual(self.dashboard.windows(), [])
        another = SandboxedProgram(self.session, self.laptop)
        self.assertEqual(another.exit_code(), 0)
        eventually(lambda: self.dashboard.root() and self.dashboard.windows(), "the dashboard opens")

    def test_no_permission_is_missed(self):
        complaints = [line for line in self.dashboard.program.log().splitlines()
                      if not line.startswith(("ferrin: info:", "ferrin: debug:"))]
        # The kernel's events do not reach a sandbox.
        self.assertEqual(complaints, ["ferrin: error: Cannot receive the kernel's events for power "
                                      "supplies; changes are seen at the next refresh"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
