# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What the item shows, for the eye: every mix of its elements, in real status areas."""

import contextlib
import time
from dataclasses import dataclass

from harness.hosts import session_of
from harness.picture import Box
from harness.processes import a_moment, eventually
from harness.program import Program, icon_entry, store_settings
from virtuallaptop import VirtualLaptop

# No cell is larger, in pixels; a panel that draws the whole of itself anew is.
LARGEST_CELL = (140, 48)
# Some areas are a few pixels wide without any item.
NARROWEST_CELL = 4
A_BLINK = 0.4


@dataclass(frozen=True)
class Exhibit:
    """One picture: what the laptop does before the program starts, what the program then says, and
    which elements it shows, in whatever state the battery is."""

    title: str
    commands: tuple
    says: str
    elements: str = "Icon Charge Time"
    icon: str = "battery1V"

    def settings(self):
        states = ("Discharging", "Charging", "Charged")
        switches = {f"show{element}When{state}": element in self.elements.split()
                    for element in ("Icon", "Charge", "Time") for state in states}
        return switches | {f"{state.lower()}IconSelected": icon_entry(self.icon)
                           for state in states}


DISCHARGING = (("unplug",), ("drain", "BAT0", 37))
CHARGING = (("plug",), ("charge", "BAT0", 78))
FULL = (("plug",), ("charge", "BAT0", 100))
LOW = (("unplug",), ("drain", "BAT0", 8))
SLOW = (("drain", "BAT0", 37), ("set", "BAT0", "power_now", 1408000))
IDLE = (("drain", "BAT0", 37), ("set", "BAT0", "power_now", 0))

TIME = r"\d+:\d\d to empty"
MIXES = (
    Exhibit("icon", DISCHARGING, ".*", "Icon"),
    Exhibit("charge", DISCHARGING, "37%", "Charge"),
    Exhibit("time", DISCHARGING, TIME, "Time"),
    Exhibit("icon, charge", DISCHARGING, "37%", "Icon Charge"),
    Exhibit("icon, time", DISCHARGING, TIME, "Icon Time"),
    Exhibit("charge, time", DISCHARGING, f"37%, {TIME}", "Charge Time"),
    Exhibit("all", DISCHARGING, f"37%, {TIME}"),
    Exhibit("all, lying", DISCHARGING, f"37%, {TIME}", icon="battery2H"),
    Exhibit("charging", CHARGING, r"78%, \d.*", icon="battery2HWithBolt"),
    Exhibit("symbol", CHARGING, r"78%, \d.*", icon="bolt.fill"),
    Exhibit("full", FULL, "100%"),
    Exhibit("full, lying", FULL, "100%", icon="battery2HWithBolt"),
    Exhibit("low", LOW, f"8%, {TIME}"),
    Exhibit("low, lying", LOW, f"8%, {TIME}", icon="battery2H"),
    Exhibit("12:05", SLOW, "37%, 1[12]:.*"),
    Exhibit("unknown time", IDLE, r"37%, \?:\?\?.*"),
)


class Gallery:
    """One host in one session, which shows one exhibit after the other."""

    def __init__(self, host, dark, scale):
        self._session = session_of(host, dark, scale)
        self._scale = scale
        self._laptop = None
        self._empty = None
        self._stack = contextlib.ExitStack()

    def __enter__(self):
        with self._stack as stack:
            self._laptop = stack.enter_context(VirtualLaptop())
            stack.enter_context(self._session)
            # By which the edge of a black bar is seen; some desktops have a picture of their own.
            self._session.run("hsetroot", "-solid", "#336699")
            a_moment()
            self._empty = self.settled()
            self._stack = stack.pop_all()
        return self

    def __exit__(self, *problem):
        self._stack.close()

    def settled(self):
        """A picture of the screen once it has not changed for a blink."""
        last = self._session.picture()

        def at_rest():
            nonlocal last
            time.sleep(A_BLINK)
            before, last = last, self._session.picture()
            return before.difference(last) is None
        eventually(at_rest, "the panel is at rest")
        return last

    def show(self, exhibit):
        """A picture of the screen with the exhibit, and the item's place in it."""
        for command in exhibit.commands:
            self._laptop.send(*command)
        store_settings(self._session, **exhibit.settings())
        program = Program(self._session, self._laptop)
        program.says(exhibit.says)
        eventually(self._cell, "the item is drawn")
        picture = self.settled()
        cell = eventually(self._cell, "the item is drawn")
        program.terminate()
        eventually(lambda: self._cell() != cell, "the item is gone")
        return picture, cell

    def _cell(self):
        box = self._session.item_box(self._empty)
        widest, highest = (length * self._scale for length in LARGEST_CELL)
        is_cell = box and NARROWEST_CELL < box.width <= widest and box.height <= highest
        return box if is_cell else None


def around(cell, picture, width, height):
    """A part of the picture of that size with the cell in the middle of it, as far as possible."""
    left = min(max(0, cell.centre[0] - width // 2), picture.width - width)
    top = min(max(0, cell.centre[1] - height // 2), picture.height - height)
    return Box(left, top, left + width, top + height)
