# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A laptop's day: what the bus says and what the panel shows follow the battery."""

import json

from harness.case import AT_START, OnADesktop, main
from harness.picture import is_red
from harness.processes import eventually
from harness.program import store_path, store_settings


class ADay(OnADesktop):
    def red_pixels(self, before):
        box = self.session.item_box(before)
        return sum(map(is_red, self.session.picture().pixels(box))) if box else 0

    def stored(self, key):
        try:
            with open(store_path(self.session), encoding="utf-8") as file:
                return json.load(file).get(key)
        except (OSError, ValueError):
            return None

    def test_from_morning_to_night(self):
        before = self.session.picture()
        program = self.start()
        item = program.item()
        program.says(AT_START)
        eventually(lambda: self.session.item_box(before), "the item is on the screen")
        self.assertEqual(self.red_pixels(before), 0)

        self.laptop.send("drain", "BAT0", 33)
        program.says("33%, 2:29 to empty")
        self.laptop.send("plug")
        program.says(r"33%, \d+:\d\d to full")
        self.laptop.send("adapter-details")
        eventually(lambda: self.stored("adapterWattsStored") == 65, "the adapter is remembered")
        self.assertEqual(self.stored("adapterNameStored"), "65W USB-C")
        self.assertEqual(self.stored("adapterManufacturerStored"), "Acme")
        self.assertEqual(self.stored("adapterVoltageStored"), 20)
        self.assertEqual(self.stored("adapterCurrentStored"), 3.25)

        self.laptop.send("charge", "BAT0", 78)
        program.says(r"78%, 1:0\d to full")
        self.laptop.send("charge", "BAT0", 100)
        program.says("100%")
        self.assertEqual(item.get("IconAccessibleDesc"), "100%")

        self.laptop.send("unplug")
        program.says("100%, 7:32 to empty")
        self.assertEqual(self.red_pixels(before), 0)
        self.laptop.send("drain", "BAT0", 8)
        program.says("8%, 0:36 to empty")
        eventually(lambda: self.red_pixels(before) > 0, "a battery that is nearly empty is red")
        self.laptop.send("plug")
        program.says(r"8%, \d+:\d\d to full")
        eventually(lambda: self.red_pixels(before) == 0, "a charging battery is never red")

    def test_plugging_in_and_out_is_followed(self):
        program = self.start()
        program.says(AT_START)
        for _ in range(3):
            self.laptop.send("plug")
            program.says(r"37%, \d+:\d\d to full")
            self.laptop.send("unplug")
            program.says(r"37%, \d+:\d\d to empty")

    def test_what_happened_during_a_sleep_is_seen_after_it(self):
        program = self.start()
        program.says(AT_START)
        self.laptop.send("sleep")
        self.laptop.send("write", "BAT0", "capacity", 20, "energy_now", 9200000)
        self.laptop.send("wake")
        program.says(r"20%, \d+:\d\d to empty")


class WhatIsShown(OnADesktop):
    def check(self, settings, said):
        store_settings(self.session, **settings)
        program = self.start()
        program.says(said)
        self.assertEqual(program.terminate(), 0)

    def test_the_elements_that_the_user_chose_and_no_others(self):
        self.check({"showTimeWhenDischarging": False}, "37%")
        self.check({"showChargeWhenDischarging": False}, "2:47 to empty")
        self.check({"showIconWhenDischarging": False}, AT_START)
        self.check({"showTimeWhenDischarging": False, "showChargeWhenDischarging": False},
                   "Discharging")

    def test_the_state_alone_while_charging_and_charged(self):
        hidden = {f"show{element}When{state}": False for element in ("Time", "Charge")
                  for state in ("Charging", "Charged")}
        self.laptop.send("plug")
        self.check(hidden, "Charging")
        self.laptop.send("charge", "BAT0", 100)
        self.check(hidden, "Charged")


class OnADesktopComputer(OnADesktop):
    machine = "desktop-no-battery.json"

    def test_it_says_that_there_is_no_battery(self):
        self.start().says("No battery")


if __name__ == "__main__":
    main()
