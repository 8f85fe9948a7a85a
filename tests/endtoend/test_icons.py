#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Every icon of every catalogue, chosen with a real pointer and seen in a real panel."""

from harness.case import WithSettings, main
from harness.picture import Box
from harness.processes import eventually
from harness.program import icon_entry, stored_settings

# Half the side of the panel's cell, in pixels.
REACH = 13

GLYPHS = ["battery1V", "battery1H", "battery1HWithBolt", "battery2V", "battery2H",
          "battery2HWithBolt", "battery2VInverted", "battery2HInverted",
          "battery2HInvertedWithBolt", "battery2VBlack", "battery2HBlack",
          "battery2HBlackWithBolt"]


def arrows(direction):
    """The twelve arrows that point one way."""
    families = [("arrow", ["square", "circle"]), ("arrowshape", ["circle", ""]),
                ("arrowtriangle", ["circle", "square"])]
    names = [".".join(filter(None, [family, direction, frame]))
             for family, frames in families for frame in frames]
    return filled(names)


def filled(names):
    """Each outline with its filled form after it."""
    return [form for name in names for form in (name, name + ".fill")]


BOLTS_AND_OUTLETS = filled(["bolt", "bolt.circle", "bolt.square"]) + filled(
    [f"poweroutlet.type.{kind}" for kind in "acg"])
DISCHARGING = [name for name in GLYPHS if not name.endswith("WithBolt")] + arrows("down")
CHARGING = GLYPHS + arrows("up") + BOLTS_AND_OUTLETS
CHARGED = GLYPHS + filled(["arrow.up.to.line.circle", "arrow.up.to.line.square"]) \
    + BOLTS_AND_OUTLETS


class EveryIcon(WithSettings):
    # The panel shows the icon and nothing else.
    settings = {f"show{element}When{state}": False for element in ("Charge", "Time")
                for state in ("Discharging", "Charging", "Charged")}
    says = "Discharging"

    def cell(self):
        """The pixels of the item and a little around it."""
        across, down = self.dashboard.item
        box = Box(across - REACH, max(0, down - REACH), across + REACH, down + REACH)
        return tuple(self.session.picture().pixels(box))

    def choose_all(self, state, key, catalogue):
        section = self.window.find(f"When {state}")
        self.session.click(section.find("Choose icon").box.centre)
        buttons = eventually(lambda: self.icon_buttons(state, len(catalogue)),
                             "the icons are shown")
        seen = {}
        # The one that is chosen already comes last, so that each choice is a change.
        for name, button in list(zip(catalogue, buttons))[1:] + [(catalogue[0], buttons[0])]:
            before = self.cell()
            self.session.click(button.box.centre)
            eventually(lambda: stored_settings(self.session)[key] == icon_entry(name),
                       f"{name} is stored")
            eventually(lambda: self.cell() != before, f"the item changes to {name}")
            seen[name] = self.settled()
        self.assertEqual(len(set(seen.values())), len(catalogue), "each icon has its own picture")
        self.window.press("Escape")

    def settled(self):
        """The item's pixels once they stay."""
        last = None

        def stays():
            nonlocal last
            before, last = last, self.cell()
            return before == last
        eventually(stays, "the item stands still")
        return last

    def icon_buttons(self, state, count):
        popover = self.window.root().find(f"Icons when {state}", "dialog")
        found = [each for each in popover.everything()
                 if each.role == "radio button"] if popover else []
        return found if len(found) == count else None

    def test_each_of_the_20_while_discharging(self):
        self.assertEqual(len(DISCHARGING), 20)
        self.choose_all("discharging", "dischargingIconSelected", DISCHARGING)

    def test_each_of_the_36_while_charging(self):
        self.assertEqual(len(CHARGING), 36)
        self.laptop.send("plug")
        self.dashboard.program.says("Charging")
        self.choose_all("charging", "chargingIconSelected", CHARGING)

    def test_each_of_the_28_once_charged(self):
        self.assertEqual(len(CHARGED), 28)
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 100)
        self.dashboard.program.says("Charged")
        self.choose_all("fully charged", "chargedIconSelected", CHARGED)


if __name__ == "__main__":
    main()
