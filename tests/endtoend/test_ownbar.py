# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The bar of the program's own, where the desktop has no place for an item."""

import contextlib
import json

from harness import desktop
from harness.case import OnADesktop, main
from harness.picture import Box
from harness.portal import Desktop
from harness.processes import a_moment, eventually
from harness.program import store_path

# A bar without a tray, which keeps its height free of windows.
OTHER_PANEL = """panel_items = T
panel_size = 100% 32
panel_position = top center horizontal
strut_policy = follow_size
"""


class OnABareScreen(OnADesktop):
    def make_session(self):
        return desktop.BareScreen()

    def setUp(self):
        super().setUp()
        self.program = self.start()

    def bar(self):
        """The box of the bar, which is the one window."""
        windows = eventually(lambda: self.session.windows_of(self.program.pid), "the bar is there")
        self.assertEqual(len(windows), 1)
        return self.session.box_of(windows[0])

    def stands(self, condition, what):
        return eventually(lambda: condition(self.bar()) and self.bar(), what)

    def test_it_stands_in_the_corner_of_the_screen(self):
        box = self.bar()
        self.assertEqual((box.top, box.right), (0, 800))
        self.assertLess(box.height, 30)

    def test_it_is_left_where_it_was_dragged_over_a_restart(self):
        before = self.bar()
        self.session.drag(before.centre, (300, 590))
        moved = self.stands(lambda box: box.bottom == 600, "it lies at the lower edge")
        self.assertLess(abs(moved.centre[0] - 300), 10)
        a_moment()
        self.assertEqual(len(self.session.windows_of(self.program.pid)), 1, "it was no click")
        with open(store_path(self.session), encoding="utf-8") as file:
            self.assertTrue(json.load(file)["ownBarPlace"].startswith("bottom 0."))
        self.assertEqual(self.program.terminate(), 0)
        self.program = self.start()
        again = self.stands(lambda box: box.bottom == 600, "it lies at the lower edge again")
        self.assertLessEqual(abs(again.left - moved.left), 1)

    def test_its_dashboard_opens_beside_it_wherever_it_is(self):
        self.session.drag(self.bar().centre, (300, 590))
        bar = self.stands(lambda box: box.bottom == 600, "it lies at the lower edge")
        self.session.click(bar.centre)
        eventually(lambda: len(self.session.windows_of(self.program.pid)) == 2, "it has opened")
        boxes = [self.session.box_of(window)
                 for window in self.session.windows_of(self.program.pid)]
        dashboard = max(boxes, key=lambda box: box.height)
        self.assertTrue(0 < bar.top - dashboard.bottom < 13, (dashboard, bar))

    def test_it_keeps_off_another_panel(self):
        self.bar()
        self.session.start(["tint2", "-c", self.session.write("config/tint2rc", OTHER_PANEL)])
        self.stands(lambda box: box.top == 32, "it has moved below the panel")

    def test_it_hides_under_a_full_screen_window(self):
        bar = self.bar()
        shown = eventually(lambda: len(set(self.session.picture().pixels(bar))) > 8
                           and self.session.picture().pixels(bar), "the bar is drawn")
        self.session.start(["xev", "-geometry", "400x300+100+100"])
        eventually(lambda: self.session.run("xdotool", "search", "--onlyvisible", "--name",
                                            "^Event Tester$"), "another window is open")
        self.session.run("wmctrl", "-r", "Event Tester", "-b", "add,fullscreen")
        eventually(lambda: len(set(self.session.picture().pixels(bar))) == 1,
                   "only the other window is seen")
        self.session.run("wmctrl", "-r", "Event Tester", "-b", "remove,fullscreen")
        eventually(lambda: self.session.picture().pixels(bar) == shown, "the bar is seen again")

    def test_it_follows_the_screen_to_another_size(self):
        self.bar()
        self.session.resize(640, 480)
        self.stands(lambda box: box.right == 640, "it is on the smaller screen")

    def test_it_grows_with_the_desktops_texts_and_stays_in_its_corner(self):
        desk = self.enterContext(contextlib.closing(Desktop(self.session, "light")))
        usual = self.bar()
        desk.enlarges_texts(2)
        box = self.stands(lambda box: box.height > 1.8 * usual.height, "it has grown")
        self.assertGreater(box.width, 1.8 * usual.width)
        self.assertEqual((box.top, box.right), (0, 800))

    def test_it_is_black_and_white_in_high_contrast(self):
        desk = self.enterContext(contextlib.closing(Desktop(self.session, "light")))
        box = self.bar()
        desk.wants_high_contrast(True)

        def edge_and_ground():
            picture = self.session.picture()
            return [picture.pixel(box.left + inset, box.top + inset) for inset in (0, 2)]
        eventually(lambda: edge_and_ground() == [(0, 0, 0), (255, 255, 255)], "it is black and white")

    def test_a_second_start_opens_the_dashboard_at_it(self):
        bar = self.bar()
        second = self.start()
        self.assertEqual(second.exit_code(), 0)
        eventually(lambda: len(self.session.windows_of(self.program.pid)) == 2, "it has opened")
        boxes = [self.session.box_of(window)
                 for window in self.session.windows_of(self.program.pid)]
        dashboard = max(boxes, key=lambda box: box.height)
        self.assertTrue(0 < dashboard.top - bar.bottom < 13, (dashboard, bar))


class OnABareScreenFromRightToLeft(OnADesktop):
    def make_session(self):
        return desktop.BareScreen()

    def test_bar_and_menu_are_mirrored(self):
        # An empty variable counts as none.
        program = self.start(LC_ALL="", LANG="ar_EG.UTF-8")
        bar, = eventually(lambda: self.session.windows_of(program.pid), "the bar is there")
        place = self.session.box_of(bar)
        self.assertEqual((place.top, place.left), (0, 0))
        self.session.click(place.centre, button=3)
        menu = eventually(lambda: [each for each in self.session.windows_of(program.pid) if each != bar],
                          "the menu is open")[0]
        box = self.session.box_of(menu)

        def darkest(left, right):
            pixels = self.session.picture().pixels(Box(left, box.top + 5, right, box.bottom - 5))
            return min(sum(pixel) for pixel in pixels)
        # The first quarter of a row is longer than no entry, the last one begins each of them.
        quarter = box.width // 4
        eventually(lambda: darkest(box.right - quarter, box.right - 5)
                   < darkest(box.left + 5, box.left + quarter) - 300, "its entries begin at the right")


if __name__ == "__main__":
    main()
