# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard and the bar of the program's own in the layers of a Wayland desktop, and a desktop
that has none."""

from harness import wayland
from harness.accessible import ENVIRONMENT, ScreenReader
from harness.case import AT_START, OnADesktop, main
from harness.picture import Box
from harness.processes import a_moment, eventually

WIDTH, HEIGHT = 800, 600
# Where nothing of ours ever stands.
ELSEWHERE = 100, 400
RIGHT = 3


class InLayers(OnADesktop):
    def setUp(self):
        super().setUp()
        self.session.point(ELSEWHERE)
        self.bare = self.session.settled_picture()
        self.program = self.start()
        self.item = self.appear()
        self.empty = self.session.picture()

    def seen(self):
        """The box of all that has come since, off the item; None for nothing."""
        now = self.session.picture()
        below = Box(0, self.item.bottom + 8, WIDTH, HEIGHT)
        above = Box(0, 0, WIDTH, max(0, self.item.top - 8))
        return self.empty.difference(now, within=below) or (
            above.height and self.empty.difference(now, within=above)) or None

    def open(self):
        self.session.click(self.item.centre)
        box = eventually(self.seen, "the dashboard has opened")
        a_moment()
        return self.seen() or box

    def has_closed(self):
        # A pointer that stays there brings out a tool tip.
        self.session.point(ELSEWHERE)
        eventually(lambda: not self.seen(), "the dashboard has closed")
        self.assertTrue(self.program.is_running())

    def choose_from_menu(self):
        """Opens the menu at the item and clicks its one entry."""
        self.session.click(self.item.centre, button=RIGHT)
        menu = eventually(self.seen, "the menu is open")
        a_moment()
        self.session.point(menu.centre)
        a_moment()
        self.session.click(menu.centre)


class WithABar(InLayers):
    def make_session(self):
        return wayland.WaybarScreen()

    def appear(self):
        self.program.item()
        self.program.says(AT_START)

        def drawn():
            box = self.session.item_box(self.bare)
            return box if box and box.width > 40 else None
        return eventually(drawn, "the item is in the bar")

    def test_it_opens_in_the_corner_at_the_bar_wholly_on_the_screen(self):
        box = self.open()
        self.assertLess(box.top - 30, 13, box)
        self.assertGreaterEqual(box.right, WIDTH - 13, box)
        self.assertTrue(300 < box.width < 450 and 200 < box.height < 300, box)

    def test_a_second_click_closes_it_and_a_third_opens_it(self):
        self.open()
        self.session.click(self.item.centre)
        self.has_closed()
        a_moment()
        self.open()

    def test_a_click_elsewhere_closes_it_and_the_next_on_the_item_opens_it(self):
        self.open()
        self.session.click(ELSEWHERE)
        self.has_closed()
        self.open()

    def test_escape_closes_it(self):
        self.open()
        self.session.press("Escape")
        self.has_closed()

    def test_an_explanation_stands_over_it(self):
        before = self.open()
        # The entry of the health section, then by keys to the first card.
        self.session.click((before.left + 70, before.top + 70))
        a_moment()
        for key in ("Tab", "Tab", "Tab", "Tab", "space"):
            self.session.press(key)
        box = eventually(lambda: self.seen().bottom > before.bottom + 40 and self.seen(),
                         "the explanation is open")
        self.assertTrue(0 <= box.left and box.right <= WIDTH and box.bottom < HEIGHT, box)
        beyond = Box(before.left, before.bottom, WIDTH, HEIGHT)
        inside = Box(before.left, before.bottom - 60, WIDTH, before.bottom)
        shown = self.session.picture()
        self.session.press("Escape")
        eventually(lambda: not self.empty.difference(self.session.picture(), within=beyond),
                   "the explanation has closed")
        self.assertTrue(shown.difference(self.session.picture(), within=inside),
                        "it was above the dashboard")
        self.session.press("Escape")
        self.has_closed()

    def test_a_hundred_openings_leave_nothing_behind(self):
        item = self.program.item()

        def once():
            item.activate()
            eventually(self.seen, "the dashboard has opened")
            item.activate()
            self.has_closed()
        for _ in range(3):
            once()
        # The mock of the laptop, which may not be asked by another user than the test's, leaves a
        # socket behind whenever the battery is reported.
        files = self.program.open_files(but="socket:")
        for _ in range(100):
            once()
        self.assertLessEqual(self.program.open_files(but="socket:"), files)


class WithABarBelow(InLayers):
    """The item in the middle of a bar at the lower edge."""

    def make_session(self):
        return wayland.WaybarScreen(edge="bottom", place="center")

    appear = WithABar.appear

    def test_it_opens_above_the_bar_at_the_item(self):
        box = self.open()
        self.assertLess(abs(box.centre[0] - self.item.centre[0]), 20, (box, self.item))
        self.assertTrue(0 < HEIGHT - 30 - box.bottom < 13, box)
        self.session.click(self.item.centre)
        self.has_closed()

    def test_it_opens_in_the_corner_for_who_does_not_click(self):
        self.program.item().activate()
        box = eventually(self.seen, "the dashboard has opened")
        self.assertGreaterEqual(box.right, WIDTH - 13, box)


class WithoutABar(InLayers):
    """The program brings its own."""

    def make_session(self):
        return wayland.SwayScreen()

    def appear(self):
        def drawn():
            box = self.session.item_box(self.bare)
            return box if box and box.width > 40 else None
        eventually(drawn, "the bar is there")
        a_moment()
        return drawn()

    def bar(self):
        return self.session.item_box(self.bare)

    def test_it_stands_in_the_corner(self):
        self.assertEqual((self.item.top, self.item.right), (0, WIDTH))
        self.assertLess(self.item.height, 30)

    def test_its_dashboard_opens_beside_it(self):
        box = self.open()
        self.assertLess(box.top - self.item.bottom, 13, box)
        self.session.click(self.item.centre)
        self.has_closed()

    def test_its_menu_quits(self):
        self.choose_from_menu()
        self.assertEqual(self.program.exit_code(), 0)

    def test_a_click_elsewhere_closes_its_menu(self):
        self.session.click(self.item.centre, button=RIGHT)
        eventually(self.seen, "the menu is open")
        self.session.click(ELSEWHERE)
        self.has_closed()

    def test_it_is_left_where_it_was_dragged_over_a_restart(self):
        self.session.drag(self.item.centre, (300, 590))
        eventually(lambda: self.bar().bottom == HEIGHT and self.bar().top > 500,
                   "it lies at the lower edge")
        moved = self.bar()
        self.assertLess(abs(moved.centre[0] - 300), 12)
        self.assertEqual(self.program.terminate(), 0)
        eventually(lambda: not self.bar(), "it is gone")
        self.program = self.start()
        eventually(lambda: self.bar() and self.bar().top == moved.top, "it is there again")

    def test_a_second_start_opens_the_dashboard_at_it(self):
        self.assertEqual(self.start().exit_code(), 0)
        self.assertLess(eventually(self.seen, "the dashboard has opened").top, 60)


class SettingsInSway(InLayers):
    """The settings are an ordinary window, which the compositor places."""

    title = "Ferrin Settings"

    def make_session(self):
        return wayland.SwayScreen()

    appear = WithoutABar.appear

    def box(self):
        return self.session.box_of(self.title)

    def open_settings(self):
        dashboard = self.open()
        self.session.click((dashboard.left + 70, dashboard.top + 145))
        eventually(self.box, "the settings are open")
        a_moment()
        return self.box()

    def test_they_open_in_their_own_size_and_close_and_open_again(self):
        box = self.open_settings()
        self.assertTrue(0 <= box.left and 0 <= box.top, box)
        self.assertTrue(box.right <= WIDTH and box.bottom <= HEIGHT, box)
        self.session.run("swaymsg", f'[title="{self.title}"]', "kill")
        eventually(lambda: not self.box(), "the settings have closed")
        self.has_closed()
        self.assertEqual(self.open_settings(), box)

    def test_what_they_open_stays_inside(self):
        box = self.open_settings()
        before = self.session.settled_picture()
        # The button that chooses an icon, then the question before quitting.
        for place in ((461, 88), (65, 198)):
            self.session.click((box.left + place[0], box.top + place[1]))
            a_moment()
            changed = before.difference(self.session.picture())
            self.assertTrue(changed and changed.height > 60, changed)
            self.assertTrue(box.left <= changed.left and changed.right <= box.right, changed)
            self.assertTrue(box.top <= changed.top and changed.bottom <= box.bottom, changed)
            self.session.press("Escape")
            a_moment()


class WithoutLayers(OnADesktop):
    """No place for an item at all; the dashboard is still there for who starts the program again."""

    def make_session(self):
        return wayland.WestonSession()

    def test_it_says_so_once_and_a_second_start_opens_the_dashboard_as_a_window(self):
        ScreenReader.prepare(self.session)
        program = self.start(**ENVIRONMENT)
        words = "This session has no place for an item"
        eventually(lambda: words in program.log(), "it says that there is no place")
        reader = ScreenReader(self.session, program.pid)
        self.addCleanup(reader.close)
        watcher = self.session.start_watcher()
        self.session.end_process(watcher)
        self.assertEqual(self.start().exit_code(), 0)

        def shown():
            root = reader.read()
            return root and [window for window in root.children if "showing" in window.states
                             and window.find("STATUS", "page tab")]
        eventually(shown, "the dashboard has opened")
        self.assertEqual(program.log().count(words), 1)
        self.assertTrue(program.is_running())


class TitleBarsByQt(OnADesktop):
    """Where the compositor draws none."""

    def make_session(self):
        return wayland.WestonScreen()

    def title_bar_of_settings(self, theme):
        """The lightness of its ground, from 0 to 255."""
        bare = self.session.picture()
        program = self.start_under(theme)
        eventually(program.owns_its_name, "the program is there")
        self.session.run("gdbus", "call", "--session", "--dest", "org.ferrin.Ferrin",
                         "--object-path", "/org/ferrin/Ferrin", "--method",
                         "org.freedesktop.Application.ActivateAction", "settings", "[]", "{}")
        eventually(lambda: bare.difference(self.session.picture()), "the settings are open")
        shown = self.session.settled_picture()
        box = bare.difference(shown)
        # Beside the title, above the content.
        ground = shown.pixel(box.left + box.width // 4, box.top + 12)
        self.assertEqual(program.terminate(), 0)
        eventually(lambda: not bare.difference(self.session.picture()), "the settings are gone")
        return sum(ground) // 3

    def test_they_are_dark_over_a_dark_window_and_light_over_a_light_one(self):
        self.assertLess(self.title_bar_of_settings("Dark"), 80)
        self.assertGreater(self.title_bar_of_settings("Light"), 180)


if __name__ == "__main__":
    main()
