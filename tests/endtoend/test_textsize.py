# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The windows in the desktop's size of texts, on screens that have no room for twice that size."""

from harness.case import WithADashboard, WithSettings, main
from harness.portal import Desktop
from harness.processes import eventually
from harness.readwindow import BUTTON, TAB


class TheDashboardGrows(WithADashboard):
    def prepare(self):
        self.desktop = Desktop(self.session)
        self.addCleanup(self.desktop.close)

    def pitch(self):
        """From one card to the next. The toolkit tells screen readers places as they are seen, and sizes
        as they are made."""
        return (self.dashboard.find("Time to empty: .*").box.left
                - self.dashboard.find("Charge now: 37%").box.left)

    def test_it_grows_while_it_is_open_and_stays_at_the_item(self):
        self.dashboard.open()
        self.assertEqual(self.pitch(), 110)
        for factor in 1.25, 1.5, 2:
            self.desktop.enlarges_texts(factor)
            eventually(lambda: abs(self.pitch() - 110 * factor) <= 1, f"the cards have grown {factor}")
            window = self.session.box_of(self.dashboard.windows()[0])
            self.assertLessEqual(window.right, 800)
            self.assertLessEqual(window.bottom, 600)
        self.dashboard.click("HEALTH", TAB)
        eventually(lambda: self.dashboard.selected() == ["HEALTH"], "HEALTH is selected")

    def test_an_explanation_is_as_large_as_the_screen_allows(self):
        self.desktop.enlarges_texts(2)
        self.dashboard.open()
        self.dashboard.click("HEALTH", TAB)
        self.dashboard.click("More about Charge cycles")
        popover = eventually(self.dashboard.popover, "the explanation is open")
        box = popover.box
        self.assertGreater(box.width, 400)
        self.assertLessEqual((box.right, box.bottom), (800, 600))


class TheSettingsGrow(WithSettings):
    def prepare(self):
        self.desktop = Desktop(self.session)
        self.addCleanup(self.desktop.close)

    def test_they_grow_while_they_are_open_and_scroll_to_what_has_the_focus(self):
        self.assertEqual(self.window.box().width, 701)
        self.desktop.enlarges_texts(2)
        eventually(lambda: self.window.box().width == 1000, "the window is as wide as the screen")
        self.assertLessEqual(self.window.box().height, 560)
        seen = set()
        for _ in range(20):
            self.window.press("Tab")
            focused = eventually(self.window.focused, "something has the focus")
            window = self.window.box()

            def is_seen(window=window):
                box = self.window.focused().box
                return (window.left <= box.left <= window.right - 2 * box.width
                        and window.top <= box.top <= window.bottom - 2 * box.height)
            eventually(is_seen, f"{focused.name} is in sight")
            seen.add(focused.name)
        self.assertIn("Show time to full", seen)
        self.assertIn("Choose icon", seen)

    def test_they_scroll_as_far_as_the_bar_is_dragged(self):
        self.desktop.enlarges_texts(2)
        eventually(lambda: self.window.box().width == 1000, "the window is as wide as the screen")
        before, window = self.window.find("General", TAB).box, self.window.box()
        knob = window.right - 10, window.top + 60
        self.session.drag(knob, (knob[0], knob[1] + 100))
        eventually(lambda: self.window.find("General", TAB).box.top < before.top - 100,
                   "the pages' names have gone up by more than the pointer has come down")

    def test_the_question_before_quitting_is_in_sight(self):
        self.desktop.enlarges_texts(2)
        eventually(lambda: self.window.box().width == 1000, "the window is as wide as the screen")
        self.window.press("ctrl+q")
        box, window = self.window.find("Yes", BUTTON).box, self.window.box()
        self.assertGreaterEqual(box.left, window.left)
        self.assertLessEqual(box.bottom, window.bottom)


if __name__ == "__main__":
    main()
