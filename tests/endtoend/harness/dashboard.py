# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard as people meet it: opened and worked with a real pointer and real keys, and read
as a screen reader reads it."""

import re

from harness.accessible import ENVIRONMENT, ScreenReader
from harness.processes import a_moment, eventually
from harness.program import Program
from harness.readwindow import TAB, ReadWindow

SECTIONS = ["STATUS", "HEALTH", "POWER ADAPTER", "SETTINGS"]
CARD = "label"
# Pixels at a scale of one.
LARGEST_CELL = 40


class Dashboard(ReadWindow):
    """The program on a desktop, with its item in the panel and its dashboard closed."""

    program_class = Program

    def __init__(self, session, laptop, said, environment=None):
        super().__init__(session)
        ScreenReader.prepare(session)
        before = session.picture()
        self.program = self.program_class(session, laptop, ENVIRONMENT | (environment or {}))
        self.await_item()
        self.program.says(said)
        self.reader = ScreenReader(session, self.program.pid)
        self.item_box = eventually(lambda: self.drawn(before), "the item is on the screen")
        self.item = self.item_box.centre

    def await_item(self):
        self.program.item()

    def drawn(self, before):
        """The item's place, given a picture of the screen without it; None until it is drawn."""
        # The panel shows an empty cell first, and may draw the whole of itself anew.
        box = self._session.item_box(before)
        is_cell = box and max(box.width, box.height) <= LARGEST_CELL * self._session.scale
        return box if is_cell and len(set(self._session.picture().pixels(box))) > 8 else None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.reader.close()

    # The windows.

    def windows(self):
        """All visible windows of the program."""
        return self._session.windows_of(self.program.window_pid)

    def root(self):
        """The dashboard as it is read out, or None while it is closed."""
        return next((window for window in self._frames() if window.find("STATUS", TAB)), None)

    def settings_window(self):
        return next((window for window in self._frames() if window.name == "Ferrin Settings"), None)

    def popover(self):
        """The explanation that is open beside the dashboard, or None."""
        return next((window for window in self._frames()
                     if window.name != "Ferrin Settings" and not window.find("STATUS", TAB)), None)

    def open(self):
        """Opens it with a click on the item."""
        self._session.click(self.item)
        eventually(lambda: self.root() and self.windows(), "the dashboard has opened")

    def close(self):
        """Closes it with another click on the item."""
        a_moment()
        self._session.click(self.item)
        self.has_closed()
        a_moment()

    def has_closed(self):
        eventually(lambda: not self.root() and not self.windows(), "the dashboard has closed")

    # What is in it.

    def cards(self):
        """The cards' values by their titles."""
        root = self.root()
        names = root.named(CARD) if root else []
        return dict(name.split(": ", 1) for name in names if ": " in name)

    def shows(self, **expected):
        """Waits until the cards are exactly these; the values are patterns, and an underscore in
        a title stands for a space."""
        expected = {title.replace("_", " "): value for title, value in expected.items()}
        self.shows_all(expected)

    def shows_all(self, expected):
        cards = {}

        def matches():
            nonlocal cards
            cards = self.cards()
            return cards.keys() == expected.keys() and all(
                re.fullmatch(pattern, cards[title]) for title, pattern in expected.items())
        try:
            eventually(matches, str(expected))
        except AssertionError as error:
            raise AssertionError(f"the cards are {cards}, not {expected}; the program logged:\n"
                                 + self.program.log()) from error

    # What is done to it.

    def select(self, section):
        """Shows a section by a click on its entry."""
        self.click(section, TAB)
        eventually(lambda: self.selected() == [section], f"{section} is selected")

    def explain(self, title):
        """Opens a card's explanation with a click on its button, and returns all that it says."""
        self.click(f"More about {title}")
        return eventually(self.explanation, f"the explanation of {title} is open")

    def explanation(self):
        popover = self.popover()
        return [each.name for each in popover.everything() if each.role == CARD] if popover else []

    def _frames(self):
        root = self.reader.read()
        return [window for window in root.children if "showing" in window.states] if root else []
