# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The window of updates, from the button in the settings on, as a screen reader tells of it. What
PackageKit says is the test's; the real one has tests of its own."""

from harness.case import WithSettings, main
from harness.picture import Box
from harness.portal import Desktop
from harness.processes import eventually
from harness.readwindow import BUTTON
from harness.updatewindow import CHECK, WithUpdates


class TheUpdateWindow(WithUpdates, WithSettings):
    def test_it_checks_and_says_that_nothing_is_newer(self):
        self.packagekit.tell("hold", "RefreshCache")
        self.check()
        self.updates.shows("Checking for updates…", "Asking the package sources.",
                           buttons=["Cancel"])
        self.assertEqual(self.window.find(CHECK, BUTTON).description, "A check is running")
        self.packagekit.tell("work", "RefreshCache")
        self.updates.shows("Ferrin is up to date", buttons=["Close"])
        self.updates.click("Close", BUTTON)
        eventually(lambda: not self.updates.root(), "it has closed")

    def test_it_is_in_the_desktops_accent_while_it_is_open(self):
        desktop = Desktop(self.session, "light")
        self.addCleanup(desktop.close)
        self.check()
        self.updates.shows("Ferrin is up to date", buttons=["Close"])
        box = self.updates.find("Close", BUTTON).box
        desktop.has_accent(0.1, 0.5, 0.2)

        def is_green():
            red, green, blue = self.session.picture().pixel(box.left + 5, box.centre[1])
            return green > red and green > blue
        eventually(is_green, "the button is green")

    def test_it_opens_over_the_settings(self):
        self.packagekit.tell("hold", "RefreshCache")
        self.check()
        box = eventually(self.updates.root, "it is open").box
        for here, there in zip(box.centre, self.window.box().centre):
            self.assertLess(abs(here - there), 40)
        self.updates.click("Cancel", BUTTON)
        eventually(lambda: not self.updates.root(), "it has closed")

    def test_it_offers_downloads_fails_and_tries_again(self):
        self.packagekit.tell("offer", "9.8.7")
        self.packagekit.tell("hold", "DownloadPackages")
        self.check()
        self.updates.shows("Ferrin 9.8.7 is available", "What is new",
                           buttons=["Skip this version", "Later", "Download"])
        self.assertEqual(self.updates.find("What is new").description,
                         "The battery is read more often.\nA new glyph.")
        self.updates.click("Download", BUTTON)
        self.updates.shows("Downloading Ferrin 9.8.7", buttons=["Cancel"])
        self.packagekit.tell("progress", 2000000, 500000)
        eventually(lambda: self.updates.find("Progress").description == "75 %", "it tells how much")
        self.updates.click("Cancel", BUTTON)
        self.fail_and_try_again()

    def test_it_is_worked_by_keys_alone(self):
        self.packagekit.tell("tell_at_length")
        self.packagekit.tell("offer", "9.8.7")
        self.packagekit.tell("hold", "DownloadPackages")
        self.check()
        answers = ["Skip this version", "Later", "Download"]
        self.updates.shows("Ferrin 9.8.7 is available", buttons=answers)
        # A key that was meant for another window answers nothing.
        self.assertNotIn(self.updates.focused_name(), answers)
        self.updates.press("Return", "space")
        for name in ["What is new", *answers]:
            self.updates.press("Tab")
            eventually(lambda name=name: self.updates.focused_name() == name, f"{name} has the focus")
        self.updates.press("Return")
        self.updates.shows("Downloading Ferrin 9.8.7", buttons=["Cancel"])
        self.assertTrue(self.updates.find("Downloading Ferrin 9.8.7", "dialog"))
        self.updates.press("Escape")
        self.updates.shows("Ferrin 9.8.7 is available", buttons=answers)
        self.updates.press("alt+l")
        eventually(lambda: not self.updates.root(), "it has closed")
        self.assertTrue(self.window.root())

    def test_its_notes_are_scrolled_by_keys_and_by_their_bar(self):
        self.packagekit.tell("tell_at_length")
        self.packagekit.tell("offer", "9.8.7")
        self.check()
        box = self.updates.find("What is new").box
        # Without the bar.
        words = Box(box.left + 10, box.top + 10, box.right - 20, box.bottom - 10)

        def shown():
            return self.session.picture().pixels(words)
        at_rest = shown()
        knob = box.right - 7, box.top + 20
        self.session.drag(knob, (knob[0], box.bottom - 15))
        eventually(lambda: shown() != at_rest, "they have moved")
        self.session.drag((knob[0], box.bottom - 15), (knob[0], box.top - 40))
        eventually(lambda: shown() == at_rest, "they are back")
        self.updates.press("Tab", "Next")
        eventually(lambda: shown() != at_rest, "they have moved by a key")

    def test_it_closes_as_windows_do(self):
        self.check()
        self.updates.shows("Ferrin is up to date", buttons=["Close"])
        self.updates.press("ctrl+w")
        eventually(lambda: not self.updates.root(), "it has closed")
        self.assertTrue(self.window.root())

    def fail_and_try_again(self):
        self.packagekit.tell("work", "DownloadPackages")
        self.packagekit.tell("fail", "DownloadPackages", 37, "Could not connect to the server")
        self.updates.click("Download", BUTTON)
        self.updates.shows("The update did not succeed", buttons=["Close", "Try again"])
        self.packagekit.tell("work", "DownloadPackages")
        self.updates.click("Try again", BUTTON)
        self.updates.shows("Ferrin 9.8.7 is ready to install",
                           buttons=["Skip this version", "Later", "Install"])


if __name__ == "__main__":
    main()
