# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What a program tells those who do not look at it, as a screen reader hears it."""

import json
import os
import re
import subprocess
from dataclasses import dataclass

from harness.picture import Box
from harness.processes import eventually

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
MEETING_PLACE = "org.a11y.Bus"
READER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "screenreader.py")
# A program talks to screen readers where this is set, and else where the desktop has one running.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


@dataclass
class Accessible:
    """One object at the moment when it was read."""

    role: str
    name: str
    description: str
    states: set
    box: Box
    children: list
    path: list

    def everything(self):
        """Itself and all below it, in the order in which it is read out."""
        yield self
        for child in self.children:
            yield from child.everything()

    def find(self, pattern, role=None):
        """The first object below whose name matches in full, or None."""
        return next((each for each in self.everything()
                     if re.fullmatch(pattern, each.name) and role in (None, each.role)), None)

    def named(self, role):
        """The names of all objects of a role."""
        return [each.name for each in self.everything() if each.role == role]


class ScreenReader:
    """A process in the session that reads out one program. The program has to be started with
    ENVIRONMENT, after the session has been prepared."""

    @staticmethod
    def prepare(session):
        """Starts what screen readers and programs meet on. Were it left to the first that asks, two
        at once could be sent to different ones."""
        if session.bus.owner(MEETING_PLACE) is None:
            session.start([LAUNCHER, "--launch-immediately"])
            eventually(lambda: session.bus.owner(MEETING_PLACE), "programs can be read out")

    def __init__(self, session, process_id):
        self._process_id = process_id
        self._reader = session.start(["/usr/bin/python3", "-B", READER], stdin=subprocess.PIPE,
                                     stdout=subprocess.PIPE, text=True)

    def close(self):
        self._reader.stdin.close()
        self._reader.stdout.close()

    def read(self):
        """The program's root object, or None as long as it has not told of itself."""
        node = self._ask("tree", self._process_id)
        return _accessible(node, []) if node else None

    def press(self, accessible):
        """Has the program do what a click on the object would."""
        return self._ask("press", self._process_id, *accessible.path)

    def _ask(self, *words):
        self._reader.stdin.write(" ".join(map(str, words)) + "\n")
        self._reader.stdin.flush()
        return json.loads(self._reader.stdout.readline())


def _accessible(node, path):
    children = [_accessible(child, [*path, number])
                for number, child in enumerate(node["children"])]
    return Accessible(node["role"], node["name"], node["description"], set(node["states"]),
                      Box(*node["box"]), children, path)
