#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The window of updates on a real desktop: asked for in the settings, answered by a real server."""

import os
import re
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path[:0] = [HERE, os.path.join(HERE, "..", "endtoend")]
from harness.case import AT_START, WithSettings, main  # noqa: E402
from harness.processes import a_moment, eventually  # noqa: E402
from harness.program import stored_settings  # noqa: E402
from harness.readwindow import BUTTON, ReadWindow  # noqa: E402
from harness.settings import SWITCH  # noqa: E402
from harness.standins import StandIns  # noqa: E402
from updateserver import Releases, UpdateServer  # noqa: E402

CHECK = "Check for Updates…"
TITLE = "Software Update"
NEWER = "0.2.0"
OFFER = f"Ferrin {NEWER} is available"
READY = f"Ferrin {NEWER} is ready to install"
FAILURE = "The update did not succeed"
# The first look by itself comes after a minute.
TWO_MINUTES = 120


class Update(ReadWindow):
    """The window of updates."""

    def __init__(self, session, dashboard):
        super().__init__(session)
        self._dashboard = dashboard

    def root(self):
        root = self._dashboard.reader.read()
        return next((window for window in root.children
                     if window.name == TITLE and "showing" in window.states), None) if root else None

    def windows(self):
        return self._session.run("xdotool", "search", "--all", "--onlyvisible", "--pid",
                                 str(self._dashboard.program.pid), "--name", TITLE).split()

    def says(self, heading, patience=None):
        """Waits until it does, in front of all others."""
        def is_said():
            root = self.root()
            return root and heading in self.told() and "active" in root.states
        try:
            eventually(is_said, heading, *([patience] if patience else []))
        except AssertionError as error:
            raise AssertionError(f"{error}; it tells {self.told()}; the program logged:\n"
                                 + self._dashboard.program.log()) from error

    def has_closed(self):
        eventually(lambda: not self.root() and not self.windows(), "the update window has closed")


class WithUpdates(WithSettings):
    """The page with the block of updates is open, and a server of releases stands."""

    page = "General"
    installers = ("gdebi-gtk",)

    def prepare(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(prefix="ferrin-releases-"))
        self.releases = Releases(folder)
        self.server = UpdateServer(folder, self.releases.public)
        self.addCleanup(self.server.close)
        self.stand_ins = StandIns(self.session, *self.installers)
        self.environment = self.stand_ins.alone() | {
            "FERRIN_TEST_FEED": self.server.feed, "FERRIN_TEST_FEED_KEY": self.releases.public_key,
            "FERRIN_TEST_AUTHORITY": self.server.authority.certificate}

    def setUp(self):
        super().setUp()
        self.update = Update(self.session, self.dashboard)

    def check(self):
        a_moment()
        self.window.click(CHECK)

    def downloads(self):
        folder = os.path.join(self.session.environment["XDG_CACHE_HOME"], "ferrin", "updates")
        return [name for name in os.listdir(folder) if not name.startswith(".")] \
            if os.path.isdir(folder) else []

    def asked_for(self, path):
        """The parts of a file that the server was asked for."""
        return [part for _, asked, part in self.server.requests if asked == path]


class AnUpdate(WithUpdates):
    def test_is_found_downloaded_verified_and_handed_to_the_installer(self):
        package = self.releases.publish(NEWER, "## New\n\n- **Quieter**, and _prettier_.\n")
        self.server.flows.clear()
        self.check()
        self.update.says(OFFER)
        self.assertEqual(len(self.update.windows()), 1)
        self.assertIn("Quieter", self.update.find("What is new").description)
        self.update.find(r"It was released on .* and is 3\.0 MB large\. You have version 0\.1\.0\.")
        self.assertEqual(self.update.buttons(), ["Skip this version", "Later", "Download"])

        self.update.click("Download")
        self.update.says(f"Downloading Ferrin {NEWER}")
        self.update.find(r"1\.5 MB of 3\.0 MB")
        self.assertEqual(self.update.find("Downloaded", "progress bar").description, "50 %")
        self.assertEqual(self.update.buttons(), ["Cancel"])
        self.assertEqual(self.downloads(), [os.path.basename(package) + ".part"])
        self.server.flows.set()

        self.update.says(READY)
        self.assertEqual(self.stand_ins.started(), [])
        self.update.click("Install")
        self.update.has_closed()
        program, handed = eventually(self.stand_ins.started, "the installer starts")[0].split(" ", 1)
        self.assertEqual(program, "gdebi-gtk")
        with open(handed, "rb") as ours, open(package, "rb") as theirs:
            self.assertEqual(ours.read(), theirs.read())

    def test_is_cancelled_and_continued_where_it_was(self):
        package = "/" + os.path.basename(self.releases.publish(NEWER))
        self.server.flows.clear()
        self.check()
        self.update.click("Download")
        self.update.find(r"1\.5 MB of 3\.0 MB")
        self.update.click("Cancel")
        self.update.says(OFFER)
        self.server.flows.set()
        self.update.click("Download")
        self.update.says(READY)
        first, second = self.asked_for(package)
        self.assertIsNone(first)
        self.assertRegex(second, "bytes=1[0-9]{6}-")

    def test_waits_for_later(self):
        self.releases.publish(NEWER)
        self.check()
        self.update.click("Later")
        self.update.has_closed()
        self.check()
        self.update.says(OFFER)

    def test_that_is_verified_waits_for_later_without_being_fetched_again(self):
        package = "/" + os.path.basename(self.releases.publish(NEWER))
        self.check()
        self.update.click("Download")
        self.update.says(READY)
        self.update.click("Later")
        self.update.has_closed()
        self.check()
        self.update.click("Download")
        self.update.says(READY)
        self.assertEqual(self.asked_for(package), [None])

    def test_is_not_what_a_version_as_new_is(self):
        self.releases.publish("0.1.0")
        self.check()
        self.update.says("Ferrin is up to date")
        self.update.find("Version 0.1.0 is the newest one.")
        self.assertEqual(self.update.buttons(), ["Close"])
        self.update.click("Close")
        self.update.has_closed()

    def test_that_nobody_installs_says_so(self):
        self.releases.publish(NEWER)
        os.remove(os.path.join(self.stand_ins.folder, "gdebi-gtk"))
        self.check()
        self.update.click("Download")
        self.update.click("Install")
        self.update.says(FAILURE)
        self.update.find("The update is downloaded, but no program was found that installs it.")

    def test_of_which_a_byte_was_changed_is_thrown_away(self):
        package = os.path.basename(self.releases.publish(NEWER))
        with open(os.path.join(self.releases.public, package), "r+b") as file:
            file.seek(1_000_000)
            byte = file.read(1)
            file.seek(1_000_000)
            file.write(bytes([byte[0] ^ 1]))
        self.check()
        self.update.click("Download")
        self.update.says(FAILURE)
        self.update.find("The downloaded package is not the one that Ferrin's developers made.*")
        self.assertEqual(self.downloads(), [])
        self.assertEqual(self.stand_ins.started(), [])


class AFailure(WithUpdates):
    def test_is_told_in_plain_words_and_tried_again(self):
        self.releases.publish(NEWER)
        self.server.stop()
        self.check()
        self.update.says(FAILURE)
        self.update.find("The update server could not be reached. Check the internet connection.")
        self.assertEqual(self.update.buttons(), ["Close", "Try again"])
        self.server.start()
        self.update.click("Try again")
        self.update.says(OFFER)

    def test_of_the_signature_leads_nowhere(self):
        self.releases.publish(NEWER)
        feed = os.path.join(self.releases.public, "feed")
        with open(feed, encoding="utf-8") as file:
            text = file.read()
        with open(feed, "w", encoding="utf-8") as file:
            file.write(text.replace("Quieter", "Louder."))
        self.check()
        self.update.says(FAILURE)
        self.update.find("What the update server said does not come from Ferrin's developers.*")
        self.update.click("Close")
        self.update.has_closed()


class ItsWindow(WithUpdates):
    def test_asked_for_again_it_is_the_same_one_in_front(self):
        self.releases.publish(NEWER)
        self.check()
        self.update.says(OFFER)
        windows = self.update.windows()
        self.window.open()
        eventually(lambda: "active" not in self.update.root().states, "the settings are in front")
        self.check()
        self.update.says(OFFER)
        self.assertEqual(self.update.windows(), windows)

    def test_closed_by_the_window_manager_it_ends_what_it_is_at(self):
        self.releases.publish(NEWER)
        self.server.answers.clear()
        self.check()
        self.update.says("Checking for updates…")
        # Told in words, since a disabled button looks the same to a screen reader.
        eventually(lambda: self.window.find(CHECK).description == "A check is running",
                   "the button says why it rests")
        box = self.session.box_of(self.update.windows()[0])
        self.session.click((box.right - 12, box.top - 10))
        self.update.has_closed()
        eventually(lambda: self.window.find(CHECK).description == "", "another check can begin")
        self.assertTrue(self.window.root())

    def test_stays_away_while_it_has_nothing_to_say(self):
        a_moment()
        self.assertEqual(self.update.windows(), [])
        self.assertEqual(self.server.requests, [])


class ByKeys(WithUpdates):
    def press_until(self, key, name):
        """Presses a key until this has the focus."""
        def is_there():
            if self.window.focused_name() == name:
                return True
            self.window.press(key)
            a_moment()
            return False
        eventually(is_there, f"{key} leads to {name}")

    def has_focus(self, name):
        eventually(lambda: self.update.focused_name() == name, f"{name} has the focus")

    def test_all_of_it_is_done(self):
        self.releases.publish(NEWER)
        self.press_until("Tab", CHECK)
        self.window.press("space")
        self.update.says(OFFER)
        self.has_focus("Download")
        self.update.press("shift+Tab")
        self.has_focus("Later")
        self.update.press("shift+Tab")
        self.has_focus("Skip this version")
        self.update.press("Tab", "Tab")
        self.has_focus("Download")
        self.update.press("Return")
        self.update.says(READY)
        self.has_focus("Install")
        self.update.press("Escape")
        self.update.has_closed()
        eventually(lambda: self.window.focused_name() == CHECK, "the focus is where it was")


class ToAScreenReader(WithUpdates):
    def is_told_whole(self):
        for each in self.update.root().everything():
            if "showing" in each.states and each.role not in ("filler", "panel"):
                self.assertTrue(each.name, each)

    def press(self, name):
        self.assertTrue(self.dashboard.reader.press(self.update.find(name, BUTTON)))

    def test_everything_is_told_and_can_be_pressed(self):
        self.releases.publish(NEWER)
        self.assertTrue(self.dashboard.reader.press(self.window.find(CHECK, BUTTON)))
        self.update.says(OFFER)
        self.is_told_whole()
        self.server.flows.clear()
        self.press("Download")
        self.update.says(f"Downloading Ferrin {NEWER}")
        self.is_told_whole()
        self.server.flows.set()
        self.update.says(READY)
        self.is_told_whole()
        self.press("Skip this version")
        self.update.has_closed()

    def test_the_block_tells_its_switches(self):
        self.assertTrue(self.window.is_on("Automatically check for updates", SWITCH))
        self.assertFalse(self.window.is_on("Automatically download updates", SWITCH))


class WhatIsLoaded(WithUpdates):
    """The windows' toolkit brings Qt's network along, but nothing that it could speak to a server
    with."""

    network = r"libQt6Network\b.*"
    encryption = r"lib(qopensslbackend|qcertonlybackend|ssl|sodium|gnutls|curl)\b.*"

    def loaded(self, process, pattern):
        with open(f"/proc/{process}/maps", encoding="utf-8") as maps:
            names = {os.path.basename(line.strip()) for line in maps}
        self.assertTrue([name for name in names if name.startswith("libQt6Core.so")])
        return sorted(name for name in names if re.fullmatch(pattern, name))

    def test_there_is_no_network_before_a_window_opens(self):
        self.assertEqual(self.dashboard.program.terminate(), 0)
        program = self.start(**self.environment)
        program.says(AT_START)
        for pattern in (self.network, self.encryption):
            self.assertEqual(self.loaded(program.pid, pattern), [])

    def test_no_check_and_no_download_brings_encryption_in(self):
        self.releases.publish(NEWER)
        self.check()
        self.update.click("Download")
        self.update.says(READY)
        self.assertEqual(self.loaded(self.dashboard.program.pid, self.encryption), [])
        self.assertTrue(self.loaded(self.dashboard.program.pid, self.network))


class ByItself(WithUpdates):
    settings = {"lastUpdateCheck": "2026-01-01T12:00:00Z"}

    def test_it_speaks_up_with_an_offer_and_is_told_to_skip_it(self):
        self.releases.publish(NEWER)
        self.window.close()
        self.update.says(OFFER, TWO_MINUTES)
        self.update.click("Skip this version")
        self.update.has_closed()
        self.assertEqual(stored_settings(self.session)["skippedUpdateVersion"], NEWER)


if __name__ == "__main__":
    main()
