# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Programs that do nothing but write down that they were started, and with which words."""

import os

SCRIPT = """#!/bin/sh
printf '%s\\n' "${{0##*/}} $*" >> {log}
"""


class StandIns:
    """In a folder of the session that holds nothing else."""

    def __init__(self, session, *names):
        self._log = os.path.join(session.folder, "started")
        for name in names:
            os.chmod(session.write(f"stand-ins/{name}", SCRIPT.format(log=self._log)), 0o755)
        self.folder = os.path.join(session.folder, "stand-ins")

    def alone(self):
        """The environment of a program that finds these and no others."""
        os.makedirs(self.folder, exist_ok=True)
        return {"PATH": self.folder}

    def started(self):
        """The command lines so far, in their order, without the folder."""
        if not os.path.exists(self._log):
            return []
        with open(self._log, encoding="utf-8") as file:
            return [line.strip() for line in file]
