# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard without a pointer and without eyes: real keys, and a screen reader's view of it."""

from harness.case import WithADashboard, main
from harness.dashboard import CARD, SECTIONS, TAB
from harness.processes import a_moment, eventually
from harness.readwindow import BUTTON

IN_WORDS = {
    "STATUS": {"Charge now": "100%", "Time available": "13 hours 16 minutes",
               "Battery is": "Charged", "Power source": "AC Power"},
    "HEALTH": {"Max capacity": "92%", "Charge cycles": "123 of 300", "Health": "Normal",
               "Lifespan": "Good"},
    "POWER ADAPTER": {"Power": "65 watts", "Volts & amps": r"20 volts, 3\.25 amps",
                      "Description": "65W USB-C", "Manufacturer": "Acme"}}


class OfACharged(WithADashboard):
    """On a full battery, the one state in which the status section holds a button."""

    says = "100%"

    def prepare(self):
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 100)
        self.laptop.send("adapter-details")

    def setUp(self):
        super().setUp()
        self.dashboard.open()
        self.session.point((5, 500))
        eventually(self.dashboard.focused, "the dashboard has the focus")

    def press(self, key, focused):
        """Presses a key and waits for the focus to be where it belongs."""
        self.dashboard.press(key)
        eventually(lambda: self.dashboard.focused_name() == focused, f"{key} leads to {focused}")

    def walk(self, key, start):
        """The names on the way that a key leads, until it comes around."""
        names = [start]
        while True:
            self.dashboard.press(key)
            name = eventually(lambda: self.dashboard.focused_name() not in (None, names[-1])
                              and self.dashboard.focused_name(), f"{key} leads on from {names}")
            if name == start:
                return names
            self.assertNotIn(name, names)
            names.append(name)


class ByKeys(OfACharged):
    def test_tab_leads_through_all_of_it_and_back_again(self):
        self.press("Tab", self.after_opening())
        start = self.dashboard.focus()
        forward = self.walk("Tab", start)
        self.assertEqual(sorted(forward), sorted(self.reachable()))
        # In the order in which it is read out, from wherever the walk began.
        order = self.reachable()
        at = order.index(start)
        self.assertEqual(forward, order[at:] + order[:at])
        backward = self.walk("shift+Tab", start)
        self.assertEqual(backward, [start, *reversed(forward[1:])])

    def after_opening(self):
        order = self.reachable()
        return order[(order.index(self.dashboard.focus()) + 1) % len(order)]

    def reachable(self):
        return [each.name for each in self.dashboard.root().everything()
                if {"focusable", "showing"} <= each.states]

    def test_the_focus_begins_in_the_menu_where_arrows_lead_up_and_down(self):
        self.assertEqual(self.dashboard.focus(), "STATUS")
        for section in SECTIONS[1:]:
            self.press("Down", section)
        for section in reversed(SECTIONS[:-1]):
            self.press("Up", section)

    def test_each_opening_begins_unmarked_at_the_selected_section(self):
        at_first = self.session.picture()
        self.move_to("HEALTH")
        self.dashboard.press("Return")
        self.dashboard.find("Max capacity: .*")
        marked = self.session.picture()
        self.dashboard.press("Escape")
        self.dashboard.has_closed()
        a_moment()
        self.dashboard.open()
        self.session.point((5, 500))
        eventually(lambda: self.dashboard.focused_name() == "HEALTH", "HEALTH has the focus")
        self.assertEqual(self.dashboard.selected(), ["HEALTH"])
        box = self.dashboard.focused().box
        self.assertTrue(self.differs(marked, box))
        self.assertTrue(self.differs(at_first, box))

    def test_enter_and_space_select_a_section(self):
        for key, section in (("Return", "HEALTH"), ("space", "POWER ADAPTER"),
                             ("KP_Enter", "STATUS")):
            self.move_to(section)
            self.dashboard.press(key)
            eventually(lambda: self.dashboard.selected() == [section], f"{section} is selected")
            self.assertEqual(self.dashboard.focus(), section)

    def move_to(self, section):
        step = SECTIONS.index(section) - SECTIONS.index(self.dashboard.focus())
        for _ in range(abs(step)):
            at = SECTIONS.index(self.dashboard.focus()) + (1 if step > 0 else -1)
            self.press("Down" if step > 0 else "Up", SECTIONS[at])

    def test_a_section_chosen_by_keys_has_its_cards_within_reach(self):
        self.move_to("HEALTH")
        self.dashboard.press("Return")
        self.dashboard.find("Max capacity: .*")
        names = self.walk("Tab", "HEALTH")
        for title in ("Max capacity", "Charge cycles", "Health", "Lifespan"):
            self.assertIn(f"More about {title}", names)

    def test_keys_open_and_close_an_explanation(self):
        self.tab_to("More about Time available")
        for opening, closing in (("Return", "Return"), ("space", "space"), ("space", "Escape")):
            with self.subTest(opening=opening, closing=closing):
                self.dashboard.press(opening)
                eventually(self.dashboard.explanation, "the explanation is open")
                self.dashboard.press(closing)
                eventually(lambda: not self.dashboard.popover(), "the explanation has closed")
                self.assertTrue(self.dashboard.root())
                self.assertEqual(self.dashboard.focus(), "More about Time available")
        self.dashboard.press("Escape")
        self.dashboard.has_closed()

    def tab_to(self, name):
        order = self.reachable()
        while self.dashboard.focus() != name:
            at = order.index(self.dashboard.focus())
            self.press("Tab", order[(at + 1) % len(order)])

    def test_the_settings_open_by_keys(self):
        self.move_to("SETTINGS")
        self.dashboard.press("Return")
        eventually(self.dashboard.settings_window, "the settings are open")
        eventually(lambda: not self.dashboard.root(), "the dashboard has closed")

    def test_the_focus_can_be_seen_wherever_it_is(self):
        # It is not marked before the first key.
        self.press("Tab", "HEALTH")
        for name in self.reachable():
            with self.subTest(name):
                self.tab_to(name)
                box = self.dashboard.focused().box
                with_focus = self.session.picture()
                self.dashboard.press("Tab")
                eventually(lambda: self.dashboard.focused_name() != name, "the focus has moved on")
                eventually(lambda: self.differs(with_focus, box), "its mark has gone")

    def differs(self, before, box):
        return before.pixels(box) != self.session.picture().pixels(box)

    def test_the_focus_is_marked_for_keys_and_not_for_pointers(self):
        self.tab_to("HEALTH")
        box = self.dashboard.focused().box
        marked = self.session.picture()
        self.session.click(self.dashboard.find("Charge now: .*").box.centre)
        self.session.point((5, 500))
        eventually(lambda: self.differs(marked, box), "the mark has gone")
        at_rest = self.session.picture()
        self.tab_to("POWER ADAPTER")
        eventually(lambda: self.differs(at_rest, self.dashboard.focused().box), "the mark is back")


class ToAScreenReader(OfACharged):
    def test_every_card_has_a_name_with_its_value_in_words(self):
        for section, values in IN_WORDS.items():
            self.dashboard.select(section)
            self.dashboard.shows_all(values)

    def test_everything_that_can_be_pressed_has_its_role_and_state(self):
        root = self.dashboard.root()
        for tab in SECTIONS:
            states = root.find(tab, TAB).states
            self.assertLessEqual({"focusable", "selectable", "enabled", "showing"}, states)
            self.assertEqual("selected" in states, tab == "STATUS")
        button = root.find("More about Time available", BUTTON)
        self.assertLessEqual({"focusable", "enabled", "showing"}, button.states)
        self.assertNotIn("checked", button.states)
        self.dashboard.explain("Time available")
        self.assertIn("checked", self.dashboard.root().find(button.name).states)

    def test_nothing_that_is_not_seen_is_told(self):
        hidden = [each.name for each in self.dashboard.root().everything()
                  if "showing" not in each.states]
        self.assertEqual(hidden, [])

    def test_everything_told_has_a_name_and_lies_within_the_window(self):
        for section in SECTIONS[:3]:
            self.dashboard.select(section)
            self.dashboard.find(".*: .*", CARD)
            root = self.dashboard.root()
            for each in root.everything():
                self.assertTrue(each.name, f"a {each.role} without a name")
                self.assertTrue(root.box.left <= each.box.left and root.box.top <= each.box.top
                                and each.box.right <= root.box.right
                                and each.box.bottom <= root.box.bottom, each)

    def test_it_can_press_what_can_be_pressed(self):
        self.press_by_voice("HEALTH", TAB)
        eventually(lambda: self.dashboard.selected() == ["HEALTH"], "HEALTH is selected")
        self.dashboard.find("More about Max capacity")
        self.press_by_voice("More about Max capacity", BUTTON)
        explanation = eventually(self.dashboard.explanation, "the explanation is open")
        self.assertIn("92% maximum capacity", explanation[0])
        self.press_by_voice("More about Max capacity", BUTTON)
        eventually(lambda: not self.dashboard.popover(), "the explanation has closed")
        self.press_by_voice("SETTINGS", TAB)
        eventually(self.dashboard.settings_window, "the settings are open")

    def press_by_voice(self, name, role):
        self.assertTrue(self.dashboard.reader.press(self.dashboard.root().find(name, role)))

    def test_an_explanation_is_told_by_the_name_of_its_card(self):
        self.dashboard.explain("Time available")
        self.assertIn("Time available", self.dashboard.popover().name)

    def test_a_value_that_changes_is_told(self):
        self.laptop.send("unplug")
        self.dashboard.shows(Charge_now="100%", Time_to_empty=r"\d+ hours? \d+ minutes?",
                             Battery_is="Discharging", Power_source="Battery")


if __name__ == "__main__":
    main()
