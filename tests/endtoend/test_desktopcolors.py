# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The windows in the desktop's accent and contrast, as these change while the windows are open."""

from harness.case import WithADashboard, WithSettings, main
from harness.portal import Desktop
from harness.processes import eventually
from harness.readwindow import TAB
from harness.settings import CHOICE, SWITCH

ORANGE = 1, 0.4, 0
GREEN = 0.1, 0.5, 0.2


def is_orange(pixel):
    red, green, blue = pixel
    return red > green > blue and red - blue > 20


def is_green(pixel):
    red, green, blue = pixel
    return green > red and green > blue


def is_strong(pixel):
    """A line that is seen on white."""
    return max(pixel) < 0x60


class OnADesktop:
    def prepare(self):
        self.desktop = Desktop(self.session, "light")
        self.addCleanup(self.desktop.close)

    def pixel(self, where):
        return self.session.picture().pixel(*where)

    def becomes(self, where, condition, what):
        eventually(lambda: condition(self.pixel(where)), what)


class TheDashboardInTheDesktopsColors(OnADesktop, WithADashboard):
    def test_its_selection_is_tinted_by_the_accent_while_it_is_open(self):
        self.dashboard.open()
        box = self.dashboard.find("STATUS", TAB).box
        within = box.right - 4, box.centre[1]
        own = self.pixel(within)
        self.desktop.has_accent(*ORANGE)
        self.becomes(within, is_orange, "the selection is orange")
        self.desktop.has_accent(*GREEN)
        self.becomes(within, is_green, "the selection is green")
        # What many portals say where there is none.
        self.desktop.has_accent(-1, -1, -1)
        self.becomes(within, lambda pixel: pixel == own, "the selection is Ferrin's own again")

    def test_its_cards_are_outlined_in_high_contrast_while_it_is_open(self):
        self.dashboard.open()
        box = self.dashboard.find("Charge now: 37%").box
        edge = box.left, box.centre[1]
        own = self.pixel(edge)
        self.assertFalse(is_strong(own))
        self.desktop.wants_high_contrast(True)
        self.becomes(edge, is_strong, "the card has a strong outline")
        self.assertEqual(self.pixel((box.left + 4, box.centre[1])), (255, 255, 255))
        self.desktop.wants_high_contrast(False)
        self.becomes(edge, lambda pixel: pixel == own, "the card is as it was")


class TheSettingsInTheDesktopsColors(OnADesktop, WithSettings):
    page = "General"

    def test_menu_and_picker_are_tinted_by_the_accent_while_they_are_open(self):
        menu = self.window.find("General", TAB).box
        picker = self.window.find("System", CHOICE).box
        self.desktop.has_accent(*ORANGE)
        for box in menu, picker:
            self.becomes((box.right - 8, box.centre[1]), is_orange, "the selection is orange")

    def test_a_switch_is_tinted_by_the_accent_once_it_is_on(self):
        self.desktop.has_accent(*GREEN)
        box = self.window.find("Launch at login", SWITCH).box
        # Beside the knob.
        track = box.right - 26, box.centre[1]
        self.assertFalse(is_green(self.pixel(track)))
        self.window.click("Launch at login", SWITCH)
        self.becomes(track, is_green, "the switch is green")

    def test_controls_are_outlined_in_high_contrast_while_they_are_open(self):
        box = self.window.find("Dark", CHOICE).box
        # The picker's own edge lies two pixels outside of its last choice.
        edge = box.right + 1, box.centre[1]
        self.assertFalse(is_strong(self.pixel(edge)))
        self.desktop.wants_high_contrast(True)
        self.becomes(edge, is_strong, "the picker has an outline")


if __name__ == "__main__":
    main()
