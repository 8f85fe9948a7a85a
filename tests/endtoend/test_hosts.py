# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item in every status area: what its cell shows through a day, and a real pointer on it.

    test_hosts.py HOST    one host, by the name of its class below
"""

import re
from dataclasses import replace

from harness import contrast, desktop, panels, shells, wayland
from harness.case import AT_START, OnADesktop, main
from harness.glyphs import bottle_in
from harness.picture import Box, is_red
from harness.processes import a_moment, eventually
from harness.recognition import Look, Shown, read, recognised

DISCHARGING = Shown("discharging", percent=37, charge="37", time="2:47")
CHARGING = Shown("charging", percent=78, charge="78")
CHARGED = Shown("charged", percent=100, charge="100")
LOW = Shown("discharging", percent=8, charge="8", time="0:36")
FAULT = Shown("unknown", icon="fault", charge="??")
# A standing battery, which is the default, is as wide in a cell of 16 pixels.
GLYPH_WIDTH = 8
# What the item shows under each theme of the windows: another charge each time, since what is on
# the screen is not to be what was there before.
UNDER_THEMES = {"Light": Shown("discharging", percent=60, charge="60", time="4:31"),
                "Dark": Shown("discharging", percent=18, charge="18", time="1:21")}
# No wider than what MATE's panel has beside the item: date and time.
CLOCK_WIDTH = 100

# From the item's cell to its dashboard, at the most: the rest of a thick panel, and a little air.
NEAR = 28
# The dashboard's least size; a smaller one is cut off or still being drawn.
LEAST_WIDTH, LEAST_HEIGHT = 300, 180


class InAHost:
    """What holds in every status area."""

    look = None
    # Where a compositor places windows as it likes, they are asked only to be wholly on the screen.
    opens_at_item = True

    def setUp(self):
        super().setUp()
        self.before = self.session.settled_picture()
        self.program = self.start()
        self.item = self.program.item()
        self.program.says(AT_START)

    def cell(self):
        """Where the item is drawn."""
        return eventually(lambda: self.session.item_box(self.before), "the item is on the screen")

    def shows(self, shown):
        eventually(lambda: self.is_shown(self.as_it_says(shown)), f"the cell shows {shown}")

    def as_it_says(self, shown):
        """With the time that it says just now: that goes down while it is looked at."""
        said = re.fullmatch(rf"{re.escape(shown.charge)}%, (\d:\d\d) to \w+", self.program.says(".*"))
        return replace(shown, time=said[1]) if said else shown

    def is_shown(self, shown):
        box = self.session.item_box(self.before)
        picture = self.session.picture()
        return box and recognised(self.look, picture, box, shown) \
            and (shown.icon == "fault" or self.is_bottle_shown(picture, box, shown.percent))

    def is_bottle_shown(self, picture, box, percent):
        bottle = bottle_in(picture, box, on_chip=bool(self.look.chip))
        return bottle is not None and bottle.shows(percent)

    def red_pixels(self):
        return sum(map(is_red, self.session.picture().pixels(self.cell())))

    def has_window(self):
        return bool(self.session.windows_of(self.program.pid))

    def test_its_cell_shows_the_battery_through_a_day(self):
        self.shows(DISCHARGING)
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 78)
        self.program.says(r"78%, 0:4\d to full")
        self.shows(CHARGING)
        self.laptop.send("charge", "BAT0", 100)
        self.program.says("100%")
        self.shows(CHARGED)
        self.assertEqual(self.red_pixels(), 0)
        self.laptop.send("unplug")
        self.laptop.send("drain", "BAT0", 8)
        self.program.says("8%, 0:36 to empty")
        self.shows(LOW)
        eventually(lambda: self.red_pixels() > 0, "a battery that is nearly empty is red")
        self.assertEqual(self.program.terminate(), 0)
        self.laptop.send("remove", "BAT0")
        self.program = self.start()
        self.program.says("No battery")
        self.shows(FAULT)

    def test_it_stands_out_from_the_panel_under_every_theme_of_the_windows(self):
        self.stands_out(DISCHARGING)
        for theme, shown in UNDER_THEMES.items():
            self.assertEqual(self.program.terminate(), 0)
            self.laptop.send("drain", "BAT0", shown.percent)
            self.program = self.start_under(theme)
            self.program.says(f"{shown.charge}%, {shown.time} to empty")
            if self.look.chip:
                self.look = replace(self.look, chip=theme)
            self.stands_out(shown)

    def stands_out(self, shown):
        self.shows(shown)
        eventually(lambda: contrast.of_strokes(self.session.picture(), self.cell())
                   >= contrast.LEGIBLE, f"{shown} stands out")

    def test_a_click_opens_the_dashboard_and_another_closes_it(self):
        self.shows(DISCHARGING)
        cell = self.cell()
        self.assertFalse(self.has_window())
        before = self.session.picture()
        self.session.click(cell.centre)
        eventually(self.has_window, "the dashboard has opened")
        self.check_place(before, cell)
        self.session.click(cell.centre)
        # A pointer that stays there may bring out a tool tip.
        self.session.point((100, 400))
        eventually(lambda: not self.has_window(), "the dashboard has closed")
        self.assertTrue(self.program.is_running())

    def check_place(self, before, cell):
        """The dashboard is wholly on the screen, and at the item."""
        eventually(lambda: self.beside(cell, before), "the dashboard is drawn")
        picture = self.session.settled_picture()
        box = self.beside(cell, before)
        # Its shadow may reach the edges.
        self.assertTrue(0 <= box.left and box.right <= picture.width, box)
        self.assertTrue(0 <= box.top and box.bottom <= picture.height, box)
        self.assertTrue(box.width >= LEAST_WIDTH and box.height >= LEAST_HEIGHT, box)
        if self.opens_at_item:
            self.assertTrue(box.left <= cell.centre[0] <= box.right, (box, cell))
            self.assertLessEqual(max(box.top - cell.bottom, cell.top - box.bottom), NEAR,
                                 (box, cell))

    def test_the_menu_quits(self):
        self.shows(DISCHARGING)
        # The host's own menu has that one entry, so its middle is hit; others get the whole menu.
        self.assertEqual(list(self.item.menu().values())[-1], "Quit Ferrin")
        cell = self.cell()
        before = self.session.picture()
        self.session.click(cell.centre, button=3)
        menu = eventually(lambda: self.beside(cell, before), "the menu is open")
        a_moment()
        self.session.point(menu.centre)
        a_moment()
        self.session.click(menu.centre)
        self.assertEqual(self.program.exit_code(), 0)

    def beside(self, cell, before):
        """The box of what has come beside the panel that the cell is in."""
        now = self.session.picture()
        beyond = Box(0, 0, now.width, cell.top - 16) if cell.top > now.height // 2 \
            else Box(0, cell.bottom + 8, now.width, now.height)
        return before.difference(now, within=beyond)


class InAnX11Host(InAHost):
    """Where presses elsewhere are heard, whoever gets them."""

    def test_a_click_elsewhere_on_the_panel_closes_the_dashboard(self):
        self.shows(DISCHARGING)
        cell = self.cell()
        self.session.click(cell.centre)
        eventually(self.has_window, "the dashboard has opened")
        a_moment()
        self.session.click((self.session.size[0] * 2 // 5, cell.centre[1]))
        eventually(lambda: not self.has_window(), "the dashboard has closed")
        self.assertTrue(self.program.is_running())


class Xfce(InAnX11Host, OnADesktop):
    look = Look("xfce4-panel", 22)


class LXQt(InAnX11Host, OnADesktop):
    look = Look("lxqt-panel", 22)

    def make_session(self):
        return panels.LxqtScreen()


class MATE(InAnX11Host, OnADesktop):
    look = Look("notification-area-applet"[:15], 25)

    def make_session(self):
        return desktop.MateScreen()

    def test_its_small_text_is_as_strong_as_that_of_the_clock(self):
        self.shows(DISCHARGING)
        cell, picture = self.cell(), self.session.picture()
        text = Box(cell.left, cell.top, cell.right - GLYPH_WIDTH - 4, cell.bottom)
        clock = Box(cell.right + 4, cell.top, cell.right + CLOCK_WIDTH, cell.bottom)
        self.assertGreaterEqual(contrast.of_print(picture, text),
                                0.9 * contrast.of_print(picture, clock))


class Cinnamon(InAnX11Host, OnADesktop):
    look = Look("xapp-sn-watcher", "scaled:24", desktop="X-Cinnamon")

    def make_session(self):
        return shells.CinnamonScreen()


class Plasma(InAnX11Host, OnADesktop):
    look = Look("plasmashell", 22)

    def make_session(self):
        return shells.PlasmaScreen()


class GNOME(InAHost, OnADesktop):
    """The shell writes the texts itself, and opens the menu at a click."""

    look = Look("gnome-shell", 16)
    opens_at_item = False
    words = ["37%, 2:47 to empty", "Open Ferrin", "Settings", "Quit Ferrin"]

    def make_session(self):
        return shells.GnomeScreen()

    def is_shown(self, shown):
        texts = [shown.charge and shown.charge + "%", shown.time]
        return super().is_shown(replace(shown, charge=None, time=None)) \
            and self.label(shown) == " ".join(filter(None, texts))

    def label(self, shown):
        """What stands beside the glyph, as it is read from the screen. Readers of print know no
        "??%" and make letters of it: the shell is asked for that one."""
        if shown.icon == "fault":
            return self.session.item_label()
        box = self.session.item_box(self.before)
        beside = Box(box.left + GLYPH_WIDTH, box.top - 4, box.right + 4, box.bottom + 4)
        return " ".join(line for line, _ in read(self.session.picture(), beside))

    def glyph(self):
        """Where a click's pointer covers nothing of the menu."""
        box = self.cell()
        return box.left + GLYPH_WIDTH // 2, box.top // 2

    def open_menu(self):
        """Opens it with a click, and gives its lines and their places."""
        before = self.session.picture()
        cell = self.cell()
        self.session.click(self.glyph())
        eventually(lambda: self.beside(cell, before), "the menu is open")
        a_moment()
        return self.read_menu(self.beside(cell, before))

    def read_menu(self, menu):
        # Its edges look like strokes of letters.
        inside = Box(menu.left + 20, menu.top + 4, menu.right - 20, menu.bottom - 4)
        return dict(read(self.session.picture(), inside))

    def test_a_click_opens_the_dashboard_and_another_closes_it(self):
        """By way of the menu, since no click reaches the item."""
        self.shows(DISCHARGING)
        before, cell = self.session.picture(), self.cell()
        self.session.click(self.open_menu()["Open Ferrin"])
        eventually(self.has_window, "the dashboard has opened")
        self.check_place(before, cell)
        self.session.press("Escape")
        eventually(lambda: not self.has_window(), "the dashboard has closed")
        self.assertTrue(self.program.is_running())

    def test_what_the_panel_opens_closes_the_dashboard(self):
        """The shell tells nobody of a click on the panel's empty parts."""
        self.shows(DISCHARGING)
        cell = self.cell()
        self.session.click(self.open_menu()["Open Ferrin"])
        eventually(self.has_window, "the dashboard has opened")
        a_moment()
        self.session.click((self.session.size[0] // 2, cell.centre[1]))
        eventually(lambda: not self.has_window(), "the dashboard has closed")

    def test_the_menu_quits(self):
        self.shows(DISCHARGING)
        self.session.click(self.open_menu()["Quit Ferrin"])
        self.assertEqual(self.program.exit_code(), 0)

    def test_the_menu_tells_the_state_and_leads_to_the_settings(self):
        self.shows(DISCHARGING)
        self.assertEqual(list(self.open_menu()), self.words)
        self.session.press("Escape")
        a_moment()
        self.session.point((1, self.session.size[1] - 1))
        self.laptop.send("drain", "BAT0", 33)
        self.program.says("33%, 2:29 to empty")
        self.shows(replace(DISCHARGING, percent=33, charge="33", time="2:29"))
        menu = self.open_menu()
        self.assertEqual(list(menu)[0], "33%, 2:29 to empty")
        self.session.click(menu["Settings"])
        eventually(self.has_window, "the settings have opened")


class Waybar(InAHost, OnADesktop):
    look = Look("waybar", "scaled:16")

    def make_session(self):
        return wayland.WaybarScreen()


class swaybar(InAHost, OnADesktop):  # noqa: N801: it is spelt so
    look = Look("swaybar", 18)

    def make_session(self):
        return wayland.SwaybarScreen()


if __name__ == "__main__":
    main()
