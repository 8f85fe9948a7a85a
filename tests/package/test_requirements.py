#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The recipes of all distributions ask for the same, each by its own names: what the build looks for,
its tools, and what the program finds at run time."""

import json
import os
import re
import subprocess
import tempfile
import unittest

from sourcetree import SOURCE, field, packages_named, read

SPEC = os.path.join(SOURCE, "packaging", "rpm", "ferrin.spec")
PKGBUILD = os.path.join(SOURCE, "packaging", "arch", "PKGBUILD")
EXPRESSION = os.path.join(SOURCE, "packaging", "nix", "package.nix")

# What CMake looks for, and who has it in Debian, Arch and nixpkgs. RPM's packages tell it themselves.
LIBRARIES = {
    "Qt6Core": ("qt6-base-dev", "qt6-base", "qtbase"),
    "Qt6DBus": ("qt6-base-dev", "qt6-base", "qtbase"),
    "Qt6Gui": ("qt6-base-dev", "qt6-base", "qtbase"),
    "Qt6Qml": ("qt6-declarative-dev", "qt6-declarative", "qtdeclarative"),
    "Qt6Quick": ("qt6-declarative-dev", "qt6-declarative", "qtdeclarative"),
    "Qt6Svg": ("qt6-svg-dev", "qt6-svg", "qtsvg"),
    "libsystemd": ("libsystemd-dev", "systemd-libs", "systemd"),
    "libudev": ("libudev-dev", "systemd-libs", "systemd"),
    "wayland-client": ("libwayland-dev", "wayland", "wayland"),
    "wayland-protocols": ("wayland-protocols", "wayland-protocols", "wayland-protocols"),
    "wayland-scanner": ("libwayland-bin", "wayland", "wayland-scanner"),
    "xcb": ("libxcb1-dev", "libxcb", "xorg.libxcb"),
    "xcb-shape": ("libxcb-shape0-dev", "libxcb", "xorg.libxcb"),
    "xcb-xinput": ("libxcb-xinput-dev", "libxcb", "xorg.libxcb"),
}
# What builds, and what a distribution wants beside; compilers are there.
TOOLS = {
    "debian": {"cmake", "debhelper", "ninja-build", "pkgconf", "qt6-base-dev-tools",
               "qt6-declarative-dev-tools"},
    "rpm": {"cmake", "desktop-file-utils", "gcc-c++", "systemd-rpm-macros", "/usr/bin/ninja",
            "/usr/bin/pkg-config"},
    "arch": {"cmake", "ninja"},
    "nix": {"cmake", "ninja", "pkg-config", "wrapQtAppsHook"},
}
# Without these something is missing, and the program runs: in Debian, Fedora and openSUSE, Arch.
OPTIONAL = {
    ("appstream", "/usr/bin/appstreamcli", "appstream"),
    ("libglib2.0-bin", "/usr/bin/gapplication", "glib2"),
    ("packagekit", "PackageKit", "packagekit"),
    ("qt6-wayland", "(qt6-qtwayland or qt6-wayland)", "qt6-wayland"),
    ("upower", "upower", "upower"),
    ("xdg-utils", "xdg-utils", "xdg-utils"),
}


def asked_by_cmake():
    """The modules of Qt and the libraries that a build without tests looks for."""
    text = read("CMakeLists.txt")
    components = re.search(r"find_package\(Qt6 \S+ REQUIRED COMPONENTS ([\w ]+)\)", text).group(1)
    modules = re.findall(r"pkg_check_modules\(\w+ REQUIRED (?:IMPORTED_TARGET )?(.*)\)", text)
    return {"Qt6" + each for each in components.split()} \
        | {re.match("[^>]+", each).group() for line in modules for each in line.split()}


def names(column):
    """Those of all libraries in one distribution."""
    return {each[column] for each in LIBRARIES.values()}


def of_spec(tag):
    """The values of all lines of a tag, without versions."""
    parsed = subprocess.run(["rpmspec", "--parse", SPEC], text=True, check=True,
                            stdout=subprocess.PIPE).stdout
    return {each.split(" >= ")[0] for each in re.findall(rf"^{tag}:\s+(.+?)\s*$", parsed, re.M)}


def of_pkgbuild(*arrays):
    """What is before the colon of each element."""
    script = 'source "$0"; for list; do declare -n all=$list; printf "%s\\n" "${all[@]%%:*}"; done'
    done = subprocess.run(["bash", "-euc", script, PKGBUILD, *arrays], text=True, check=True,
                          stdout=subprocess.PIPE)
    return set(done.stdout.split())


def of_expression(attribute):
    """An attribute of the expression, where every package is its own name."""
    expression = f"""
      let
        file = import {EXPRESSION};
        lib = {{
          cleanSource = path: path;
          cleanSourceWith = {{ ... }}: "sources";
          cmakeBool = name: value: name + (if value then "=ON" else "=OFF");
          makeBinPath = builtins.concatStringsSep ":";
          getExe' = package: name: package + "/bin/" + name;
        }};
      in
      (file (builtins.mapAttrs (name: _: name) (builtins.functionArgs file) // {{
        inherit lib;
        stdenv.mkDerivation = attributes: attributes;
        xorg.libxcb = "xorg.libxcb";
      }})).{attribute}
    """
    with tempfile.TemporaryDirectory(prefix="ferrin-nix-") as home:
        done = subprocess.run(
            ["nix-instantiate", "--store", "dummy://", "--eval", "--strict", "--json", "--expr",
             expression], text=True, check=True, stdout=subprocess.PIPE,
            env=os.environ | {"HOME": home, "NIX_STATE_DIR": home})
    return json.loads(done.stdout)


class Requirements(unittest.TestCase):
    def test_every_library_that_cmake_looks_for_has_a_package_everywhere(self):
        self.assertEqual(asked_by_cmake(), set(LIBRARIES))

    def test_debians_source_package_asks_for_them(self):
        self.assertEqual(set(packages_named(field("Build-Depends", "debian", "control"))),
                         names(0) | TOOLS["debian"])

    def test_the_spec_asks_for_them(self):
        told = {f"cmake({each})" if each.startswith("Qt6") else f"pkgconfig({each})"
                for each in LIBRARIES}
        self.assertEqual(of_spec("BuildRequires"), told | TOOLS["rpm"])

    def test_the_pkgbuild_asks_for_them(self):
        at_run_time = {"dbus", "gcc-libs", "glibc", "hicolor-icon-theme"}
        self.assertEqual(of_pkgbuild("depends", "makedepends") - at_run_time,
                         names(1) | TOOLS["arch"])

    def test_the_expression_asks_for_them(self):
        found = {*of_expression("nativeBuildInputs"), *of_expression("buildInputs")}
        # The plugin is found where it is an input.
        self.assertEqual(found, names(2) | TOOLS["nix"] | {"qtwayland"})

    def test_what_may_be_missing_is_named_by_all_of_them(self):
        self.assertEqual(
            set(packages_named(field("Recommends", "debian", "control")))
            | set(packages_named(field("Suggests", "debian", "control"))),
            {each[0] for each in OPTIONAL})
        self.assertEqual(of_spec("Recommends") | of_spec("Suggests"), {each[1] for each in OPTIONAL})
        self.assertEqual(of_pkgbuild("optdepends"), {each[2] for each in OPTIONAL})


class TheExpression(unittest.TestCase):
    def test_builds_without_tests_what_the_program_is_called(self):
        self.assertEqual(of_expression("cmakeFlags"), ["BUILD_TESTING=OFF"])
        self.assertEqual(of_expression("pname"), of_expression("meta.mainProgram"))

    def test_finds_each_text_that_it_replaces(self):
        """In a package of Nix nothing is found by its name alone."""
        script = of_expression("postInstall").replace("\\\n", " ")
        replaced = re.findall(r"substituteInPlace \$out/(\S+)\s+--replace-fail ('[^']+'|\S+) ", script)
        self.assertEqual(len(replaced), script.count("substituteInPlace"))
        for path, text in replaced:
            self.assertIn(text.strip("'"), read("packaging", os.path.basename(path)), path)


if __name__ == "__main__":
    unittest.main(verbosity=2)
