# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Plasma on Wayland: its compositor in a window that fills the X screen, so that its pointer is a real
one."""

import glob
import os

from harness.processes import eventually
from harness.session import Screen
from harness.shells import PLASMA_PANEL, PlasmaScreen, Shell

SOCKET = "wayland-plasma"
ACTIVITIES = "org.kde.ActivityManager"
PANEL_TOP = 545


class PlasmaWaylandScreen(Shell, Screen):
    size = (1024, 600)
    desktop = "KDE"

    def boot(self):
        super().boot()
        self.write("config/plasmarc", "[Theme]\nname=breeze-light\n")
        self.write("config/plasma-org.kde.plasma.desktop-appletsrc", PLASMA_PANEL)
        width, height = map(str, self.size)
        environment = PlasmaScreen.environment_of_plasma | {"XDG_SESSION_TYPE": "wayland"}
        self.start_shell(
            ["kwin_wayland", "--x11-display", self._screen["DISPLAY"], "--width", width,
             "--height", height, "--no-lockscreen", "--no-global-shortcuts", "--socket", SOCKET],
            # Qt's software renderer is not for compositors: they have their own.
            environment | self._screen | {"KWIN_COMPOSE": "Q"})
        eventually(lambda: SOCKET in os.listdir(self.environment["XDG_RUNTIME_DIR"]),
                   "the compositor is there")
        self.environment |= {"WAYLAND_DISPLAY": SOCKET, "XDG_SESSION_TYPE": "wayland"}
        environment["QT_QPA_PLATFORM"] = "wayland"
        # The bus would start it without a display.
        self.start_shell(glob.glob("/usr/lib/*/libexec/kactivitymanagerd"), environment)
        eventually(lambda: self.bus.owner(ACTIVITIES), "the activities' service is there")
        self.start_shell([PlasmaScreen.daemon], environment)
        self.start_shell(["plasmashell", "--no-respawn"], environment)
        eventually(self.bus.has_host, "the panel offers a status area")
        eventually(lambda: set(self.picture().row(self.size[1] - 20)) != {0}, "the panel is drawn")

    def windows_of(self, process_id):
        """Something lies on the bare desktop; whose it is, nobody tells."""
        picture = self.picture()
        return ["a window"] * any(any(picture.row(y)) for y in range(PANEL_TOP))
