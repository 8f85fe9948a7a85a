#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The package of Fedora and openSUSE, built from a release's sources by rpmbuild in a Debian, and used
on its desktop. What it requires there is left aside: no such package is in Debian.

    FERRIN_BUILD: the build tree of this machine
"""

import glob
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path[:0] = [HERE, os.path.join(HERE, "..")]
from sourcetree import SOURCE, copy_sources, field, packages_named, version  # noqa: E402
from roots import cached  # noqa: E402
from roots.desktops import COMPILER_CACHE, Desktops  # noqa: E402

TOOLS = ("build-essential", "ccache", "desktop-file-utils", "libarchive-tools", "rpm")
# Fedora's; openSUSE, Arch and Ubuntu optimise at link time too.
FLAGS = {"optflags": "-O2 -flto=auto -ffat-lto-objects -fexceptions -g -Wall -Werror=format-security"
                     " -Wp,-U_FORTIFY_SOURCE,-D_FORTIFY_SOURCE=3 -Wp,-D_GLIBCXX_ASSERTIONS"
                     " -fstack-protector-strong -fstack-clash-protection -fcf-protection",
         "build_ldflags": "-Wl,-z,relro -Wl,--as-needed -Wl,-z,now -flto=auto"}
PLACE = "/mnt/ferrin"


class Rpm(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="ferrin-rpm-"))
        cls.root = cached("bookworm", sorted({*TOOLS, *packages_named(
            field("Build-Depends", "debian", "control"))}))
        tree = f"ferrin-{version()}"
        copy_sources(os.path.join(cls.folder, tree))
        subprocess.run(["tar", "--create", "--gzip", "--file", f"{tree}.tar.gz", tree],
                       cwd=cls.folder, check=True)
        shutil.copy(os.path.join(SOURCE, "packaging", "rpm", "ferrin.spec"), cls.folder)

    def run_in(self, *command):
        cache = {name: os.environ[name] for name in COMPILER_CACHE if name in os.environ}
        binds = [f"{self.folder}:{PLACE}", *filter(None, [cache.get("CCACHE_DIR")])]
        return self.root.run(*command, user="person", folder=PLACE, binds=binds, environment=cache)

    def made(self, pattern):
        package, = glob.glob(os.path.join(self.folder, pattern), recursive=True)
        return os.path.relpath(package, self.folder)

    def use(self, package):
        """Unpacks it and opens the program's windows."""
        place = os.path.join(self.folder, "installed")
        os.makedirs(place)
        self.run_in("bsdtar", "--extract", "--file", package, "--directory", f"{PLACE}/installed")
        command = Desktops("12", os.environ["FERRIN_BUILD"]).command(
            ["/usr/bin/python3", "-B", os.path.join(HERE, "use_installed.py"), place + "/stored.json"],
            {"FERRIN_BINARY": os.path.join(place, "usr/bin/ferrin")}, binds=[self.folder])
        used = subprocess.run(command, text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, check=False)
        self.assertEqual(used.returncode, 0, used.stdout)

    def test_it_is_built_with_fedoras_flags_and_used(self):
        flags = [each for name, value in FLAGS.items() for each in ("--define", f"{name} {value}")]
        self.run_in("rpmbuild", "-ba", "--nodeps", "--define", f"_topdir {PLACE}/rpm",
                    "--define", f"_sourcedir {PLACE}", *flags, "ferrin.spec")
        package = self.made("rpm/RPMS/**/*.rpm")
        self.use(package)


if __name__ == "__main__":
    unittest.main(verbosity=2)
