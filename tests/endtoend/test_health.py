# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard's health section on new, worn and taciturn batteries, with its explanations."""

import json
import tempfile

from harness.case import WithADashboard, main
from harness.processes import a_moment, eventually
from virtuallaptop import machine

MACBOOK = {"sys_vendor": "Apple Inc.", "product_name": "MacBookPro15,1", "chassis_type": "9"}
DESKTOP = {"sys_vendor": "Acme", "product_name": "Tower", "chassis_type": "3"}
HEALTH = ("Max capacity", "Charge cycles", "Health", "Lifespan")
CYCLES_TEXT = (
    "Your battery has a limited amount of 1000 charge cycles before their performance is expected "
    "to diminish. This value is known as design cycles.\n\nOnce the cycle count 1000 is reached, a "
    "replacement battery is recommended to maintain performance.\n\nYou can use your battery after "
    "it reaches 1000 cycle count, but you might notice a reduction in your battery life.")


class TheHealth(WithADashboard):
    """A battery of 50 Wh that was designed for a thousand cycles."""

    identity = MACBOOK

    def setUp(self):
        record = self.enterContext(tempfile.NamedTemporaryFile("w", suffix=".json"))
        record.write(json.dumps(machine.DEFAULT | {"dmi": self.identity}))
        record.flush()
        self.machine = record.name
        super().setUp()

    def wear(self, percent, cycles):
        self.laptop.send("set", "BAT0", "energy_full", percent * 500000, "cycle_count", cycles)

    def look(self, capacity, cycles, health, lifespan):
        """Opens the section, which reads all of its figures anew."""
        self.dashboard.open()
        if self.dashboard.selected() != ["HEALTH"]:
            self.dashboard.select("HEALTH")
        self.dashboard.shows_all(dict(zip(HEALTH, (capacity, cycles, health, lifespan))))

    def leave(self):
        self.dashboard.press("Escape")
        self.dashboard.has_closed()
        a_moment()

    def explains(self, title, *texts):
        """The explanation begins with these texts, by which it differs from the others."""
        explanation = self.dashboard.explain(title)
        self.assertEqual(explanation[:len(texts)], list(texts))
        self.dashboard.click(f"More about {title}")
        eventually(lambda: not self.dashboard.popover(), "the explanation has closed")


class OfAMacBook(TheHealth):
    def test_each_opening_shows_the_figures_of_that_moment(self):
        self.look("92%", "123 of 1000", "Normal", "Good")
        self.leave()
        self.wear(79, 500)
        self.look("79%", "500 of 1000", "Service recommended", "Reduced")
        self.explains(
            "Lifespan",
            "As you have done less than 1000 charge cycles but your maximum capacity is 79% (less "
            "than 80%), the lifespan of your battery is reduced. You may want to consider "
            "replacing the battery.")
        self.explains("Health", "Service is recommended for your battery. Contact Apple Inc. or an "
                                "Apple Inc. Authorized Service Provider.")
        self.leave()
        self.wear(95, 3)
        self.look("95%", "3 of 1000", "Normal", "Good")

    def test_too_many_cycles_alone_leave_the_lifespan_good(self):
        self.wear(80, 1200)
        self.look("80%", "1200 of 1000", "Normal", "Good")
        self.explains("Charge cycles", CYCLES_TEXT,
                      "Your battery has gone through 1200 charge cycles, exceeding the **1000 "
                      "design cycles.")
        self.explains(
            "Lifespan",
            "As your maximum capacity is still 80% and you have done more than 1000 charge cycles, "
            "the lifespan of your battery is still good.")

    def test_as_many_cycles_as_designed_are_not_too_many(self):
        self.wear(70, 1000)
        self.look("70%", "1000 of 1000", "Service recommended", "Good")
        self.explains("Charge cycles", CYCLES_TEXT,
                      "Your battery has gone through 1000 charge cycles, of a total amount of 1000 "
                      "design cycles.")
        self.explains(
            "Lifespan",
            "As your maximum capacity is still 70% and you have done less than 1000 charge cycles, "
            "the lifespan of your battery is good.")

    def test_a_battery_that_is_worn_in_every_way_is_explained(self):
        self.wear(61, 1471)
        self.look("61%", "1471 of 1000", "Service recommended", "Reduced")
        self.explains("Max capacity",
                      "Your battery has a 61% maximum capacity, meaning that it can retain 61% of "
                      "charge compared to when it was new.")
        self.explains(
            "Lifespan",
            "As your maximum capacity is 61% (less than 80%) and you have done more than 1000 "
            "charge cycles, the lifespan of your battery is reduced. You may want to consider "
            "replacing the battery.")


class OfAMachineWithoutDesignCycles(TheHealth):
    identity = DESKTOP

    def test_cycles_and_lifespan_are_unknown_and_the_rest_is_known(self):
        self.look("92%", "Unknown", "Normal", "Unknown")
        self.assertEqual(self.dashboard.buttons(),
                         ["More about Max capacity", "More about Health"])

    def test_a_battery_that_says_nothing_of_its_age_has_no_health(self):
        self.laptop.send("unset", "BAT0", "energy_full_design", "cycle_count")
        self.look("Unknown", "Unknown", "Unknown", "Unknown")
        self.assertEqual(self.dashboard.buttons(), [])


class Explanations(TheHealth):
    def setUp(self):
        super().setUp()
        self.look("92%", "123 of 1000", "Normal", "Good")

    def test_one_at_a_time_is_open(self):
        before = self.dashboard.explain("Health")
        self.dashboard.click("More about Charge cycles")
        eventually(lambda: self.dashboard.explanation() not in ([], before), "the other is open")
        a_moment()
        self.assertEqual(len(self.dashboard.windows()), 2)

    def test_the_click_that_closes_one_does_not_open_it_again(self):
        for closing in ("More about Health", "Health: .*", "Charge cycles: .*"):
            with self.subTest(closing):
                self.dashboard.explain("Health")
                a_moment()
                self.dashboard.click(closing)
                eventually(lambda: not self.dashboard.popover(), "the explanation has closed")
                a_moment()
                self.assertIsNone(self.dashboard.popover())
                self.assertEqual(len(self.dashboard.windows()), 1)

    def test_only_the_button_opens_one(self):
        for title in HEALTH:
            self.dashboard.click(f"{title}: .*")
        a_moment()
        self.assertIsNone(self.dashboard.popover())

    def test_another_section_takes_its_place(self):
        self.dashboard.explain("Lifespan")
        self.dashboard.select("STATUS")
        eventually(lambda: not self.dashboard.popover(), "the explanation has closed")
        self.dashboard.shows(Charge_now="37%", Time_to_empty=r"\d+ hours? \d+ minutes?",
                             Battery_is="Discharging", Power_source="Battery")


if __name__ == "__main__":
    main()
