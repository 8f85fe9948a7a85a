# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What the program holds of the system, before and after much of anything."""

import re

# What a hundred of anything may leave to the program alone, in kB: less than 10 each.
SPARE_KILOBYTES = 1000
STATISTICS = "org.freedesktop.DBus.Debug.Stats"


class Holdings:
    """Files, windows, memory, and what the session bus keeps for the program."""

    def __init__(self, session, program):
        self.files = program.open_files()
        self.windows = session.all_windows().count(b'"ferrin")')
        self.matches = _matches(session.bus, program)
        with open(f"/proc/{program.pid}/smaps_rollup", encoding="ascii") as file:
            output = file.read()
        self.kilobytes = int(re.search(r"Private_Dirty: +(\d+)", output).group(1))

    def __str__(self):
        return (f"{self.files} files, {self.windows} windows, {self.matches} matches on the bus, "
                f"{self.kilobytes} kB")

    def exceed(self, other, spare=SPARE_KILOBYTES):
        """What there is more of than before, in words; empty for nothing."""
        more = []
        if self.files > other.files:
            more.append(f"{self.files} files instead of {other.files}")
        if self.windows > other.windows:
            more.append(f"{self.windows} windows instead of {other.windows}")
        if self.matches > other.matches:
            more.append(f"{self.matches} matches instead of {other.matches}")
        if self.kilobytes > other.kilobytes + spare:
            more.append(f"{self.kilobytes} kB instead of {other.kilobytes}")
        return more


def _matches(bus, program):
    """How many rules of the program's the session bus keeps: it never sends less than they say."""
    name = bus.owner(program.unseen_item().name)
    output = bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", STATISTICS,
                      "GetConnectionStats", "(s)", name)[0]
    return output["MatchRules"]
