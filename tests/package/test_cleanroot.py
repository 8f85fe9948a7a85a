#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The Debian package: made, judged, installed in clean roots of this release and the next, run there,
and removed."""

import glob
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path.insert(0, HERE)
from cleanroot import TOOLS, files_named, run_from  # noqa: E402
from roots import cached  # noqa: E402
from roots.desktops import RELEASES  # noqa: E402

ENTRY = "org.ferrin.Ferrin.desktop"
BUILD = os.environ["FERRIN_BUILD"]
SERVICE = "usr/share/dbus-1/services/org.ferrin.Ferrin.service"
STORE = "home/person/.config/org.ferrin.Ferrin/defaults.json"


def made_package(folder):
    """The package that cpack makes of the build."""
    subprocess.run(["cpack", "-B", folder], cwd=BUILD, check=True,
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
        output = subprocess.run(["lintian", "--allow-root", "--fail-on", "error,warning",
                                 self.package], text=True, capture_output=True, check=False)
        self.assertEqual(output.returncode, 0, output.stdout + output.stderr)
        self.assertEqual(output.stdout, "")

    def test_it_is_installed_started_from_the_menu_and_removed_without_a_trace(self):
        for number, release in RELEASES.items():
            with self.subTest(debian=number), cached(release).copy() as root:
                self.try_in(root)

    def try_in(self, root):
        package = root.take(self.package)
        root.install(package)
        os.remove(root.path + package)
        self.assertIn("usr/bin/ferrin", files_named(root, "ferrin"))
        with open(os.path.join(root.path, SERVICE), encoding="utf-8") as file:
            self.assertIn("\nExec=/usr/bin/ferrin\n", file.read())
        self.use(root)
        root.apt("purge", "--autoremove", "ferrin")
        self.assertEqual(files_named(root, "ferrin"), [])
        self.assertTrue(os.path.exists(os.path.join(root.path, STORE)))

    def use(self, root):
        """Its windows are opened; what was stored lies in the home of the root's user."""
        with tempfile.TemporaryDirectory(prefix="ferrin-tools-") as tools:
            used = subprocess.run(
                run_from(root, tools, ENTRY, "/usr/bin/python3", "-B",
                         os.path.join(HERE, "use_installed.py"), TOOLS + "/stored.json",
                         build=BUILD),
                text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT, check=False)
            self.assertEqual(used.returncode, 0, used.stdout)
            stored = os.path.join(root.path, STORE)
            root.run("install", "-D", "--owner=person", "--group=person", "/dev/null", "/" + STORE)
            root.run("cp", "/mnt/stored.json", "/" + STORE,
                     binds=[os.path.join(tools, "stored.json") + ":/mnt/stored.json"])
            self.assertTrue(os.path.getsize(stored))


if __name__ == "__main__":
    unittest.main(verbosity=2)
