# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The virtual laptop for tests: start one, change it, and run programs on it.

    with VirtualLaptop() as laptop:
        subprocess.run(["upower", "-d"], env=laptop.environment)
        laptop.send("plug")
"""

import json
import os
import shlex
import shutil
import socket
import subprocess
import tempfile

TOOL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "virtual-laptop")


class CommandRefused(Exception):
    """The laptop's error message for a command that failed."""


class Laptop:
    """A running virtual laptop, by the path of its control socket."""

    def __init__(self, control=None):
        self.control = control or os.environ["VIRTUAL_LAPTOP"]

    def send(self, *words):
        """Sends one command; returns the text that follows "ok", if any."""
        with socket.socket(socket.AF_UNIX) as connection:
            connection.connect(self.control)
            connection.sendall(shlex.join(str(word) for word in words).encode() + b"\n")
            with connection.makefile(encoding="utf-8") as answers:
                verdict, _, rest = answers.readline().rstrip("\n").partition(" ")
        if verdict != "ok":
            raise CommandRefused(rest or "the laptop has ended")
        return json.loads(rest) if rest else None

    def supply(self, name):
        """The current attributes of one supply."""
        return self.send("state")[name]


class VirtualLaptop(Laptop):
    """A new virtual laptop that exists until it is closed."""

    def __init__(self, machine=None, upower=True):
        self._folder = tempfile.mkdtemp(prefix="virtual-laptop-")
        os.chmod(self._folder, 0o755)
        super().__init__(os.path.join(self._folder, "control"))
        ready, writable = os.pipe()
        command = [TOOL, "--control", self.control]
        if machine:
            command += ["--machine", machine]
        if not upower:
            command += ["--no-upower"]
        self._process = subprocess.Popen(
            [*command, "--ready-fd", str(writable)], pass_fds=[writable], stdin=subprocess.DEVNULL)
        os.close(writable)
        with os.fdopen(ready) as pipe:
            if not pipe.read():
                self.close()
                raise RuntimeError("the virtual laptop did not start")
        self.environment = os.environ | self.send("environment")

    def close(self):
        self._process.terminate()
        self._process.wait()
        shutil.rmtree(self._folder, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
