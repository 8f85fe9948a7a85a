# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard as a window among others: where it opens, and all that closes it."""

from harness import desktop
from harness.case import AT_START, OnADesktop, main
from harness.processes import a_moment, eventually

# Between the panel and the popover, at the most; and the popover's way off the edges of the screen.
NEAR = 12
LEFT, RIGHT = 1, 3
WHEEL_UP, WHEEL_DOWN = 4, 5
NOWHERE = 40, 300
LOCKED = bytes.fromhex("336699")


class WithAPopover(OnADesktop):
    """The program's item is in the panel, and nothing is open."""

    edge = "top"
    compositing = False

    def make_session(self):
        return desktop.XfceScreen(edge=self.edge, compositing=self.compositing)

    def setUp(self):
        super().setUp()
        self.panel = self.session.whole_panel()
        self.before = self.session.picture()
        self.program = self.start()
        self.program.item()
        self.program.says(AT_START)
        self.item = eventually(self.drawn, "the item is on the screen").centre

    def drawn(self):
        # The panel shows an empty cell first, and draws the whole of itself anew.
        box = self.session.item_box(self.before)
        is_drawn = box and max(box.width, box.height) < 40
        return box if is_drawn and len(set(self.session.picture().pixels(box))) > 8 else None

    def windows(self):
        return self.session.windows_of(self.program.pid)

    def open(self):
        self.session.click(self.item)
        window = eventually(self.windows, "the popover has opened")[0]
        eventually(lambda: self.session.focused_window() == window, "the popover has the focus")
        a_moment()
        return window

    def box(self):
        return self.session.box_of(self.windows()[0])

    def has_closed(self):
        eventually(lambda: not self.windows(), "the popover has closed")
        self.assertTrue(self.program.is_running())

    def stays_open(self):
        a_moment()
        self.assertEqual(len(self.windows()), 1)

    def stays_closed(self):
        a_moment()
        self.assertFalse(self.windows())


class OnAnEdge:
    """What holds for a panel on any edge."""

    def test_it_opens_beside_the_item_wholly_on_the_screen_and_off_the_panel(self):
        self.open()
        box = self.box()
        width, height = self.session.size
        self.assertTrue(0 <= box.left < box.right <= width, box)
        self.assertTrue(0 <= box.top < box.bottom <= height, box)
        across, along = self.distances(box)
        self.assertTrue(0 < across <= NEAR, (box, self.panel))
        # The item stands in the corner, from which the popover keeps a little away.
        self.assertTrue(along <= NEAR, (box, self.item))

    def distances(self, box):
        """How far the popover is from the panel, and from the item's place along the panel."""
        horizontally = max(box.left - self.item[0], self.item[0] - box.right)
        vertically = max(box.top - self.item[1], self.item[1] - box.bottom)
        return {"top": (box.top - self.panel.bottom, horizontally),
                "bottom": (self.panel.top - box.bottom, horizontally),
                "left": (box.left - self.panel.right, vertically),
                "right": (self.panel.left - box.right, vertically)}[self.edge]

    def test_a_second_click_closes_it_and_a_third_opens_it(self):
        self.open()
        self.session.click(self.item)
        self.has_closed()
        self.stays_closed()
        self.open()

    def test_a_click_elsewhere_on_the_panel_closes_it(self):
        self.open()
        self.session.click(self.panel.centre)
        self.has_closed()
        self.stays_closed()


class AtTheTop(OnAnEdge, WithAPopover):
    pass


class AtTheBottom(OnAnEdge, WithAPopover):
    edge = "bottom"


class AtTheLeft(OnAnEdge, WithAPopover):
    edge = "left"


class AtTheRight(OnAnEdge, WithAPopover):
    edge = "right"


class AtTheTopWithAShadow(WithAPopover):
    """Where windows are blended the window is larger than what is seen of the popover."""

    compositing = True

    def test_its_shadow_neither_covers_the_panel_nor_leaves_the_screen(self):
        self.open()
        box = self.box()
        self.assertGreaterEqual(box.top, self.panel.bottom)
        self.assertLessEqual(box.right, 800)

    def test_a_second_click_closes_it(self):
        self.open()
        self.session.click(self.item)
        self.has_closed()
        self.stays_closed()

    def test_a_click_on_its_shadow_closes_it(self):
        self.open()
        box = self.box()
        self.session.click((box.left + 5, box.centre[1]))
        self.has_closed()


class ItsWindow(WithAPopover):
    def test_it_is_in_no_list_and_above_the_others(self):
        window = self.open()
        self.assertLessEqual({"SKIP_TASKBAR", "SKIP_PAGER", "ABOVE"},
                             self.session.states_of(window))

    def test_a_click_inside_leaves_it_open(self):
        self.open()
        box = self.box()
        self.session.click((box.left + 5, box.bottom - 30))
        self.stays_open()

    def test_a_click_on_the_desktop_closes_it(self):
        self.open()
        self.session.click(NOWHERE)
        self.has_closed()

    def test_a_click_of_another_button_closes_it(self):
        self.open()
        self.session.click(NOWHERE, button=RIGHT)
        self.has_closed()

    def test_the_wheel_turned_elsewhere_leaves_it_open(self):
        # On the desktop itself it would go to another work space.
        self.session.open_another_program()
        self.open()
        place = self.session.button_of_another_program()
        self.session.click(place, button=WHEEL_DOWN)
        self.session.click(place, button=WHEEL_UP)
        self.stays_open()

    def test_a_click_on_another_window_closes_it_and_is_not_swallowed(self):
        other = self.session.open_another_program()
        self.open()
        self.session.click(self.session.button_of_another_program())
        self.has_closed()
        eventually(lambda: other.poll() is not None, "the other window's button was pressed")

    def test_escape_closes_it(self):
        self.open()
        self.session.press("Escape")
        self.has_closed()

    def test_losing_the_focus_closes_it(self):
        self.session.open_another_program()
        self.open()
        self.session.focus_another_program()
        self.has_closed()
        self.open()

    def test_after_a_click_elsewhere_the_next_click_on_the_item_opens_it_at_once(self):
        self.open()
        self.session.click(NOWHERE)
        self.has_closed()
        self.open()

    def test_a_click_elsewhere_and_a_call_over_the_bus_later_open_it(self):
        self.open()
        self.session.click(NOWHERE)
        self.has_closed()
        self.session.click(NOWHERE)
        self.program.item().activate()
        eventually(self.windows, "the popover has opened")

    def test_a_click_with_the_other_button_on_the_item_closes_it_and_the_next_opens_it(self):
        self.open()
        self.session.click(self.item, button=RIGHT)
        self.has_closed()
        a_moment()
        self.session.press("Escape")
        a_moment()
        self.open()

    def test_it_survives_the_panel(self):
        self.open()
        self.session.kill_panel()
        self.session.start_panel()
        self.program.item()
        self.assertEqual(len(self.windows()), 1)
        self.session.press("Escape")
        self.has_closed()
        eventually(self.drawn, "the item is on the screen again")
        a_moment()
        self.open()

    def test_a_screen_locker_covers_it_and_leaves_the_item_where_it_was(self):
        self.open()
        seen = self.box().centre, self.item
        locker = self.session.start(["i3lock", "--nofork", "--color", LOCKED.hex()])
        eventually(lambda: all(self.session.picture().pixel(*at) == tuple(LOCKED) for at in seen),
                   "the screen is locked")
        self.session.end_process(locker)
        self.program.item()
        self.assertEqual(self.session.bus.item_count(), 1)
        self.session.press("Escape")
        self.has_closed()
        self.open()

    def test_it_moves_when_the_screen_becomes_smaller(self):
        self.open()
        self.session.resize(640, 480)
        eventually(lambda: self.box().right <= 640, "the popover is on the smaller screen")
        self.assertGreaterEqual(self.box().top, self.panel.bottom)
        self.session.press("Escape")
        self.has_closed()

    def test_a_hundred_openings_leave_nothing_behind(self):
        self.open()
        self.session.press("Escape")
        self.has_closed()
        windows = self.session.all_windows().count(b'("ferrin"')
        for _ in range(100):
            self.program.item().activate()
            eventually(self.windows, "the popover has opened")
            self.program.item().activate()
            eventually(lambda: not self.windows(), "the popover has closed")
        eventually(lambda: self.session.all_windows().count(b'("ferrin"') == windows,
                   "no window is left behind")
        self.assertTrue(self.program.is_running())


if __name__ == "__main__":
    main()
