#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Debian's source package, of one release: built from a copy of the sources by an ordinary user, without
network, in a Debian that has what the package asks for and no more; built again elsewhere, and the same;
and tried where it is installed, as autopkgtest does.

    test_sources.py 12|13
"""

import filecmp
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path[:0] = [HERE, os.path.join(HERE, "..")]
from sourcetree import copy_sources, field, packages_named, version  # noqa: E402
from roots import cached  # noqa: E402
from roots.desktops import RELEASES  # noqa: E402

RELEASE = RELEASES[sys.argv.pop()] if __name__ == "__main__" else "bookworm"
PLACE, ANOTHER_PLACE = "/mnt/ferrin", "/mnt/another/place"


def difference(*packages):
    """Which files of two packages differ."""
    with tempfile.TemporaryDirectory(prefix="ferrin-difference-") as folder:
        for number, package in enumerate(packages):
            subprocess.run(["dpkg-deb", "--raw-extract", package, f"{folder}/{number}"], check=True)
        return subprocess.run(["diff", "--recursive", "--brief", "0", "1"], cwd=folder, text=True,
                              check=False, stdout=subprocess.PIPE).stdout


class SourcePackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        """Builds the package, for all tests."""
        cls.folder = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="ferrin-sources-"))
        cls.tree = f"ferrin-{version()}"
        cls.root = cached(RELEASE, sorted({"build-essential", "lintian", *packages_named(
            field("Build-Depends", "debian", "control"))}))
        copy_sources(os.path.join(cls.folder, cls.tree))
        subprocess.run(["tar", "--create", "--gzip", "--file", f"ferrin_{version()}.orig.tar.gz",
                        "--sort=name", f"--exclude={cls.tree}/debian", cls.tree],
                       cwd=cls.folder, check=True)
        cls.run_in(cls.tree, "dpkg-buildpackage", "--post-clean", "-us", "-uc")

    @classmethod
    def run_in(cls, folder, *command, place=PLACE):
        return cls.root.run(*command, user="person", folder=os.path.join(place, folder),
                            binds=[f"{cls.folder}:{place}"])

    def made(self, pattern):
        found = glob.glob(os.path.join(self.folder, pattern))
        self.assertEqual(len(found), 1, pattern)
        return found[0]

    def test_lintian_finds_no_error_and_no_warning(self):
        changes = os.path.basename(self.made("ferrin_*.changes"))
        output = self.run_in("", "lintian", changes)
        # Newer validators want a homepage, and there is none yet.
        self.assertEqual([each for each in re.findall(r"^[EW]: .*", output, re.M)
                          if "appstream-metadata-validation-failed" not in each], [])

    def test_it_is_not_tied_to_one_version_of_qt(self):
        depends = subprocess.run(["dpkg-deb", "--field", self.made("ferrin_*.deb"), "Depends"],
                                 text=True, check=True, stdout=subprocess.PIPE).stdout
        self.assertNotRegex(depends, r"qt6-\w+-(private-)?abi")

    def test_the_installed_package_passes_its_own_test(self):
        names = packages_named(field("Depends", "debian", "tests", "control"))
        with cached(RELEASE, names).copy() as root:
            package = root.take(self.made("ferrin_*.deb"))
            root.install(package)
            root.run("debian/tests/item", user="person", folder=os.path.join(PLACE, self.tree),
                     binds=[f"{self.folder}:{PLACE}"])

    def test_it_is_the_same_when_it_is_built_in_another_place(self):
        first = self.made("ferrin_*.deb")
        again = os.path.join(self.folder, "again", "deeper")
        shutil.copytree(os.path.join(self.folder, self.tree), again, symlinks=True,
                        ignore=shutil.ignore_patterns("obj-*"))
        self.run_in("again/deeper", "dpkg-buildpackage", "--build=binary", "--post-clean", "-us", "-uc",
                    place=ANOTHER_PLACE)
        second = os.path.join(self.folder, "again", os.path.basename(first))
        self.assertTrue(filecmp.cmp(first, second, shallow=False),
                        f"the packages differ:\n{difference(first, second)}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
