# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item in real status areas: seen, and worked with a real pointer."""

from harness import desktop
from harness.case import AT_START, OnADesktop, main
from harness.processes import a_moment, eventually


class InAHost:
    """What holds in every status area."""

    def setUp(self):
        super().setUp()
        self.before = self.session.picture()
        self.program = self.start()
        self.item = self.program.item()
        self.program.says(AT_START)

    def cell(self):
        """Where the item is drawn, once it has been, in the form that this host calls for."""
        return eventually(self._drawn, "the item is on the screen in the form of its host")

    def _drawn(self):
        box = self.session.item_box(self.before)
        if not box or not self.has_form(box):
            return None
        return box if len(set(self.session.picture().pixels(box))) > 8 else None

    def has_window(self):
        return bool(self.session.windows_of(self.program.pid))

    def test_it_is_registered_with_what_hosts_ask_for(self):
        expected = {"Id": "ferrin", "Title": "Ferrin", "Category": "Hardware", "Status": "Active",
                    "ItemIsMenu": False, "Menu": "/MenuBar"}
        self.assertEqual({key: self.item.get(key) for key in expected}, expected)
        self.assertEqual(self.item.get("IconAccessibleDesc"), AT_START)

    def test_it_is_drawn_in_the_form_of_its_host(self):
        self.assertTrue(self.cell())

    def test_a_click_opens_the_dashboard_and_another_closes_it(self):
        place = self.cell().centre
        self.assertFalse(self.has_window())
        self.session.click(place)
        eventually(self.has_window, "the dashboard has opened")
        a_moment()
        self.session.click(place)
        eventually(lambda: not self.has_window(), "the dashboard has closed")
        self.assertTrue(self.program.is_running())

    def test_the_menu_quits(self):
        box = self.cell()
        self.assertEqual(list(self.item.menu().values()), ["Quit Ferrin"])
        before = self.session.picture()

        def menu():
            return before.difference(self.session.picture(), below=box.bottom + 4)
        self.session.click(box.centre, button=3)
        eventually(menu, "the menu is open")
        opened = self.session.picture()
        self.session.point(menu().centre)
        eventually(lambda: opened.difference(self.session.picture()), "the entry is lit")
        a_moment()
        self.session.click(menu().centre)
        self.assertEqual(self.program.exit_code(), 0)


class Xfce(InAHost, OnADesktop):
    def has_form(self, box):
        # The panel may have drawn the ground around its cell anew.
        return 14 < box.width <= 30 and 14 < box.height <= 30


class XfceWithALightPanel(Xfce):
    def make_session(self):
        return desktop.XfceScreen(dark=False)


class Mate(InAHost, OnADesktop):
    def make_session(self):
        return desktop.MateScreen()

    def has_form(self, box):
        return box.width > box.height


class Waybar(InAHost, OnADesktop):
    def make_session(self):
        return desktop.WaybarScreen()

    def has_form(self, box):
        return box.width > 3 * box.height


class TheMenuOnTheBus(OnADesktop):
    def test_its_one_entry_ends_the_program(self):
        program = self.start()
        menu = program.item().menu()
        self.assertEqual(list(menu.values()), ["Quit Ferrin"])
        program.item().choose(next(iter(menu)))
        self.assertEqual(program.exit_code(), 0)


if __name__ == "__main__":
    main()
