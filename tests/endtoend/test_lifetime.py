# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The program's life: one instance, through panels that come and go, to a clean end."""

import os
import signal
import time

from harness import desktop, processes
from harness.case import AT_START, OnADesktop, main
from harness.item import SignalCount
from harness.processes import a_moment, eventually
from harness.program import binary

WATCHER = os.path.join(os.path.dirname(processes.__file__), "watcher.py")


class OneInstance(OnADesktop):
    def test_a_second_start_ends_quietly(self):
        first = self.start()
        first.says(AT_START)
        second = self.start()
        self.assertEqual(second.exit_code(), 0)
        self.assertTrue(first.is_running())
        self.assertTrue(first.owns_its_name())
        first.says(AT_START)

    def test_a_second_start_at_login_shows_nothing(self):
        first = self.start()
        first.says(AT_START)
        second = self.start([binary(), "--background"])
        self.assertEqual(second.exit_code(), 0)
        a_moment()
        self.assertEqual(self.session.windows_of(first.pid), [])
        self.assertTrue(first.owns_its_name())

    def test_the_next_start_after_the_end_is_the_first_again(self):
        first = self.start()
        first.says(AT_START)
        self.assertEqual(first.terminate(), 0)
        self.start().says(AT_START)


class TheEnd(OnADesktop):
    def test_termination_is_a_clean_end(self):
        program = self.start()
        program.says(AT_START)
        self.assertEqual(program.terminate(), 0)

    def test_termination_with_the_dashboard_open_is_a_clean_end(self):
        program = self.start()
        program.item().activate()
        eventually(lambda: self.session.windows_of(program.pid), "the dashboard has opened")
        self.assertEqual(program.terminate(), 0)

    def test_it_ends_with_the_session_bus(self):
        program = self.start()
        program.item()
        processes.end(self.session.bus_process, signal.SIGKILL)
        self.assertGreaterEqual(program.exit_code(), 0)

    def test_it_ends_with_the_screen(self):
        program = self.start()
        program.item()
        processes.end(self.session.server, signal.SIGKILL)
        self.assertGreaterEqual(program.exit_code(), 0)


class PanelsComeAndGo(OnADesktop):
    def test_a_panel_that_starts_late_gets_the_item(self):
        self.session.kill_panel()
        program = self.start()
        eventually(program.owns_its_name, "the program is there")
        self.session.start_panel()
        program.item()
        program.says(AT_START)

    def test_a_hundred_panels_all_get_the_item(self):
        program = self.start()
        program.item()
        for _ in range(100):
            self.session.kill_panel()
            self.session.start_panel()
            program.item()
        # The time has run on by some minutes.
        program.says(r"37%, 2:[34]\d to empty")


class WithoutAPanel(OnADesktop):
    """Where there is no status area, a small bar of the program's own takes its place."""

    def make_session(self):
        return desktop.XfceScreen(panel=False)

    def windows_become(self, program, count):
        eventually(lambda: len(self.session.windows_of(program.pid)) == count,
                   f"the program has {count} windows")

    def bar(self, program):
        windows = eventually(lambda: self.session.windows_of(program.pid), "the bar is there")
        self.assertEqual(len(windows), 1)
        return self.session.box_of(windows[0])

    def test_the_bar_stands_at_the_edge_and_shows_the_item(self):
        box = self.bar(self.start())
        self.assertTrue(box.top == 0 or box.bottom == 600, box)
        self.assertLess(box.height, 60)
        eventually(lambda: len(set(self.session.picture().pixels(box))) > 2, "the bar has content")

    def test_the_bar_opens_the_dashboard(self):
        program = self.start()
        place = self.bar(program).centre
        self.session.click(place)
        self.windows_become(program, 2)
        a_moment()
        self.session.click(place)
        self.windows_become(program, 1)

    def test_a_panel_takes_the_place_of_the_bar(self):
        program = self.start()
        self.bar(program)
        self.session.start_panel()
        program.item()
        self.windows_become(program, 0)
        program.says(AT_START)

    def test_a_watcher_without_a_host_is_no_panel(self):
        self.session.start([WATCHER, "without-host"])
        self.bar(self.start())

    def test_a_panel_that_dies_with_questions_open_does_no_harm(self):
        program = self.start()
        for _ in range(20):
            dying = self.session.start([WATCHER, "dies"])
            dying.wait(processes.TIMEOUT_SECONDS)
        self.session.start_panel()
        program.item()
        program.says(AT_START)


class AtRest(OnADesktop):
    def test_nothing_is_said_while_nothing_changes(self):
        program = self.start()
        item = program.item()
        program.says(AT_START)
        signals = SignalCount(self.session.bus, item)
        # Two firings of the program's timer lie between a change and this one.
        time.sleep(11)
        self.assertEqual(signals.collect(), [])
        self.laptop.send("write", "BAT0", "voltage_now", 11800000)
        self.laptop.send("uevent", "BAT0")
        self.laptop.send("write", "BAT0", "capacity", 35, "energy_now", 16100000)
        program.says("35%, 2:38 to empty")
        eventually(lambda: "NewIcon" in signals.collect(), "the new picture is announced")
        self.assertLessEqual(signals.collect().count("NewIcon"), 2)


if __name__ == "__main__":
    main()
