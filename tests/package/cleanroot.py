# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A Debian 12 with nothing in it, in a folder: packages are installed there and run from there."""

import configparser
import glob
import os
import shlex
import shutil
import subprocess
import tempfile

MIRROR = "http://deb.debian.org/debian"
# What a program in the root sees of the outside: the displays, the buses and the virtual laptop.
SEEN = ("/tmp", "/proc", "/dev")
MOCK = "/usr/lib/*/libumockdev-preload.so.0"


class CleanRoot:
    def __init__(self):
        # Not below /tmp, which the root sees.
        self.path = tempfile.mkdtemp(prefix="ferrin-root-", dir="/var/tmp")
        os.chmod(self.path, 0o755)
        self._tools = tempfile.mkdtemp(prefix="ferrin-root-tools-")
        shutil.copy(glob.glob(MOCK)[0], self._tools)
        subprocess.run(["mmdebstrap", "--quiet", "--variant=apt", "bookworm", self.path, MIRROR],
                       check=True)

    def close(self):
        shutil.rmtree(self.path, ignore_errors=True)
        shutil.rmtree(self._tools, ignore_errors=True)

    def run(self, *command):
        """Runs a command in the root and returns what it says."""
        done = subprocess.run(["chroot", self.path, *command], text=True, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False,
                              env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin",
                                   "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8"})
        if done.returncode != 0:
            raise AssertionError(f"{shlex.join(command)} ended with {done.returncode}:\n"
                                 + done.stdout)
        return done.stdout

    def take(self, file):
        """Puts a file into the root's top folder; returns its path there."""
        shutil.copy(file, self.path)
        return "/" + os.path.basename(file)

    def files_named(self, part):
        """The paths in the root that have this in their last name, outside of apt's own books."""
        found = []
        for folder, folders, files in os.walk(self.path):
            if folder == self.path:
                folders[:] = [each for each in folders if each not in ("proc", "dev", "sys", "var")]
            found += [os.path.relpath(os.path.join(folder, each), self.path)
                      for each in folders + files if part in each.lower()]
        return sorted(found)

    def launcher(self, entry):
        """A program that does what the application menu does with this desktop entry."""
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(os.path.join(self.path, "usr/share/applications", entry))
        command = parser["Desktop Entry"]["Exec"]
        path = os.path.join(self._tools, "launch")
        mounts = "\n".join(f"mount --rbind {each} {self.path}{each}" for each in SEEN)
        with open(path, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh -e\n{mounts}\nexport LD_LIBRARY_PATH={self._tools}\n"
                       f"exec /usr/sbin/chroot {self.path} env PATH=/usr/bin:/bin {command}\n")
        os.chmod(path, 0o755)
        # Its mounts are its own and go with it; it stays the process that was started.
        outer = path + "-apart"
        with open(outer, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\nexec /usr/bin/unshare --mount {path}\n")
        os.chmod(outer, 0o755)
        return outer
