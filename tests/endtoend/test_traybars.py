# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item in bars that know only the older tray: docked as a window, and worked with a real
pointer.

    test_traybars.py HOST    one host, by the name of its class below
"""

import re

from harness import applets, contrast, traybars
from harness.case import OnADesktop, main
from harness.picture import is_red
from harness.processes import a_moment, eventually

# The time goes down while a bar is waited for.
AT_START = r"37%, 2:4[5-7] to empty"


class InATrayBar:
    """What holds in every bar."""

    def setUp(self):
        super().setUp()
        self.program = self.start()

    def cell(self):
        """Where the item's window is, once the bar has it."""
        return eventually(self._cell, "the item is docked")

    def _cell(self):
        window = self.session.docked_window(self.program.pid)
        return window and self.session.box_of(window)

    def says(self, words):
        """Waits until the docked window's title matches these words, and returns the picture in it."""
        def said():
            window = self.session.docked_window(self.program.pid)
            return window and self.session.title_of(window)
        eventually(lambda: re.fullmatch(words, said() or ""), words)
        return self.pixels()

    def pixels(self):
        """What the cell shows once it shows anything."""
        def drawn():
            pixels = self.session.picture().pixels(self.cell())
            return pixels if len(set(pixels)) > 8 else None
        return eventually(drawn, "the cell has a picture")

    def other_windows(self):
        docked = self.session.docked_window(self.program.pid)
        return [window for window in self.session.windows_of(self.program.pid) if window != docked]

    def test_its_cell_is_a_square_within_the_bar(self):
        self.says(AT_START)
        cell = self.cell()
        self.assertEqual(cell.width, cell.height)
        self.assertTrue(14 < cell.height <= 30, cell)
        bar = self.session.bar_box()
        self.assertTrue(bar.top <= cell.top and cell.bottom <= bar.bottom, (cell, bar))
        self.assertTrue(bar.left <= cell.left and cell.right <= bar.right, (cell, bar))

    def test_it_shows_the_battery_through_a_day(self):
        pictures = [self.says(AT_START)]
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 78)
        pictures.append(self.says(r"78%, 0:4\d to full"))
        self.laptop.send("charge", "BAT0", 100)
        pictures.append(self.says("100%"))
        self.assertEqual(sum(map(is_red, pictures[-1])), 0)
        self.laptop.send("unplug")
        self.laptop.send("drain", "BAT0", 8)
        pictures.append(self.says("8%, 0:36 to empty"))
        eventually(lambda: any(map(is_red, self.pixels())), "a nearly empty battery is red")
        self.assertEqual(self.program.terminate(), 0)
        self.laptop.send("remove", "BAT0")
        self.program = self.start()
        pictures.append(self.says("No battery"))
        self.assertEqual(len({tuple(picture) for picture in pictures}), len(pictures))

    def test_it_stands_out_from_the_bar_under_every_theme_of_the_windows(self):
        self.stands_out()
        for theme in ("Light", "Dark"):
            self.assertEqual(self.program.terminate(), 0)
            self.program = self.start_under(theme)
            self.stands_out()

    def stands_out(self):
        self.assertGreaterEqual(contrast.range_of(self.says(AT_START)), contrast.LEGIBLE)

    def test_a_click_opens_the_dashboard_at_the_item_and_another_closes_it(self):
        self.says(AT_START)
        cell = self.cell()
        self.session.click(cell.centre)
        window = eventually(self.other_windows, "the dashboard has opened")[0]
        eventually(lambda: self.session.box_of(window).width > 300, "it has its size")
        box, bar = self.session.box_of(window), self.session.bar_box()
        self.assertTrue(0 <= box.left < box.right <= 800 and 0 <= box.top < box.bottom <= 600, box)
        self.assertTrue(box.top >= bar.bottom or box.bottom <= bar.top, (box, bar))
        self.assertLess(min(abs(box.top - bar.bottom), abs(box.bottom - bar.top)), 13, (box, bar))
        self.assertLess(max(cell.left - box.right, box.left - cell.right), 20, (box, cell))
        a_moment()
        self.session.click(cell.centre)
        eventually(lambda: not self.other_windows(), "the dashboard has closed")
        a_moment()
        self.assertFalse(self.other_windows())
        self.assertTrue(self.program.is_running())

    def test_the_menu_quits(self):
        self.says(AT_START)
        cell = self.cell()
        before = self.session.picture()
        self.session.click(cell.centre, button=3)
        menu = self.session.box_of(eventually(self.other_windows, "the menu is open")[0])
        self.assertTrue(menu.top >= cell.bottom - 1 or menu.bottom <= cell.top + 1, (menu, cell))
        eventually(lambda: before.difference(self.session.picture()), "the menu is drawn")
        a_moment()
        opened = self.session.picture()
        self.session.point(menu.centre)
        eventually(lambda: opened.difference(self.session.picture()), "the entry is lit")
        a_moment()
        self.session.click(menu.centre)
        self.assertEqual(self.program.exit_code(), 0)

    def test_the_pointer_at_rest_is_told_in_words(self):
        self.says(AT_START)
        self.session.point(self.cell().centre)
        tip = eventually(self.other_windows, "the tip is open")[0]
        eventually(lambda: self.session.box_of(tip).height < 40, "it is a line of text")
        self.session.point((400, 300))
        eventually(lambda: not self.other_windows(), "the tip has gone")

    def test_it_is_back_once_after_the_bar_was_restarted(self):
        self.says(AT_START)
        for _ in range(3):
            self.session.restart_bar()
            self.says(AT_START)
            self.assertEqual(len(self.session.windows_of(self.program.pid)), 1)

    def test_a_status_area_that_comes_later_takes_over_until_it_goes(self):
        self.says(AT_START)
        watcher = self.session.start_watcher()
        eventually(lambda: not self.session.windows_of(self.program.pid), "the tray is left")
        self.program.says(AT_START)
        self.session.end_process(watcher)
        self.says(AT_START)
        self.assertEqual(len(self.session.windows_of(self.program.pid)), 1)


class I3bar(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.I3Screen()

    def test_it_follows_the_bars_colours_to_some_that_only_the_window_manager_tells(self):
        self.says(AT_START)
        # While it reads its configuration the bar has no window, and then one in the same place.
        centre = self.session.bar_box().centre
        # The bar announces the status line's colour, in which nothing is to be read.
        for background, ground in (("#f0f0f0", (240, 240, 240)), ("#101010", (16, 16, 16))):
            self.session.recolour(background, text=background)
            eventually(lambda: self.session.picture().pixel(*centre) == ground,
                       f"the bar is {background}")
            eventually(lambda: contrast.range_of(self.pixels()) >= contrast.LEGIBLE,
                       f"it is legible on {background}")
            self.assertEqual(len(self.session.windows_of(self.program.pid)), 1)


class I3barAtTheBottomAndLight(I3bar):
    def make_session(self):
        return traybars.I3Screen(position="bottom", background="#f0f0f0", text="#202020")


class Tint2(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.Tint2Screen()


class Polybar(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.PolybarScreen()


class Trayer(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.TrayerScreen()


class Stalonetray(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.StalonetrayScreen()


class Lxpanel(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.LxpanelScreen()


class IceWM(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.IcewmScreen()


class BudgieTray(InATrayBar, OnADesktop):
    def make_session(self):
        return applets.BudgieTrayScreen()


class QtileTray(InATrayBar, OnADesktop):
    def make_session(self):
        return traybars.QtileTrayScreen()


if __name__ == "__main__":
    main()
