# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The tree as a release is packed, and what Debian's source package asks for."""

import os
import re
import shutil
import subprocess

SOURCE = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))


def read(*path):
    with open(os.path.join(SOURCE, *path), encoding="utf-8") as file:
        return file.read()


def version():
    return re.search(r"project\(ferrin VERSION ([\d.]+)", read("CMakeLists.txt")).group(1)


def packages_named(field):
    """The first choice of each package in a field's list."""
    names = [re.match(r"[\w.+-]+", each.strip()).group() for each in field.split(",")
             if not each.strip().startswith("@")]
    return ["debhelper" if name == "debhelper-compat" else name for name in names]


def field(name, *path):
    return re.search(rf"^{name}:(.*(?:\n .*)*)", read(*path), re.M).group(1)


def copy_sources(folder):
    """A tree of what is the project's, as a release is packed."""
    files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                           cwd=SOURCE, check=True, stdout=subprocess.PIPE).stdout.split(b"\0")
    for name in filter(None, map(os.fsdecode, files)):
        target = os.path.join(folder, name)
        if os.path.lexists(os.path.join(SOURCE, name)):
            os.makedirs(os.path.dirname(target), exist_ok=True)
            shutil.copy2(os.path.join(SOURCE, name), target, follow_symlinks=False)
