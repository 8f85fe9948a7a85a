# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A service of the desktop or the system in the shape of a process, as a test holds it."""

import os
import subprocess

TESTS = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


class ServiceProcess:
    """Runs a module that writes a line once its service is on the bus, and one for each line of its
    input as soon as it has done what that says."""

    def __init__(self, session, module, environment=None):
        self._process = session.start(["/usr/bin/python3", "-B", "-m", module],
                                      {"PYTHONPATH": TESTS} | (environment or {}),
                                      stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self._process.stdout.readline()

    def send(self, line):
        self._process.stdin.write(line + "\n")
        self._process.stdin.flush()
        self._process.stdout.readline()

    def close(self):
        self._process.stdin.close()
        self._process.stdout.close()
