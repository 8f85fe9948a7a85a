# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The program under test, run as a user would run it, on the virtual laptop."""

import base64
import json
import os
import re
import shutil
import subprocess
import tempfile

from harness import processes
from harness.item import PROGRAM
from harness.processes import eventually

MOCK = ("LD_PRELOAD", "UMOCKDEV_DIR", "DBUS_SYSTEM_BUS_ADDRESS")


def binary():
    """The program that the build handed to the tests."""
    return os.environ["FERRIN_BINARY"]


class Program:
    """One start of the program in a session and on a laptop."""

    def __init__(self, session, laptop, environment=None, command=None, **options):
        mock = {key: laptop.environment[key] for key in MOCK}
        self._session = session
        log, self._log = tempfile.mkstemp(dir=session.folder, suffix=".log")
        with os.fdopen(log, "wb") as file:
            self._process = session.start(command or [_reachable(session)], mock | (environment or {}),
                                          stdout=file, stderr=subprocess.STDOUT, **options)
        self.pid = self._process.pid

    @property
    def window_pid(self):
        """The process that its windows name as theirs."""
        return self.pid

    @property
    def bus_pid(self):
        """The process that speaks on the session bus for it."""
        return self.pid

    def item(self):
        """The item once the watcher knows it."""
        return eventually(self._item, "the item is registered with the watcher")

    def unseen_item(self):
        """The item by its own name, for a session in which no watcher is needed."""
        return eventually(lambda: self._alive() and self._session.bus.item_by_name(self.pid),
                          "the item is on the bus")

    def says(self, pattern):
        """Waits until the item says what matches, in full, and returns it."""
        item = self.unseen_item()
        said = None

        def matches():
            nonlocal said
            self._alive()
            said = item.says()
            return said is not None and re.fullmatch(pattern, said)
        try:
            eventually(matches, pattern)
        except AssertionError as error:
            raise AssertionError(
                f"the item says {said!r}, not {pattern!r}; it logged:\n{self.log()}") from error
        return said

    def is_running(self):
        return self._process.poll() is None

    def exit_code(self):
        """Waits for the program to end by itself."""
        try:
            return self._process.wait(processes.TIMEOUT_SECONDS)
        except subprocess.TimeoutExpired as error:
            raise AssertionError("the program did not end") from error

    def terminate(self):
        self._process.terminate()
        return self.exit_code()

    def log(self):
        """What it has written so far."""
        with open(self._log, encoding="utf-8", errors="replace") as file:
            return file.read()

    def open_files(self, but=None):
        """How many files and connections it holds open, without those of a kind."""
        folder = f"/proc/{self.pid}/fd"
        kinds = [os.readlink(os.path.join(folder, number)) for number in os.listdir(folder)]
        return sum(but is None or not kind.startswith(but) for kind in kinds)

    def owns_its_name(self):
        """Whether this start is the session's one instance."""
        owner = self._session.bus.owner(PROGRAM)
        return owner is not None and self._session.bus.process_of(owner) == self.bus_pid

    def _item(self):
        self._alive()
        return self._session.bus.item_of(self.bus_pid)

    def _alive(self):
        if not self.is_running():
            raise AssertionError(f"the program ended with {self._process.returncode}; it logged:\n"
                                 + self.log())
        return True


def store_path(session):
    """The file of the session user's settings."""
    return os.path.join(session.environment["XDG_CONFIG_HOME"], PROGRAM, "defaults.json")


def store_settings(session, **settings):
    """Puts settings into the store before the program starts."""
    session.write(os.path.relpath(store_path(session), session.folder), json.dumps(settings))


def stored_settings(session):
    """The settings that the store holds now, by their keys."""
    with open(store_path(session), encoding="utf-8") as file:
        return json.load(file)


def icon_entry(name):
    """An icon as it lies in the store: encoded, which makes data of it."""
    return {"data": base64.b64encode(json.dumps(name).encode()).decode()}


def _reachable(session):
    """The program where the session's user can run it: a build tree may be private."""
    if session.user is None:
        return binary()
    tree = os.path.dirname(os.path.dirname(os.path.abspath(binary())))
    copy = os.path.join(session.folder, "installed")
    for part in ("bin", "libexec", "share"):
        # An earlier start may be running from there.
        if os.path.isdir(os.path.join(tree, part)) and not os.path.exists(os.path.join(copy, part)):
            shutil.copytree(os.path.join(tree, part), os.path.join(copy, part), dirs_exist_ok=True)
    return os.path.join(copy, "bin", os.path.basename(binary()))
