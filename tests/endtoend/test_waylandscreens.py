# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A Wayland desktop on two screens, one of which comes and goes: where the dashboard and the bar of the
program's own stand."""

from harness import wayland
from harness.case import AT_START, OnADesktop, main
from harness.picture import Box
from harness.processes import a_moment, eventually
from harness.program import store_settings

FIRST_BAR, SECOND_BAR = Box(0, 0, 800, 30), Box(800, 0, 1600, 30)
FIRST, SECOND = Box(0, 30, 800, 600), Box(800, 30, 1600, 600)


class OnTwoScreens(OnADesktop):
    def setUp(self):
        super().setUp()
        self.session.point((100, 400))
        self.bare = self.session.settled_picture()

    def seen(self, within):
        """The box of what has come there since."""
        return self.bare.difference(self.session.picture(), within=within)


class Dashboard(OnTwoScreens):
    """A bar with the item on each screen."""

    def make_session(self):
        return wayland.TwoWaybarScreens()

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.program.item()
        self.program.says(AT_START)
        self.items = [eventually(lambda bar=bar: self.drawn(bar), "the item is in the bar")
                      for bar in (FIRST_BAR, SECOND_BAR)]

    def drawn(self, bar):
        box = self.seen(bar)
        return box if box and box.width > 60 else None

    def open(self, item, screen):
        self.session.click(item.centre)
        # A tool tip is smaller.
        eventually(lambda: (self.seen(screen) or screen).height in range(200, 300),
                   "the dashboard has opened")
        a_moment()
        box = self.seen(screen)
        self.assertTrue(300 < box.width < 450 and 200 < box.height < 300, box)
        return box

    def open_on_first(self):
        return self.open(self.items[0], FIRST)

    def open_on_second(self):
        return self.open(self.items[1], SECOND)

    def test_it_opens_on_the_screen_that_was_clicked(self):
        self.open_on_second()
        self.assertFalse(self.seen(FIRST))
        self.session.click((100, 400))
        eventually(lambda: not self.seen(SECOND), "a click elsewhere closes it")
        self.open_on_first()
        self.assertFalse(self.seen(SECOND))

    def test_nothing_is_lost_with_the_screen_of_the_popover(self):
        self.open_on_second()
        # The compositor does not survive a screen that goes with the tool tip of a bar on it.
        self.session.point((100, 400))
        a_moment()
        self.session.remove_second()
        a_moment()
        self.assertTrue(self.program.is_running())
        # It has closed with its screen: this click opens it.
        self.open_on_first()

    def test_it_outlives_a_screen_beside_its_own(self):
        box = self.open_on_first()
        self.session.remove_second()
        a_moment()
        self.assertEqual(self.seen(FIRST), box)
        self.session.add_second()
        a_moment()
        self.assertEqual(self.seen(FIRST), box)

    def test_it_stays_wholly_on_a_screen_of_another_scale(self):
        box = self.open_on_first()
        self.session.scale_first("1.5")
        a_moment()
        self.session.point((300, 590))
        scaled = self.session.picture()
        self.session.press("Escape")
        a_moment()
        below_bar = Box(0, 45, 800, 600)
        shown = scaled.difference(self.session.picture(), within=below_bar)
        self.assertGreater(shown.width, 1.4 * box.width)
        self.assertGreater(shown.height, 1.4 * box.height)


class OwnBar(OnTwoScreens):
    """Kept by the user on the second screen."""

    def make_session(self):
        return wayland.TwoSwayScreens()

    def setUp(self):
        super().setUp()
        store_settings(self.session, ownBarPlace=f"top 1.0 {self.session.name_of_second()}")
        self.program = self.start()
        self.is_on(SECOND_BAR)

    def is_on(self, bar):
        box = eventually(lambda: self.seen(bar), "the bar is on this screen")
        a_moment()
        box = self.seen(bar)
        self.assertEqual((box.top, box.right), (0, bar.right))
        return box

    def test_it_stands_on_the_screen_where_it_was_kept(self):
        box = self.is_on(SECOND_BAR)
        self.assertFalse(self.seen(FIRST_BAR))
        self.session.click(box.centre)
        eventually(lambda: self.seen(SECOND), "the dashboard opens there")

    def test_it_moves_to_the_screen_that_is_left(self):
        self.session.remove_second()
        self.session.click(self.is_on(FIRST_BAR).centre)
        eventually(lambda: self.seen(FIRST), "the dashboard opens there")

    def test_the_dashboard_may_be_open_when_its_screen_goes(self):
        self.session.click(self.is_on(SECOND_BAR).centre)
        eventually(lambda: self.seen(SECOND), "the dashboard opens there")
        self.session.remove_second()
        self.session.click(self.is_on(FIRST_BAR).centre)
        eventually(lambda: self.seen(FIRST), "the dashboard opens there")


if __name__ == "__main__":
    main()
