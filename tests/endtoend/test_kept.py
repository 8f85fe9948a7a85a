# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item is kept, once, whatever happens to the status area and the screens, and leaves nothing
behind."""

from harness import desktop, traybars
from harness.case import OnADesktop, main
from harness.holdings import Holdings
from harness.processes import a_moment, eventually


class KeptThroughAHundred:
    """The first few of anything fill caches; a hundred after them add nothing."""

    times = 100

    def go_through(self, one):
        for _ in range(5):
            one()
        self.settle()
        before = Holdings(self.session, self.program)
        for _ in range(self.times):
            one()
        self.settle()
        self.assertEqual(Holdings(self.session, self.program).exceed(before), [])
        self.assertTrue(self.program.is_running())

    def settle(self):
        a_moment()


class Watchers(KeptThroughAHundred, OnADesktop):
    def make_session(self):
        return desktop.XfceScreen(panel=False)

    def test_a_hundred_watchers_all_get_the_item_once(self):
        self.program = self.start()

        def one():
            watcher = self.session.start_watcher()
            self.program.item()
            self.assertEqual(self.session.bus.item_count(), 1)
            self.session.end_process(watcher)
        self.go_through(one)


class Trays(KeptThroughAHundred, OnADesktop):
    def make_session(self):
        return traybars.Tint2Screen()

    def test_a_hundred_bars_all_get_the_item_once(self):
        self.program = self.start()
        eventually(lambda: self.session.docked_window(self.program.pid), "the item is docked")

        def one():
            self.session.restart_bar()
            eventually(lambda: self.session.docked_window(self.program.pid), "it is docked again")
            self.assertEqual(len(self.session.windows_of(self.program.pid)), 1)
        self.go_through(one)


class Screens(KeptThroughAHundred, OnADesktop):
    """A second screen that comes and goes to the right of the first, which has the bar."""

    times = 20

    def make_session(self):
        return desktop.BareScreen()

    def setUp(self):
        super().setUp()
        self.session.run("xrandr", "--setmonitor", "first", "400/106x600/159+0+0", "screen")
        self.add_screen()
        self.program = self.start()
        eventually(lambda: self.boxes(), "the bar is there")

    def add_screen(self):
        self.session.run("xrandr", "--setmonitor", "second", "400/106x600/159+400+0", "none")

    def remove_screen(self):
        self.session.run("xrandr", "--delmonitor", "second")

    def boxes(self):
        """The boxes of the program's windows, the bar first."""
        boxes = [self.session.box_of(window)
                 for window in self.session.windows_of(self.program.pid)]
        return sorted(boxes, key=lambda box: box.height)

    def open(self):
        self.session.click(self.boxes()[0].centre)
        eventually(lambda: len(self.boxes()) == 2, "the dashboard is open")
        a_moment()

    def drag_to_second(self):
        self.session.drag(self.boxes()[0].centre, (780, 10))
        eventually(lambda: self.boxes()[0].right == 800, "the bar is on the second screen")

    def test_the_popover_outlives_a_screen_beside_its_own(self):
        self.open()
        before = self.boxes()
        self.remove_screen()
        a_moment()
        self.add_screen()
        a_moment()
        self.assertEqual(self.boxes(), before)

    def test_nothing_is_lost_with_the_screen_of_the_popover(self):
        self.drag_to_second()
        self.open()
        self.remove_screen()
        eventually(lambda: [box.right for box in self.boxes()] == [400],
                   "the popover has gone with its screen, and the bar has moved to the other")
        self.add_screen()
        eventually(lambda: [box.right for box in self.boxes()] == [800],
                   "the bar is back on its screen")
        self.open()

    def test_screens_that_come_and_go_leave_nothing_behind(self):
        self.drag_to_second()

        def one():
            self.remove_screen()
            eventually(lambda: [box.right for box in self.boxes()] == [400], "it has moved")
            self.add_screen()
            eventually(lambda: [box.right for box in self.boxes()] == [800], "it is back")
        self.go_through(one)


if __name__ == "__main__":
    main()
