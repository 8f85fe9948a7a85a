#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Debian's source package: built from a copy of the sources by an ordinary user, without network, in a
Debian that has what the package asks for and no more."""

import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.abspath(os.path.join(HERE, "..", ".."))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(HERE, ".."))
from roots import cached  # noqa: E402

PLACE = "/mnt/ferrin"


def read(*path):
    with open(os.path.join(SOURCE, *path), encoding="utf-8") as file:
        return file.read()


def version():
    return re.search(r"project\(ferrin VERSION ([\d.]+)", read("CMakeLists.txt")).group(1)


def build_dependencies():
    """The first choice of each package that debian/control asks for."""
    field = re.search(r"^Build-Depends:(.*(?:\n .*)*)", read("debian", "control"), re.M).group(1)
    names = [re.match(r"[\w.+-]+", each.strip()).group() for each in field.split(",")]
    return ["debhelper" if name == "debhelper-compat" else name for name in names]


class SourcePackage(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory(prefix="ferrin-sources-"))
        self.root = cached("bookworm", sorted({"build-essential", "lintian", *build_dependencies()}))
        self.tree = f"ferrin-{version()}"
        files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                               cwd=SOURCE, check=True, stdout=subprocess.PIPE).stdout.split(b"\0")
        for name in filter(None, map(os.fsdecode, files)):
            target = os.path.join(self.folder, self.tree, name)
            if os.path.lexists(os.path.join(SOURCE, name)):
                os.makedirs(os.path.dirname(target), exist_ok=True)
                shutil.copy2(os.path.join(SOURCE, name), target, follow_symlinks=False)
        subprocess.run(["tar", "--create", "--gzip", "--file", f"ferrin_{version()}.orig.tar.gz",
                        "--sort=name", f"--exclude={self.tree}/debian", self.tree],
                       cwd=self.folder, check=True)

    def run_in(self, folder, *command):
        return self.root.run(*command, user="person", folder=os.path.join(PLACE, folder),
                             binds=[f"{self.folder}:{PLACE}"])

    def made(self, pattern):
        found = glob.glob(os.path.join(self.folder, pattern))
        self.assertTrue(found, pattern)
        return found[0]

    def test_is_built_and_lintian_finds_no_error_and_no_warning(self):
        self.run_in(self.tree, "dpkg-buildpackage", "-us", "-uc")
        changes = os.path.basename(self.made("ferrin_*.changes"))
        output = self.run_in("", "lintian", "--fail-on", "error,warning", changes)
        self.assertEqual(re.findall(r"^[EW]: .*", output, re.M), [])
        depends = subprocess.run(["dpkg-deb", "--field", self.made("ferrin_*.deb"), "Depends"],
                                 text=True, check=True, stdout=subprocess.PIPE).stdout
        # By which a package would be tied to one version of Qt.
        self.assertNotRegex(depends, r"qt6-\w+-(private-)?abi")


if __name__ == "__main__":
    unittest.main(verbosity=2)
