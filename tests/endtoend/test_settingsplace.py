# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Where the windows open: on the screen of the item, the settings there where they were left, and
the window of updates over the settings."""

from harness import desktop
from harness.case import WithSettings, main
from harness.dashboard import Dashboard
from harness.picture import Box
from harness.processes import a_moment, eventually
from harness.program import store_settings
from harness.updatewindow import WithUpdates

FIRST, SECOND = Box(0, 0, 800, 600), Box(800, 0, 1600, 600)


class TwoScreens(desktop.XfceScreen):
    """Two monitors of one X screen, and no panel: the item stands in the program's own bar."""

    size = (1600, 600)

    def __init__(self):
        super().__init__(panel=False)

    def boot(self):
        super().boot()
        self.run("xrandr", "--setmonitor", "first", "800/212x600/159+0+0", "screen")
        self.run("xrandr", "--setmonitor", "second", "800/212x600/159+800+0", "none")


class WithOwnBar(Dashboard):
    def await_item(self):
        pass

    def drawn(self, before):
        windows = self.windows()
        return self._session.box_of(windows[0]) if windows else None


class WithTwoScreens(WithSettings):
    """The item is on the second of them."""

    def make_session(self):
        return TwoScreens()

    def prepare(self):
        store_settings(self.session, ownBarPlace="top 1.0 second")

    def make_dashboard(self, environment):
        return WithOwnBar(self.session, self.laptop, self.says, environment)

    def setUp(self):
        super().setUp()
        self.assertGreaterEqual(self.dashboard.item_box.left, SECOND.left)

    def move_to(self, left, top):
        """As a drag by the title bar does. The place is the window's own, without its frame."""
        self.session.run("xdotool", "windowmove", self.window.window(), str(left), str(top))
        eventually(lambda: abs(self.window.box().left - left) < 40, "the window has been moved")
        a_moment()
        return self.window.box()


class TheSettings(WithTwoScreens):
    def is_in_the_middle_of(self, screen):
        across, down = self.window.box().centre
        self.assertLess(abs(across - screen.centre[0]), 3)
        self.assertLess(abs(down - screen.centre[1]), 40)

    def test_it_opens_in_the_middle_of_the_screen_of_the_item(self):
        self.is_in_the_middle_of(SECOND)

    def test_it_opens_where_it_was_left_time_and_again(self):
        left = self.move_to(830, 60)
        for _ in range(3):
            self.window.close()
            self.window.open()
            self.assertEqual(self.window.box(), left)

    def test_the_next_start_opens_it_where_it_was_left(self):
        left = self.move_to(830, 60)
        self.begin_anew()
        self.assertEqual(self.window.box(), left)

    def test_it_comes_to_the_screen_of_the_item_from_another(self):
        self.move_to(30, 60)
        self.window.close()
        self.window.open()
        self.is_in_the_middle_of(SECOND)


class TheUpdates(WithUpdates, WithTwoScreens):
    def open(self):
        self.packagekit.tell("hold", "RefreshCache")
        self.check()
        return eventually(self.updates.root, "it is open").box

    def is_within(self, box, screen):
        self.assertTrue(screen.left <= box.left and box.right <= screen.right
                        and screen.top <= box.top and box.bottom <= screen.bottom, box)

    def test_they_open_on_the_screen_of_the_item(self):
        self.is_within(self.open(), SECOND)

    def test_they_open_on_the_screen_that_the_settings_were_moved_to(self):
        self.move_to(30, 60)
        self.is_within(self.open(), FIRST)


if __name__ == "__main__":
    main()
