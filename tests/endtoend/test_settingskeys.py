# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The settings window without a pointer: real keys, pressed and held."""

from harness.case import WithSettings, main
from harness.picture import Box
from harness.processes import a_moment, eventually
from harness.program import icon_entry, stored_settings
from harness.settings import CHOICE, PAGES
from harness.standins import StandIns

QUESTION = "Do you want quit Ferrin?"
CONTROLS = {
    "General": ["Launch at login", "System", "Open System Settings battery section"],
    "Menu bar icon": ["Show icon", "Show charge %", "Show time to empty", "Choose icon",
                      "Show icon", "Show charge %", "Show time to full", "Choose icon",
                      "Show icon", "Show charge %", "Choose icon"],
    "Support": ["Ferrin FAQ"],
    "About": ["Acknowledgements"]}


class WithKeys(WithSettings):
    def focus(self):
        """What has the focus, as something that can be compared."""
        focused = self.window.focused()
        return focused and (focused.name, focused.path)

    def move_on(self, key="Tab"):
        """Presses a key that moves the focus, and gives the name of what has it then."""
        before = eventually(self.focus, "something has the focus")
        self.window.press(key)
        return eventually(lambda: self.focus() not in (None, before) and self.focus(),
                          f"{key} leads on from {before}")[0]

    def move_to(self, name, key="Tab"):
        while self.window.focus() != name:
            self.move_on(key)

    def turn_to(self, page):
        """Turns the page by the arrow keys of the menu."""
        eventually(lambda: self.window.focused_name() in PAGES, "the menu has the focus")
        while self.window.focus() != page:
            below = PAGES.index(self.window.focus()) < PAGES.index(page)
            self.move_on("Down" if below else "Up")
        self.window.press("Return")
        eventually(lambda: self.window.selected() == [page], f"{page} is selected")

    def asks(self):
        return QUESTION in self.window.texts()


class ByTabs(WithKeys):
    """Every page is worked without a pointer."""

    def walk(self, at_each=lambda: None):
        """The names on the way that the tab key leads, until it comes around."""
        start = self.focus()
        names = [start[0]]
        while True:
            at_each()
            name = self.move_on()
            if self.focus() == start:
                return names
            self.assertLess(len(names), 30, names)
            names.append(name)

    def test_tab_leads_through_each_page(self):
        menu = [*PAGES, "Quit Ferrin"]
        for page, controls in CONTROLS.items():
            with self.subTest(page):
                self.turn_to(page)
                at = menu.index(page)
                self.assertEqual(self.walk(), menu[at:] + controls + menu[:at])

    def test_the_focus_can_be_seen_wherever_it_is(self):
        for page in CONTROLS:
            self.turn_to(page)
            marks = []

            def note_mark():
                box = eventually(self.window.focused, "something has the focus").box
                ring = Box(box.left - 6, box.top - 6, box.right + 6, box.bottom + 6)
                marks.append((self.window.focus(), ring, self.session.picture()))
            self.walk(note_mark)
            for (name, ring, marked), (_, _, gone) in zip(marks, marks[1:]):
                self.assertNotEqual(marked.pixels(ring), gone.pixels(ring), f"{name} on {page}")

    def test_the_sheet_opens_scrolls_and_closes_by_keys(self):
        self.turn_to("About")
        self.move_to("Acknowledgements")
        before = self.window.texts()
        self.window.press("Return")
        eventually(lambda: self.window.focused_name() == "Done", "the sheet has the focus")
        at_first = self.session.picture()
        self.window.press("Next")
        eventually(lambda: at_first.difference(self.session.picture()), "the texts have moved")
        self.window.press("Escape")
        eventually(lambda: self.window.focused_name() == "Acknowledgements", "the focus is back")
        self.assertEqual(self.window.texts(), before)


class ByArrows(WithKeys):
    def test_arrows_pick_a_theme(self):
        self.turn_to("General")
        self.move_to("System")
        for key, theme in (("Right", "Light"), ("Right", "Dark"), ("Right", "Dark"),
                           ("Left", "Light"), ("Down", "Dark"), ("Up", "Light")):
            self.window.press(key)
            self.window.becomes(theme, True, CHOICE)
            eventually(lambda: self.window.focused_name() == theme, f"{theme} has the focus")

    def test_arrows_lead_through_the_icons_and_return_takes_one(self):
        self.move_to("Choose icon")
        self.window.press("space")
        icons = eventually(self.icons, "the icons are shown")
        eventually(lambda: self.focus() == (icons[0].name, icons[0].path), "the chosen one has it")
        # Two rows of four.
        for key, number in (("Right", 1), ("Down", 5), ("Left", 4), ("Up", 0)):
            self.assertEqual((self.move_on(key), self.focus()[1]),
                             (icons[number].name, icons[number].path))
        self.move_on("Right")
        self.window.press("Return")
        eventually(lambda: stored_settings(self.session).get("dischargingIconSelected")
                   == icon_entry("battery1H"), "it is the item's")
        self.window.press("Escape")
        eventually(lambda: self.window.focused_name() == "Choose icon", "the focus is back")
        self.assertTrue(self.window.root())

    def icons(self):
        shown = self.window.root().find("Icons when discharging", "dialog")
        found = [each for each in shown.everything() if each.role == CHOICE] if shown else []
        return found if len(found) == 20 else None


class ByShortcuts(WithKeys):
    def test_ctrl_w_and_escape_close_it_and_the_program_goes_on(self):
        for key in ("ctrl+w", "Escape"):
            with self.subTest(key):
                self.window.press(key)
                self.window.has_closed()
                self.assertTrue(self.dashboard.program.is_running())
                self.window.open()

    def test_escape_closes_the_icons_first(self):
        self.move_to("Choose icon")
        self.window.press("Return")
        self.window.find("Icons when discharging", "dialog")
        self.window.press("Escape")
        eventually(lambda: "Icons when discharging" not in self.window.texts(), "the icons are gone")
        self.assertTrue(self.window.root())
        self.window.press("Escape")
        self.window.has_closed()

    def test_ctrl_q_asks_return_stays_and_the_mnemonic_of_yes_quits(self):
        self.window.press("ctrl+q")
        eventually(lambda: self.window.focused_name() == "No", "the answer that stays has the focus")
        self.assertTrue(self.asks())
        self.window.press("Return")
        eventually(lambda: not self.asks(), "the question is gone")
        self.assertTrue(self.dashboard.program.is_running())
        self.window.press("ctrl+q")
        eventually(self.asks, "the question is put again")
        self.window.press("alt+y")
        self.assertEqual(self.dashboard.program.exit_code(), 0)

    def test_a_mnemonic_presses_its_button(self):
        self.turn_to("About")
        self.window.press("alt+a")
        eventually(lambda: self.window.focused_name() == "Done", "the sheet is open")
        self.window.press("alt+d")
        eventually(lambda: "Done" not in self.window.texts(), "the sheet has closed")


class WithABrowser:
    """Mixed into a test with settings: what opens links only writes down that it was asked to."""

    def prepare(self):
        super().prepare()
        self.stand_ins = StandIns(self.session, "xdg-open")
        self.environment = self.stand_ins.alone()

    def has_opened_the_questions(self, times):
        eventually(lambda: len(self.stand_ins.started()) == times, f"{times} links were opened")
        for started in self.stand_ins.started():
            self.assertRegex(started, r"^xdg-open file:.*/faq/index\.html$")


class ByF1(WithABrowser, WithKeys):
    def test_the_frequently_asked_questions_open_from_every_window(self):
        for times, page in enumerate(PAGES, 1):
            self.turn_to(page)
            self.window.press("F1")
            self.has_opened_the_questions(times)
        self.window.close()
        self.dashboard.open()
        self.window.press("F1")
        self.has_opened_the_questions(len(PAGES) + 1)


class Held(WithABrowser, WithKeys):
    """A key that is held until the keyboard has repeated it many times."""

    def setUp(self):
        super().setUp()
        self.session.repeat_keys_soon()

    def hold(self, key):
        self.session.hold(key)
        a_moment()

    def test_what_moves_goes_on(self):
        self.turn_to("General")
        self.session.hold("Down")
        eventually(lambda: self.window.focused_name() == "Quit Ferrin", "it led to the end")

    def test_a_switch_flips_once(self):
        self.move_to("Show charge %")
        for key, is_on in (("Return", False), ("space", True)):
            with self.subTest(key):
                self.hold(key)
                self.assertEqual(self.window.is_on("Show charge %"), is_on)

    def test_what_opens_opens_once_and_stays(self):
        self.hold("F1")
        self.has_opened_the_questions(1)
        self.move_to("Choose icon")
        self.hold("Return")
        self.assertIn("Icons when discharging", self.window.texts())

    def test_the_question_is_put_without_an_answer_and_closed_without_the_window(self):
        self.turn_to("About")
        self.move_to("Quit Ferrin")
        self.hold("Return")
        self.assertTrue(self.asks())
        self.hold("Escape")
        self.assertFalse(self.asks())
        self.assertTrue(self.window.root())


if __name__ == "__main__":
    main()
