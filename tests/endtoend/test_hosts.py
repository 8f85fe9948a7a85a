# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item in real status areas: seen, and worked with a real pointer."""

from harness import desktop
from harness.case import AT_START, OnADesktop, main
from harness.processes import eventually


class InAHost:
    """What holds in every status area."""

    def setUp(self):
        super().setUp()
        self.before = self.session.picture()
        self.program = self.start()
        self.item = self.program.item()
        self.program.says(AT_START)

    def cell(self):
        """Where the item is drawn, once it has been."""
        return eventually(self._drawn, "the item is on the screen")

    def _drawn(self):
        box = self.session.item_box(self.before)
        return box if box and len(set(self.session.picture().pixels(box))) > 2 else None

    def has_window(self):
        return bool(self.session.windows_of(self.program.pid))

    def test_it_is_registered_with_what_hosts_ask_for(self):
        expected = {"Id": "ferrin", "Title": "Ferrin", "Category": "Hardware", "Status": "Active",
                    "ItemIsMenu": False, "Menu": "/MenuBar"}
        self.assertEqual({key: self.item.get(key) for key in expected}, expected)
        self.assertEqual(self.item.get("IconAccessibleDesc"), AT_START)

    def test_it_is_drawn_in_the_form_of_its_host(self):
        box = self.cell()
        self.check_form(box)

    def test_a_click_opens_the_dashboard_and_another_closes_it(self):
        place = self.cell().centre
        self.assertFalse(self.has_window())
        self.session.click(place)
        eventually(self.has_window, "the dashboard has opened")
        self.session.click(place)
        eventually(lambda: not self.has_window(), "the dashboard has closed")
        self.assertTrue(self.program.is_running())

    def test_the_menu_quits(self):
        box = self.cell()
        self.assertEqual(list(self.item.menu().values()), ["Quit Ferrin"])
        before = self.session.picture()
        self.session.click(box.centre, button=3)
        menu = eventually(lambda: before.difference(self.session.picture(), below=box.bottom + 4),
                          "the menu is open")
        # Once more, for a menu that was still unfolding.
        self.session.point((10, 500))
        menu = before.difference(self.session.picture(), below=box.bottom + 4) or menu
        self.session.click(menu.centre)
        self.assertEqual(self.program.exit_code(), 0)


class Xfce(InAHost, OnADesktop):
    def check_form(self, box):
        self.assertLessEqual(box.width, 24)
        self.assertGreater(box.height, 14)


class XfceWithALightPanel(Xfce):
    def make_session(self):
        return desktop.XfceScreen(dark=False)


class Mate(InAHost, OnADesktop):
    def make_session(self):
        return desktop.MateScreen()

    def check_form(self, box):
        self.assertGreater(box.width, box.height)


class Waybar(InAHost, OnADesktop):
    def make_session(self):
        return desktop.WaybarScreen()

    def check_form(self, box):
        self.assertGreater(box.width, 2 * box.height)


class TheMenuOnTheBus(OnADesktop):
    def test_its_one_entry_ends_the_program(self):
        program = self.start()
        menu = program.item().menu()
        self.assertEqual(list(menu.values()), ["Quit Ferrin"])
        program.item().choose(next(iter(menu)))
        self.assertEqual(program.exit_code(), 0)


if __name__ == "__main__":
    main()
