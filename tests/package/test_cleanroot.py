#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The Debian package: made, judged, installed in a clean root, run there, and removed."""

import glob
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(HERE, "..", "endtoend"))
from cleanroot import CleanRoot  # noqa: E402
from harness import desktop  # noqa: E402
from harness.case import AT_START  # noqa: E402
from harness.dashboard import TAB, Dashboard  # noqa: E402
from harness.processes import eventually  # noqa: E402
from harness.program import store_path  # noqa: E402
from virtuallaptop import VirtualLaptop  # noqa: E402

ENTRY = "org.ferrin.Ferrin.desktop"


def made_package(folder):
    """The package that cpack makes of the build."""
    subprocess.run(["cpack", "-B", folder], cwd=os.environ["FERRIN_BUILD"], check=True,
                   stdout=subprocess.DEVNULL)
    packages = glob.glob(os.path.join(folder, "ferrin_*.deb"))
    assert len(packages) == 1, packages
    return packages[0]


class ThePackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="ferrin-package-"))
        cls.package = made_package(folder)

    def test_lintian_finds_no_error_and_no_warning(self):
        told = subprocess.run(["lintian", "--allow-root", "--fail-on", "error,warning",
                               self.package], text=True, capture_output=True, check=False)
        self.assertEqual(told.returncode, 0, told.stdout + told.stderr)
        self.assertEqual(told.stdout, "")

    def test_it_is_installed_started_from_the_menu_and_removed_without_a_trace(self):
        root = CleanRoot()
        self.addCleanup(root.close)
        root.run("apt-get", "update")
        package = root.take(self.package)
        root.run("apt-get", "install", "--yes", "--no-install-recommends", package)
        os.remove(os.path.join(root.path, os.path.basename(package)))
        self.assertIn("usr/bin/ferrin", root.files_named("ferrin"))

        os.environ["FERRIN_BINARY"] = root.launcher(ENTRY)
        with VirtualLaptop() as laptop, desktop.XfceScreen() as session:
            self.use(session, laptop)
            settings = store_path(session)
            root.run("apt-get", "purge", "--yes", "--autoremove", "ferrin")
            self.assertEqual(root.files_named("ferrin"), [])
            self.assertTrue(os.path.exists(settings))

    def use(self, session, laptop):
        """A first look at all of its windows."""
        with Dashboard(session, laptop, AT_START) as dashboard:
            dashboard.open()
            dashboard.select("HEALTH")
            dashboard.shows(Max_capacity=r"\d+%", Charge_cycles=r".*", Health="Normal",
                            Lifespan=".*")
            dashboard.click("SETTINGS", TAB)
            eventually(dashboard.settings_window, "the settings have opened")
            self.assertEqual(dashboard.program.log().count(".qml"), 0, dashboard.program.log())
            dashboard.program.terminate()


if __name__ == "__main__":
    unittest.main(verbosity=2)
