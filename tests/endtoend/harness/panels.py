# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Panels beside those that most tests use."""

from harness.desktop import PanelScreen
from harness.processes import eventually
from harness.traybars import QtileTrayScreen

LXQT_PANEL = """panels=panel1
[panel1]
alignment=-1
desktop=0
iconSize=22
lineCount=1
lockPanel=false
panelSize=32
plugins=statusnotifier
position=Top
width=100
width-percent=true
[statusnotifier]
alignment=Right
type=statusnotifier
"""


class LxqtScreen(PanelScreen):
    desktop = "LXQt"

    def __init__(self, dark=True, **options):
        super().__init__(**options)
        self._theme = "dark" if dark else "light"

    def command(self):
        self.write("config/lxqt/lxqt.conf", f"theme={self._theme}\n")
        return ["lxqt-panel", "-c", self.write("config/lxqt/panel.conf", LXQT_PANEL)]


class QtileScreen(QtileTrayScreen):
    """With its own status area in place of a tray."""

    widget = "StatusNotifier"

    def start_bar(self):
        self.bar = self.start(self.command())
        eventually(self.bus.has_host, "the bar offers a status area")
