#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""For ARM laptops: the package is built on this machine, and the unit tests of what knows no screen run
under an emulator. In a Debian of both architectures.

    FERRIN_BUILD: the build tree of this machine; the tests are built beside it.
"""

import glob
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path[:0] = [HERE, os.path.join(HERE, "..")]
from sourcetree import SOURCE, copy_sources, field, packages_named  # noqa: E402
from roots import cached  # noqa: E402
from roots.desktops import COMPILER_CACHE  # noqa: E402

ARCHITECTURE = "arm64"
MACHINE = "aarch64-linux-gnu"
BUILD = os.path.join(os.path.dirname(os.environ["FERRIN_BUILD"]), ARCHITECTURE)
TOOLS = ("build-essential", f"crossbuild-essential-{ARCHITECTURE}", "qemu-user", "ccache", "python3",
         "dbus", "fonts-dejavu-core")
# What the tests need beside what the package does.
TEST_LIBRARIES = ("qt6-base-private-dev", "libxkbcommon-dev")
ROOMS = ("base", "sources", "state", "core", "updates")
# They start programs in a way that the emulator does not know.
LEFT_OUT = "qtprocesslauncher|filedefaultsstoreprocesses|keptchoices"
PLACE = "/mnt/ferrin"


def for_arm(package):
    """Libraries are of the other architecture, tools of this one."""
    return f"{package}:{ARCHITECTURE}" if package.endswith("-dev") or package == "pkgconf" else package


class ForArm(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        packages = {*packages_named(field("Build-Depends", "debian", "control")), *TEST_LIBRARIES}
        cls.root = cached("bookworm", sorted({*TOOLS, *map(for_arm, packages)}), ARCHITECTURE)

    def run_beside(self, *command):
        """Runs a command in the tree, with the build at its place."""
        cache = {name: os.environ[name] for name in COMPILER_CACHE if name in os.environ}
        os.makedirs(BUILD, exist_ok=True)
        binds = [SOURCE, BUILD, *filter(None, [cache.get("CCACHE_DIR")])]
        return self.root.run(*command, user="person", folder=SOURCE, binds=binds,
                             environment=cache | {"QT_QPA_PLATFORM": "offscreen"})

    def test_the_unit_tests_pass(self):
        self.run_beside(
            "cmake", "-S", SOURCE, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=RelWithDebInfo",
            "-DFERRIN_WARNINGS_AS_ERRORS=ON", "-DCMAKE_SYSTEM_NAME=Linux",
            "-DCMAKE_SYSTEM_PROCESSOR=aarch64", f"-DCMAKE_C_COMPILER={MACHINE}-gcc",
            f"-DCMAKE_CXX_COMPILER={MACHINE}-g++",
            f"-DPKG_CONFIG_EXECUTABLE=/usr/bin/{MACHINE}-pkg-config",
            "-DCMAKE_CROSSCOMPILING_EMULATOR=/usr/bin/qemu-aarch64")
        self.run_beside("cmake", "--build", BUILD, "--target", *(f"test_{room}" for room in ROOMS))
        output = self.run_beside("ctest", "--test-dir", BUILD, "--output-on-failure", "--no-tests=error",
                                 "--tests-regex", f"^({'|'.join(ROOMS)})[.]",
                                 "--exclude-regex", LEFT_OUT)
        self.assertIn("100% tests passed", output)

    def test_the_package_is_built(self):
        with tempfile.TemporaryDirectory(prefix="ferrin-arm-") as folder:
            copy_sources(os.path.join(folder, "ferrin"))
            self.root.run("dpkg-buildpackage", f"--host-arch={ARCHITECTURE}", "--build=any", "-us",
                          "-uc", user="person", folder=os.path.join(PLACE, "ferrin"),
                          binds=[f"{folder}:{PLACE}"])
            package, = glob.glob(os.path.join(folder, f"ferrin_*_{ARCHITECTURE}.deb"))
            stage = os.path.join(folder, "stage")
            subprocess.run(["dpkg-deb", "--extract", package, stage], check=True)
            for path in ("usr/bin/ferrin", "usr/libexec/ferrin/ferrin-windows.so"):
                with open(os.path.join(stage, path), "rb") as file:
                    # The machine of an ELF file: AArch64.
                    self.assertEqual(file.read(20)[18:], b"\xb7\x00", path)


if __name__ == "__main__":
    unittest.main(verbosity=2)
