#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What becomes of the program that runs when another version is installed over it."""

import os
import shutil
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path[:0] = [HERE, os.path.join(HERE, "..", "endtoend")]
from harness.case import AT_START, OnADesktop, main  # noqa: E402
from harness.item import PROGRAM  # noqa: E402
from harness.processes import a_moment, eventually  # noqa: E402
from harness.program import binary  # noqa: E402

ANEW = "Starting anew: another version was installed"


class Replaced(OnADesktop):
    def setUp(self):
        super().setUp()
        built = os.path.dirname(os.path.dirname(binary()))
        installed = os.path.join(self.session.folder, "installed")
        for part in ("bin", "libexec"):
            shutil.copytree(os.path.join(built, part), os.path.join(installed, part))
        self.path = os.path.join(installed, "bin", "ferrin")
        self.program = self.start([self.path])
        self.program.says(AT_START)
        self.old_name = self.session.bus.owner(PROGRAM)

    def replace(self):
        """As package managers do."""
        shutil.copy(self.path, self.path + ".dpkg-new")
        os.link(self.path, self.path + ".dpkg-tmp")
        os.rename(self.path + ".dpkg-new", self.path)
        os.remove(self.path + ".dpkg-tmp")

    def runs_the_new_one(self):
        return os.readlink(f"/proc/{self.program.pid}/exe") == self.path

    def goes_on_as_the_new_one(self):
        eventually(self.runs_the_new_one, "the process runs the new program")
        eventually(lambda: self.session.bus.owner(PROGRAM) not in (None, self.old_name),
                   "the new program is the session's one instance")
        self.assertTrue(self.program.owns_its_name())
        self.program.item()
        self.program.says(AT_START)
        self.assertEqual(self.program.log().count(ANEW), 1)

    def windows(self):
        return self.session.windows_of(self.program.pid)

    def open_dashboard(self):
        self.program.item().activate()
        eventually(self.windows, "the dashboard has opened")
        a_moment()

    def test_it_goes_on_as_the_new_one(self):
        self.replace()
        self.assertFalse(self.runs_the_new_one())
        self.goes_on_as_the_new_one()
        self.open_dashboard()
        self.assertEqual(self.program.terminate(), 0)

    def test_it_stays_while_the_user_looks_at_a_window(self):
        self.open_dashboard()
        self.replace()
        # Until it would have gone on twice.
        for _ in range(21):
            a_moment()
        self.assertTrue(self.windows())
        self.assertFalse(self.runs_the_new_one())
        self.program.item().activate()
        eventually(lambda: not self.windows(), "the dashboard has closed")
        self.goes_on_as_the_new_one()

    def test_it_never_loads_the_windows_of_the_new_one_into_the_old_one(self):
        self.replace()
        self.program.item().activate()
        self.goes_on_as_the_new_one()
        self.open_dashboard()

    def test_it_stays_when_it_is_removed(self):
        os.remove(self.path)
        for _ in range(12):
            a_moment()
        self.program.says(AT_START)
        self.assertEqual(self.program.terminate(), 0)


if __name__ == "__main__":
    main()
