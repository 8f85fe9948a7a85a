# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A Debian with nothing in it, in which a package is installed and from which it is run: on a desktop
of another root, as if both were one system."""

import configparser
import os
import shutil
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from roots.desktops import RELEASES, Desktops, release_of_this_machine  # noqa: E402

# Where the desktop's root has the clean one, and what starts programs from there.
PLACE, TOOLS = "/mnt/clean", "/mnt/tools"
# What a program in the clean root sees of the desktop: the displays, the buses, the virtual laptop.
SEEN = ("/tmp", "/proc", "/dev")
MOCK = "libumockdev-preload.so.0"
# The mounts go with the process, which stays the one that was started and whose user stays himself.
LAUNCHER = """#!/bin/sh -e
[ -n "$APART" ] || APART=1 exec unshare --user --map-root-user --mount "$0"
{mounts}
export LD_LIBRARY_PATH={tools}
exec unshare --user --map-user=1000 --map-group=1000 --root={place} -- env PATH=/usr/bin:/bin {command}
"""


def number_of_this_machine():
    """What the package was made for is what it is tried on."""
    release = release_of_this_machine()
    for number, name in RELEASES.items():
        if name == release:
            return number
    raise AssertionError(f"there are no roots of this machine's release, {release}")


def files_named(root, part):
    """The paths in the root that have this in their last name, outside of homes and apt's books."""
    found = []
    for folder, folders, files in os.walk(root.path):
        if folder == root.path:
            folders[:] = [each for each in folders
                          if each not in ("proc", "dev", "sys", "var", "home")]
        found += [os.path.relpath(os.path.join(folder, each), root.path)
                  for each in folders + files if part in each.lower()]
    return sorted(found)


def run_from(root, tools, entry, *command, build):
    """The command line of a test on the desktops, whose program is what the application menu would
    start with this desktop entry in the clean root. The folder of tools is the caller's own."""
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(os.path.join(root.path, "usr/share/applications", entry))
    launcher = os.path.join(tools, "launch")
    with open(launcher, "w", encoding="utf-8") as file:
        file.write(LAUNCHER.format(
            mounts="\n".join(f"mount --rbind {each} {PLACE}{each}" for each in SEEN),
            tools=TOOLS, place=PLACE, command=parser["Desktop Entry"]["Exec"]))
    os.chmod(launcher, 0o755)
    desktops = Desktops(number_of_this_machine(), build)
    # Where the program is, the mock of the laptop is not.
    shutil.copy(desktops.library(MOCK), tools)
    os.makedirs(root.path + TOOLS, exist_ok=True)
    shutil.copy(os.path.join(tools, MOCK), root.path + TOOLS)
    return desktops.command(command, {"FERRIN_BINARY": TOOLS + "/launch"},
                            binds=[f"{root.path}:{PLACE}", f"{tools}:{TOOLS}"])
