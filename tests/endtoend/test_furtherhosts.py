# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The item in status areas beside those that most users have, and under a theme that is not the
panel's.

    test_furtherhosts.py HOST    one host, by the name of its class below
"""

import test_hosts
from harness import applets, desktop
from harness.case import OnADesktop, main
from harness.glyphs import bottle_in
from harness.labwc import LabwcWaybarScreen
from harness.picture import Box
from harness.recognition import Look, read
from test_hosts import InAHost, InAnX11Host


class Budgie(InAnX11Host, OnADesktop):
    look = Look("budgie-panel", "22:21", on_chip=True)

    def make_session(self):
        return applets.BudgieScreen()


class MateXapp(InAnX11Host, OnADesktop):
    look = Look("xapp-sn-watcher", "scaled:20", desktop="MATE", on_chip=True)

    def make_session(self):
        return applets.MateXappScreen()


class LabwcWaybar(InAHost, OnADesktop):
    look = Look("waybar", "scaled:16")

    def make_session(self):
        return LabwcWaybarScreen()


class InAnIndicator(test_hosts.GNOME):
    """The panel draws icon and label itself and opens the menu at a click, as GNOME's does."""

    opens_at_item = False

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


class XfceIndicators(InAnIndicator):
    def make_session(self):
        return applets.XfceIndicatorScreen()


class MateIndicators(InAnIndicator):
    def make_session(self):
        return applets.MateAppletScreen()

    def open_menu(self):
        """The state is too faint to be read in one go with the entries."""
        (_, (left, middle)), *entries = super().open_menu().items()
        line = Box(left - 20, middle - 10, self.session.size[0] - 4, middle + 10)
        return dict(read(self.session.picture(), line) + entries)


class OnAGreyDesktop(OnADesktop):
    """From which dark windows and light ones stand out."""

    def setUp(self):
        super().setUp()
        self.session.run("hsetroot", "-solid", "#808080")


class XfceUnderALightTheme(test_hosts.Xfce, OnAGreyDesktop):
    """A dark panel, and windows that the user wants light."""

    settings = {"appColor": "Light"}

    def make_session(self):
        return desktop.XfceScreen(dark=True)


class XfceUnderADarkTheme(test_hosts.Xfce, OnAGreyDesktop):
    settings = {"appColor": "Dark"}

    def make_session(self):
        return desktop.XfceScreen(dark=False)


class MateUnderADarkTheme(test_hosts.MATE, OnAGreyDesktop):
    settings = {"appColor": "Dark"}

    def make_session(self):
        return desktop.MateScreen(dark=False)


if __name__ == "__main__":
    main()
