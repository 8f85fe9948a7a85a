# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item in status areas beside those that most users have.

    test_furtherhosts.py HOST    one host, by the name of its class below
"""

from collections import Counter

import test_hosts
from harness import applets, contrast, desktop, panels
from harness.case import OnADesktop, main
from harness.enlightenment import EnlightenmentScreen
from harness.glyphs import bottle_in
from harness.labwc import LabwcWaybarScreen
from harness.picture import Box, is_red
from harness.plasmawayland import PlasmaWaylandScreen
from harness.processes import eventually
from harness.recognition import Look, read
from test_hosts import DISCHARGING, InAHost, InAnX11Host


class Budgie(InAnX11Host, OnADesktop):
    look = Look("budgie-panel", 24, chip="Dark")

    def make_session(self):
        return applets.BudgieScreen()


class MateXapp(InAnX11Host, OnADesktop):
    look = Look("xapp-sn-watcher", "scaled:20", desktop="MATE", chip="Dark")

    def make_session(self):
        return applets.MateXappScreen()


class LabwcWaybar(InAHost, OnADesktop):
    look = Look("waybar", "scaled:16")

    def make_session(self):
        return LabwcWaybarScreen()


class PlasmaOnWayland(InAHost, OnADesktop):
    look = Look("plasmashell", 22)

    def make_session(self):
        return PlasmaWaylandScreen()


class InAnIndicator(test_hosts.GNOME):
    """The panel draws icon and label itself and opens the menu at a click, as GNOME's does."""

    def is_shown(self, shown):
        box = self.session.item_box(self.before)
        picture = self.session.picture()
        bottle = box and bottle_in(picture, box)
        if not bottle:
            return False
        beside = Box(bottle.box.right + 2, box.top, box.right, box.bottom)
        label = " ".join(line for line, _ in read(picture, beside))
        if shown.icon == "fault":
            # Thin question marks are read as many things.
            return label.endswith("%") and not bottle.shows(shown.percent)
        texts = [shown.charge + "%", shown.time]
        return label == " ".join(filter(None, texts)) and bottle.shows(shown.percent)

    def red_pixels(self):
        """Those that are seen: a theme's own red may be as dark as the panel."""
        pixels = self.session.picture().pixels(self.cell())
        ground = Counter(pixels).most_common(1)[0][0]
        return sum(is_red(pixel) and contrast.between(pixel, ground) >= contrast.LEGIBLE
                   for pixel in pixels)


class XfceIndicators(InAnIndicator):
    def make_session(self):
        return applets.XfceIndicatorScreen()


class WithAFaintState(InAnIndicator):
    """It cannot be read in one go with the menu's entries, above which it stands."""

    def open_menu(self):
        lines = super().open_menu()
        entries = {words: lines[words] for words in self.words[1:]}
        (left, first), (_, second), *_ = entries.values()
        middle = first - (second - first)
        line = Box(left - 20, middle - 10, self.session.size[0] - 4, middle + 10)
        return dict(read(self.session.picture(), line)) | entries


class MateIndicators(WithAFaintState):
    def make_session(self):
        return applets.MateIndicatorScreen()


class BudgieIndicators(WithAFaintState):
    def make_session(self):
        return applets.BudgieIndicatorScreen()


class Enlightenment(test_hosts.GNOME):
    """Its clicks open the menu, of which it writes the state so faintly that nobody reads it here."""

    look = Look("enlightenment", "48:29", chip="Dark")
    words = ["Open Ferrin", "Settings", "Quit Ferrin"]

    def make_session(self):
        return EnlightenmentScreen()

    def is_shown(self, shown):
        return InAHost.is_shown(self, shown)

    def glyph(self):
        return self.cell().centre

    def open_menu(self):
        """Once it is drawn: it fades in."""
        before, cell = self.session.picture(), self.cell()
        self.session.click(self.glyph())

        def entries():
            menu = self.beside(cell, before)
            lines = self.read_menu(menu) if menu else {}
            return lines if list(lines)[-len(self.words):] == self.words else None
        return eventually(entries, "the menu is open")

    def read_menu(self, menu):
        # Without the shadow, and from below the state down to the shelf.
        inside = Box(menu.left + 20, menu.top + 22, menu.right - 20, self.session.shelf_top - 1)
        return dict(read(self.session.picture(), inside))

    test_the_menu_tells_the_state_and_leads_to_the_settings = None

    def test_the_menu_leads_to_the_settings(self):
        self.shows(DISCHARGING)
        self.session.click(self.open_menu()["Settings"])
        eventually(self.has_window, "the settings have opened")


class Qtile(InAnX11Host, OnADesktop):
    """Its own status area, which opens no menus."""

    look = Look("qtile", 16, chip="Dark")
    test_the_menu_quits = None

    def make_session(self):
        return panels.QtileScreen()


class XfceWithALightPanel(test_hosts.Xfce):
    def make_session(self):
        return desktop.XfceScreen(dark=False)


if __name__ == "__main__":
    main()
