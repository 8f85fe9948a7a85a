# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The roots with the desktops, one a Debian release, and the program as it is built for each."""

import glob
import os
import subprocess

from .root import cached, packages_of

# By the number in which people think of it.
RELEASES = {"12": "bookworm", "13": "trixie"}
SOURCE = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
TARGETS = ("ferrin", "item_picture")
COMPILER_CACHE = ("CMAKE_C_COMPILER_LAUNCHER", "CMAKE_CXX_COMPILER_LAUNCHER", "CCACHE_DIR",
                  "CCACHE_BASEDIR", "CCACHE_NOHASHDIR", "CCACHE_SLOPPINESS", "CCACHE_MAXSIZE")
# Variables that reach a test in the root, beside those that say which program it is to run.
PASSED_ON = ("FERRIN_TEST_TIMEOUT", *COMPILER_CACHE)


def release_of_this_machine():
    """The code name of its Debian, or None for another system."""
    try:
        with open("/etc/os-release", encoding="utf-8") as file:
            fields = dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)
    except OSError:
        return None
    return fields.get("VERSION_CODENAME") if fields.get("ID") == "debian" else None


class Desktops:
    """The desktops of one release, with a build of the program that runs there: those that most
    tests use, or all hosts of the matrix; the benchmarks with what they need, if they are asked for."""

    def __init__(self, number, machines_build, hosts=False, bench=False):
        self._release = RELEASES[number]
        self._more = ["hosts", f"hosts-{self._release}"] * hosts + ["bench"] * bench
        self._bench = bench
        # What was built on the same release runs in its root.
        self._is_built = self._release == release_of_this_machine()
        self.build = machines_build if self._is_built \
            else os.path.join(os.path.dirname(machines_build),
                              f"bench{number}" if bench else f"debian{number}")
        self._root = None

    def make_root(self):
        """Makes the root where there is none."""
        build = [] if self._is_built else ["build"]
        self._root = cached(self._release, packages_of(*build, "run", "desktops", *self._more))

    def build_program(self):
        """Builds the program in the root."""
        if self._is_built:
            return
        os.makedirs(self.build, exist_ok=True)
        for step in (["cmake", "-S", SOURCE, "-B", self.build, "-G", "Ninja",
                      "-DCMAKE_BUILD_TYPE=RelWithDebInfo", f"-DFERRIN_BUILD_BENCH={self._bench}"],
                     ["cmake", "--build", self.build, "--target",
                      *(["benchmarks"] if self._bench else TARGETS)]):
            subprocess.run(self._command(step), check=True)

    def library(self, name):
        """The path of a library of the root's."""
        self.make_root()
        return glob.glob(os.path.join(self._root.path, "usr/lib/*", name))[0]

    def command(self, command, environment, binds=()):
        """The command line of a test, for an ordinary user who sees the tree and the build, and
        whatever else is bound; see namespaces.entered."""
        self.make_root()
        program = {"FERRIN_BINARY": os.path.join(self.build, "bin", "ferrin"),
                   "FERRIN_ITEM_PICTURE": os.path.join(self.build, "tests/endtoend/item_picture")}
        return self._command(command, program | environment, binds)

    def _command(self, command, environment=None, binds=()):
        passed_on = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
        seen = [SOURCE, self.build, *binds]
        if passed_on.get("CCACHE_DIR"):
            os.makedirs(passed_on["CCACHE_DIR"], exist_ok=True)
            seen.append(passed_on["CCACHE_DIR"])
        return self._root.command(*command, user="person", binds=seen, folder=SOURCE,
                                  environment=passed_on | (environment or {}))
