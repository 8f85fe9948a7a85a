# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A window of the program, read as a screen reader reads it and worked with real pointer and keys."""

from harness.processes import eventually

TAB = "page tab"
BUTTON = "push button"


class ReadWindow:
    """What holds for every window; which one it is, its root says."""

    def __init__(self, session):
        self._session = session

    def root(self):
        """The window as it is read out, or None while it is closed."""
        raise NotImplementedError

    # What is in it.

    def find(self, pattern, role=None):
        """Waits for an object to be there, and to stay where it is."""
        last = None

        def at_rest():
            nonlocal last
            root = self.root()
            found, last = last, root and root.find(pattern, role)
            return last and found and found.box == last.box
        try:
            eventually(at_rest, pattern)
        except AssertionError as error:
            raise AssertionError(f"no {pattern!r} at rest among {self.texts()}") from error
        return last

    def texts(self):
        """All names that it tells, in order."""
        root = self.root()
        return [each.name for each in root.everything()] if root else []

    def buttons(self):
        """The names of the buttons that can be seen."""
        root = self.root()
        return [each.name for each in root.everything()
                if each.role == BUTTON and "showing" in each.states] if root else []

    def selected(self):
        """The entries of the menu that are told as selected."""
        root = self.root()
        return [each.name for each in root.everything()
                if each.role == TAB and "selected" in each.states] if root else []

    def focused(self):
        """What the keyboard acts on, or None."""
        root = self.root()
        # What holds it tells that it has the focus, too.
        return next((each for each in root.everything()
                     if {"focused", "focusable"} <= each.states), None) if root else None

    def focused_name(self):
        focused = self.focused()
        return focused and focused.name

    def focus(self):
        """The name of what has the focus, which is waited for: while it moves on nothing has it."""
        return eventually(self.focused_name, "something has the focus")

    # What is done to it.

    def click(self, pattern, role=None):
        self._session.click(self.find(pattern, role).box.centre)

    def press(self, *keys):
        self._session.press(*keys)
