# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Waybar under another compositor of the same make, which stacks windows and tells of none."""

import re

from harness.processes import eventually
from harness.session import Screen
from harness.wayland import WaybarScreen

SETTINGS = "<labwc_config><core><xwayland>no</xwayland></core></labwc_config>\n"


class LabwcWaybarScreen(WaybarScreen):
    desktop = "labwc:wlroots"
    desktop_color = "#000000"

    def _start_display(self):
        Screen._start_display(self)
        for variable in ("GDK_SCALE", "QT_SCALE_FACTOR"):
            self.environment.pop(variable, None)
        self.environment["XDG_SESSION_TYPE"] = "wayland"
        self.write("config/labwc/rc.xml", SETTINGS)
        self.start(["labwc"], {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"} | self._screen)
        self.environment["WAYLAND_DISPLAY"] = eventually(self._display, "the compositor is there")
        window = eventually(self._window, "its window is there")
        self._on_screen("xdotool", "windowmove", window, "0", "0", "windowsize", window,
                        *(str(length) for length in self.size))

    def _window(self):
        """The compositor's own, which has no name."""
        windows = self._on_screen("xwininfo", "-root", "-children").decode()
        found = re.search(r"^ +(0x\w+)", windows, re.M)
        return found and found.group(1)

    def windows_of(self, process_id):
        """Something lies on the bare desktop; whose it is, nobody tells."""
        return ["a window"] * self._is_covered()
