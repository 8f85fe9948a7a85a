# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The settings window among others: one of its kind, how it closes, and its question before quitting."""

import re

from harness.case import WithSettings, main
from harness.processes import a_moment, eventually
from harness.settings import SWITCH

# What a window manager is told that its buttons may do.
MINIMIZE, MAXIMIZE, CLOSE = 8, 16, 32


class ItsWindow(WithSettings):
    def test_it_begins_with_the_page_of_the_icon(self):
        self.assertEqual(self.window.selected(), ["Menu bar icon"])
        self.assertEqual((self.window.box().width, self.window.box().height), (701, 500))

    def test_opened_twice_it_is_one_window_that_comes_to_the_front(self):
        first = self.window.window()
        self.session.open_another_program()
        self.session.focus_another_program()
        eventually(lambda: not self.window.is_in_front(), "the other program is in front")
        self.window.open()
        self.assertEqual(self.window.window(), first)
        self.assertEqual(len(self.dashboard.windows()), 1)

    def test_it_offers_to_be_closed_and_has_one_size(self):
        output = self.session.run("xprop", "-id", self.window.window(), "_MOTIF_WM_HINTS").decode()
        functions = int(re.findall(r"0x[0-9a-f]+", output)[1], 16)
        self.assertTrue(functions & CLOSE)
        self.assertFalse(functions & (MINIMIZE | MAXIMIZE), output)
        hints = self.session.run("xprop", "-id", self.window.window(), "WM_NORMAL_HINTS").decode()
        sizes = re.findall(r"(?:minimum|maximum) size: (\d+) by (\d+)", hints)
        self.assertEqual(sizes, [("701", "500")] * 2)

    def test_reopened_it_shows_the_page_that_was_selected_last(self):
        for page in ("About", "General"):
            self.window.select(page)
            self.window.close()
            self.assertTrue(self.dashboard.program.is_running())
            self.window.open()
            self.assertEqual(self.window.selected(), [page])
            self.assertEqual(len(self.dashboard.windows()), 1)


class ItsQuestion(WithSettings):
    page = "Support"

    def ask(self):
        self.window.click("Quit Ferrin", "page tab")
        eventually(lambda: "Do you want quit Ferrin?" in self.window.texts(), "the question is put")

    def is_gone(self):
        eventually(lambda: "Do you want quit Ferrin?" not in self.window.texts(),
                   "the question is gone")

    def test_no_stays(self):
        self.ask()
        self.window.click("No")
        self.is_gone()
        self.assertEqual(self.window.selected(), ["Support"])
        self.assertTrue(self.dashboard.program.is_running())

    def test_escape_stays(self):
        self.ask()
        self.window.press("Escape")
        self.is_gone()
        a_moment()
        self.assertTrue(self.window.root())
        self.assertTrue(self.dashboard.program.is_running())

    def test_yes_ends_the_process_well(self):
        self.ask()
        self.window.click("Yes")
        self.assertEqual(self.dashboard.program.exit_code(), 0)


class ToAScreenReader(WithSettings):
    def test_everything_has_a_name_and_a_role_and_lies_within_the_window(self):
        for page in ("Menu bar icon", "General", "Support", "About"):
            self.window.select(page)
            root = self.window.root()
            for each in root.everything():
                with self.subTest(page=page, role=each.role, name=each.name):
                    if each.role not in ("filler", "panel"):
                        self.assertTrue(each.name)
                    self.assertIn("showing", each.states)
                    self.assertTrue(root.box.left <= each.box.left
                                    and root.box.top <= each.box.top
                                    and each.box.right <= root.box.right
                                    and each.box.bottom <= root.box.bottom, each)

    def test_the_general_page_is_told_in_its_order(self):
        self.window.select("General")
        texts = self.window.texts()
        expected = ["App start", "Launch at login", "Color theme", "Pick a theme", "System", "Light",
                    "Dark", "System Settings", "Open System Settings battery section"]
        self.assertEqual([name for name in texts if name in expected], expected)

    def test_the_page_of_the_icon_tells_its_descriptions_captions_and_notes(self):
        texts = self.window.texts()
        lead = "Choose menu bar icon appearance when power adapter is "
        for text in (lead + "disconnected and battery is discharging.",
                     lead + "connected and battery is charging.",
                     lead + "connected and battery is fully charged.",
                     "Preview 37% and 4:29 to empty", "Preview 78% and 0:52 to full",
                     "Preview 100% fully charged"):
            self.assertIn(text, texts)
        self.assertEqual(texts.count("At least one element must be selected"), 3)

    def test_a_switch_that_turns_itself_back_on_says_why(self):
        section = self.window.find("When discharging")
        names = [each.name for each in section.everything() if each.role == SWITCH]
        self.assertEqual(names, ["Show icon", "Show charge %", "Show time to empty"])
        for name in names:
            self.assertTrue(self.dashboard.reader.press(section.find(name, SWITCH)))
        eventually(lambda: self.window.find(names[2], SWITCH).description
                   == "At least one element must be selected", "the switch says why")
        self.assertEqual([self.window.is_on(name) for name in names], [False, False, True])
        eventually(lambda: self.window.find(names[2], SWITCH).description == "", "it is said once")

    def test_the_note_is_told_as_one_text(self):
        self.window.select("Support")
        note = ("The data, explanation text and recommendations shown in BATTERY HEALTH section are "
                "based entirely on information exisiting in Apple Inc. official website.\n\nYou can "
                "find more details in the Frequently Asked Questions section in our web page.")
        self.assertIn(note, self.window.texts())

    def test_it_can_press_what_can_be_pressed(self):
        def press(name, role):
            self.assertTrue(self.dashboard.reader.press(self.window.find(name, role)))
        press("About", "page tab")
        eventually(lambda: self.window.selected() == ["About"], "About is selected")
        press("Acknowledgements", "push button")
        self.window.find("Done", "push button")
        press("Done", "push button")
        eventually(lambda: "Done" not in self.window.texts(), "the sheet has closed")
        press("General", "page tab")
        press("Launch at login", "check box")
        self.window.becomes("Launch at login", True)


if __name__ == "__main__":
    main()
