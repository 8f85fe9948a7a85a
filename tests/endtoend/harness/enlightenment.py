# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Enlightenment, as it comes: a desktop that is its own window manager and panel."""

from collections import Counter

from harness.picture import Box
from harness.processes import eventually
from harness.session import Screen
from harness.shells import Shell

COMPLAINT = b"Error in Enlightenment System Service"
# Where its shelf, which is centred, has the status area with one item in it.
STATUS_AREA = Box(400, 563, 440, 597)
EDGE = 32
# The shelf has a meter that never stands still, and a shadow.
ABOVE_SHELF = Box(0, 0, 1024, 545)


class EnlightenmentScreen(Shell, Screen):
    size = (1024, 600)
    desktop = "Enlightenment"
    still_part = ABOVE_SHELF
    shelf_top = 560

    def boot(self):
        super().boot()
        self.start_shell(
            # By its starter it would be restarted whenever it ends.
            ["enlightenment", "-profile", "standard",
             "-i-really-know-what-i-am-doing-and-accept-full-responsibility-for-it"],
            {"E_START": "enlightenment_start", "E_CONF_PROFILE": "standard"})
        eventually(self.bus.has_host, "the shelf offers a status area")
        # A part of it wants to be run by root.
        eventually(self._complains, "it complains")
        eventually(self._is_calmed, "its complaint is closed")

    def windows_of(self, process_id):
        return self.run("xdotool", "search", "--onlyvisible", "--pid", str(process_id)).split()

    def item_box(self, before):
        # All of the shelf moves when an item comes.
        now = self.picture()
        ground = Counter(now.pixels(STATUS_AREA)).most_common(1)[0][0]
        places = [(x, y) for y in range(STATUS_AREA.top, STATUS_AREA.bottom)
                  for x in range(STATUS_AREA.left, STATUS_AREA.right)
                  if any(abs(one - other) > EDGE for one, other in zip(now.pixel(x, y), ground))]
        if not places:
            return None
        columns, rows = zip(*places)
        return Box(min(columns), min(rows), max(columns) + 1, max(rows) + 1)

    def _complains(self):
        return COMPLAINT in self._on_screen("xwininfo", "-root", "-tree")

    def _is_calmed(self):
        self.run("xdotool", "key", "Return")
        return not self._complains()

    def _start_display(self):
        super()._start_display()
        self.environment |= self._screen | {"XDG_SESSION_TYPE": "x11"}
