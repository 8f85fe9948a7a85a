#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What the packages of the distributions are made of: the install tree, and the recipes as far as they
can be judged without building."""

import glob
import os
import re
import subprocess
import tempfile
import unittest

from sourcetree import SOURCE, read, version

PACKAGING = os.path.join(SOURCE, "packaging")
SPEC = os.path.join(PACKAGING, "rpm", "ferrin.spec")
BUILD = os.environ["FERRIN_BUILD"]


def run(*command, **options):
    done = subprocess.run(command, text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False, **options)
    assert done.returncode == 0, f"{command}:\n{done.stdout}"
    return done.stdout


class TheInstallTree(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.stage = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="ferrin-stage-"))
        run("cmake", "--install", BUILD, "--prefix", "/opt/some where",
            env=os.environ | {"DESTDIR": cls.stage})
        cls.files = [os.path.relpath(path, cls.stage) for path
                     in glob.glob(os.path.join(cls.stage, "**"), recursive=True)
                     if os.path.isfile(path)]

    def test_all_of_it_lies_below_the_prefix_in_the_staging_folder(self):
        self.assertIn("opt/some where/bin/ferrin", self.files)
        self.assertEqual([each for each in self.files if not each.startswith("opt/some where/")], [])

    def test_its_folders_are_those_of_every_distribution(self):
        self.assertEqual({each.split("/")[2] for each in self.files}, {"bin", "lib", "libexec", "share"})
        # Debian's own documents are for Debian's package alone.
        self.assertFalse(os.path.exists(os.path.join(self.stage, "opt/some where/share/doc")))

    def test_no_binary_uses_what_qt_keeps_private(self):
        found = 0
        for each in self.files:
            path = os.path.join(self.stage, each)
            with open(path, "rb") as file:
                if file.read(4) != b"\x7fELF":
                    continue
            found += 1
            self.assertNotIn("_PRIVATE_API", run("objdump", "--private-headers", path), each)
        self.assertGreaterEqual(found, 3)

    def installed(self, name):
        path, = [each for each in self.files if each.endswith(name)]
        with open(os.path.join(self.stage, path), encoding="utf-8") as file:
            return file.read()

    def test_the_users_unit_starts_what_was_installed_with_it(self):
        unit = self.installed("/systemd/user/ferrin.service")
        command = 'ExecStart="/opt/some where/bin/ferrin" --background'
        self.assertIn(f"\n{command}\n", unit)
        with tempfile.TemporaryDirectory() as folder:
            program = os.path.join(folder, "some where")
            os.symlink("/bin/true", program)
            path = os.path.join(folder, "ferrin.service")
            with open(path, "w", encoding="utf-8") as file:
                file.write(unit.replace("/opt/some where/bin/ferrin", program))
            output = run("systemd-analyze", "--user", "--man=no", "verify", path,
                         env=os.environ | {"XDG_RUNTIME_DIR": folder})
        self.assertNotIn("ferrin.service", output)

    def test_the_bus_starts_what_was_installed_with_it(self):
        self.assertIn('\nExec="/opt/some where/bin/ferrin"\n',
                      self.installed("/dbus-1/services/org.ferrin.Ferrin.service"))

    def test_software_centres_take_it_up_with_its_icon(self):
        run("appstream-util", "validate-relax", "--nonet",
            os.path.join(self.stage, "opt/some where/share/metainfo/org.ferrin.Ferrin.metainfo.xml"))
        with tempfile.TemporaryDirectory(prefix="ferrin-centre-") as folder:
            run("appstreamcli", "compose", "--no-net", "--prefix=/opt/some where", "--origin=ferrin",
                f"--result-root={folder}", "--components=org.ferrin.Ferrin", self.stage)
            self.assertTrue(glob.glob(f"{folder}/**/128x128/org.ferrin.Ferrin.png", recursive=True))


class TheRecipes(unittest.TestCase):
    def test_all_of_them_are_of_the_same_version(self):
        output = {name: re.search(pattern, read(*name.split("/")), re.M).group(1) for name, pattern in (
            ("CMakeLists.txt", r"project\(ferrin VERSION (\S+)"),
            ("debian/changelog", r"\Aferrin \((\S+)-\d+\)"),
            ("packaging/rpm/ferrin.spec", r"^Version: +(\S+)"),
            ("packaging/arch/PKGBUILD", r"^pkgver=(\S+)"),
            ("packaging/nix/package.nix", r'^  version = "(\S+)";'),
            ("README.md", r"--prefix=ferrin-(\S+)/"))}
        self.assertEqual(len(set(output.values())), 1, output)

    def test_rpmlint_finds_no_fault_in_the_spec(self):
        output = run("rpmlint", SPEC)
        # Nowhere to download the sources from yet; the other is of the days before 2009.
        self.assertEqual(set(re.findall(r"[EW]: (\S+)", output)), {"invalid-url", "no-buildroot-tag"})

    def test_the_spec_can_be_expanded(self):
        output = run("rpmspec", "--parse", SPEC)
        self.assertIn("/usr/bin/ferrin", output)

    def test_the_spec_packs_every_file_that_is_installed_and_names_no_other(self):
        with tempfile.TemporaryDirectory(prefix="ferrin-rpm-") as folder:
            os.mkdir(os.path.join(folder, "BUILD"))
            os.symlink(SOURCE, os.path.join(folder, "BUILD", f"ferrin-{version()}"))
            # From the install stage on: what it would build has been built here, for another prefix.
            output = run("rpmbuild", "-bi", "--short-circuit", "--nodeps",
                         "--define", f"_topdir {folder}", "--define", f"_tmppath {folder}",
                         "--define", f"_target_platform {BUILD} --prefix /usr", SPEC)
        self.assertIn("\nChecking for unpackaged file(s)", output)

    def test_shellcheck_finds_no_fault_in_the_scripts(self):
        run("shellcheck", os.path.join(PACKAGING, "arch", "PKGBUILD"),
            os.path.join(SOURCE, "debian", "tests", "item"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
