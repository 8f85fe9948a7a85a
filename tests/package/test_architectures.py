#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""For ARM laptops, and old ones of 32 bits: in a Debian of both architectures the unit tests of what
knows no screen are built and run, for ARM under an emulator, and for ARM the package is built.

    test_architectures.py arm64|i386
    FERRIN_BUILD: the build tree of this machine; the tests are built beside it.
"""

import glob
import os
import subprocess
import sys
import tempfile
import unittest
from dataclasses import dataclass

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path[:0] = [HERE, os.path.join(HERE, "..")]
from sourcetree import SOURCE, copy_sources, field, packages_named  # noqa: E402
from roots import cached  # noqa: E402
from roots.desktops import COMPILER_CACHE  # noqa: E402


@dataclass
class Architecture:
    debian: str
    compiler: str
    processor: str
    # Of its binaries: the machine's number in ELF.
    elf: bytes
    emulator: str = ""
    # Tests that start programs in a way that the emulator does not know.
    left_out: str = "^$"


ARCHITECTURES = {each.debian: each for each in (
    Architecture("arm64", "aarch64-linux-gnu", "aarch64", b"\xb7\x00", emulator="qemu-aarch64",
                 left_out="qtprocesslauncher|filedefaultsstoreprocesses|keptchoices"),
    Architecture("i386", "i686-linux-gnu", "i686", b"\x03\x00"))}
WANTED = ARCHITECTURES[sys.argv.pop() if __name__ == "__main__" else "arm64"]
BUILD = os.path.join(os.path.dirname(os.environ["FERRIN_BUILD"]), WANTED.debian)
TOOLS = ("build-essential", f"crossbuild-essential-{WANTED.debian}", "ccache", "python3", "dbus",
         "fonts-dejavu-core")
# What the tests need beside what the package does.
TEST_LIBRARIES = ("qt6-base-private-dev", "libxkbcommon-dev")
ROOMS = ("base", "sources", "state", "core", "updates")
PLACE = "/mnt/ferrin"


def for_architecture(package):
    """Libraries are of the other architecture, tools of this one."""
    return f"{package}:{WANTED.debian}" if package.endswith("-dev") or package == "pkgconf" \
        else package


class ForAnotherArchitecture(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        packages = {*packages_named(field("Build-Depends", "debian", "control")), *TEST_LIBRARIES}
        cls.root = cached("bookworm", sorted({*TOOLS, *["qemu-user"] * bool(WANTED.emulator),
                                              *map(for_architecture, packages)}), WANTED.debian)

    def run_in(self, folder, bind, *command):
        """Runs a command in a folder of the root, which sees this of the machine."""
        cache = {name: os.environ[name] for name in COMPILER_CACHE if name in os.environ}
        return self.root.run(*command, user="person", folder=folder,
                             binds=[*bind, *filter(None, [cache.get("CCACHE_DIR")])],
                             environment=cache | {"QT_QPA_PLATFORM": "offscreen"})

    def test_the_unit_tests_pass(self):
        os.makedirs(BUILD, exist_ok=True)

        def run(*command):
            return self.run_in(SOURCE, [SOURCE, BUILD], *command)
        run("cmake", "-S", SOURCE, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=RelWithDebInfo",
            "-DFERRIN_WARNINGS_AS_ERRORS=ON", "-DCMAKE_SYSTEM_NAME=Linux",
            f"-DCMAKE_SYSTEM_PROCESSOR={WANTED.processor}",
            f"-DCMAKE_C_COMPILER={WANTED.compiler}-gcc", f"-DCMAKE_CXX_COMPILER={WANTED.compiler}-g++",
            f"-DPKG_CONFIG_EXECUTABLE=/usr/bin/{WANTED.compiler}-pkg-config",
            *[f"-DCMAKE_CROSSCOMPILING_EMULATOR=/usr/bin/{WANTED.emulator}"] * bool(WANTED.emulator))
        run("cmake", "--build", BUILD, "--target", *(f"tests/{room}/all" for room in ROOMS))
        output = run("ctest", "--test-dir", BUILD, "--output-on-failure", "--no-tests=error",
                     "--tests-regex", f"^({'|'.join(ROOMS)})[.]", "--exclude-regex", WANTED.left_out)
        self.assertIn("100% tests passed", output)

    @unittest.skipUnless(WANTED.debian == "arm64", "nobody distributes it")
    def test_the_package_is_built(self):
        with tempfile.TemporaryDirectory(prefix="ferrin-architecture-") as folder:
            copy_sources(os.path.join(folder, "ferrin"))
            self.run_in(os.path.join(PLACE, "ferrin"), [f"{folder}:{PLACE}"], "dpkg-buildpackage",
                        f"--host-arch={WANTED.debian}", "--build=any", "-us", "-uc")
            package, = glob.glob(os.path.join(folder, f"ferrin_*_{WANTED.debian}.deb"))
            stage = os.path.join(folder, "stage")
            subprocess.run(["dpkg-deb", "--extract", package, stage], check=True)
            for path in ("usr/bin/ferrin", "usr/libexec/ferrin/ferrin-windows.so"):
                with open(os.path.join(stage, path), "rb") as file:
                    self.assertEqual(file.read(20)[18:], WANTED.elf, path)


if __name__ == "__main__":
    unittest.main(verbosity=2)
