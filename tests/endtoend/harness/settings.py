# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The settings window as people meet it: opened by clicks on the item and its dashboard's menu."""

from harness.processes import a_moment, eventually
from harness.readwindow import TAB, ReadWindow

PAGES = ["General", "Menu bar icon", "Support", "About"]
SWITCH = "check box"
CHOICE = "radio button"
LINK = "link"
TITLE = "Ferrin Settings"


class Settings(ReadWindow):
    """The settings window of a program whose item and dashboard are known; closed at first."""

    def __init__(self, session, dashboard):
        super().__init__(session)
        self._dashboard = dashboard

    def root(self):
        return self._dashboard.settings_window()

    def window(self):
        """The window's number on the screen, or None while it is closed."""
        windows = self._session.run("xdotool", "search", "--all", "--onlyvisible", "--pid",
                                    str(self._dashboard.program.window_pid), "--name", TITLE).split()
        return windows[0] if windows else None

    def box(self):
        """Where the window stands, without what the window manager puts around it."""
        # What searches the screen misses a window now and then when another one closes meanwhile.
        return self._session.box_of(eventually(self.window, "the settings are on the screen"))

    def is_in_front(self):
        root = self.root()
        return root is not None and "active" in root.states

    def open(self):
        """By a click on the item and one on the entry SETTINGS."""
        a_moment()
        self._dashboard.open()
        self._dashboard.click("SETTINGS", TAB)
        eventually(lambda: self.window() and self.is_in_front(), "the settings are in front")
        # Off what it came to stand on.
        self._session.point((5, 590))

    def close(self):
        """By the button of the window manager."""
        box = self.box()
        self._session.click((box.right - 12, box.top - 10))
        self.has_closed()

    def has_closed(self):
        eventually(lambda: not self.root() and not self.window(), "the settings have closed")

    def select(self, page):
        """Shows a page by a click on its entry."""
        self.click(page, TAB)
        eventually(lambda: self.selected() == [page], f"{page} is selected")
        self._session.point((5, 590))

    def is_on(self, name, role=SWITCH):
        """Whether a switch is on, or a choice the one that is chosen."""
        return "checked" in self.find(name, role).states

    def becomes(self, name, is_on, role=SWITCH):
        eventually(lambda: self.is_on(name, role) == is_on,
                   f"{name} is {'on' if is_on else 'off'}")
