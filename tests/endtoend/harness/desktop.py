# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Private desktops on X: a window manager, and a panel, or none."""

import os
import re

from harness.picture import Box
from harness.processes import eventually
from harness.session import Screen

XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="{dark}"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p={position};x=0;y=0"/>
      <property name="mode" type="uint" value="{mode}"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="30"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="{plugin}">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""


class BareScreen(Screen):
    """An X session with a window manager and nothing else."""

    def __init__(self, user=None, scale=1, compositing=False):
        super().__init__(user, scale)
        self._compositing = compositing

    def boot(self):
        super().boot()
        self.start(["openbox", "--sm-disable"])
        eventually(lambda: b"window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                   "the window manager is there")
        if self._compositing:
            self.start(["picom"])
            eventually(lambda: b'"picom"' in self.all_windows(), "the compositing manager is there")

    def all_windows(self):
        """The tree of all windows, as the X server tells it."""
        return self.run("xwininfo", "-root", "-tree")

    def open_another_program(self):
        """Shows a window of another program, in the middle of the screen, and gives its process."""
        other = self.start(["xmessage", "-center", "-buttons", "Goodbye", "A window like any other"])
        eventually(lambda: self.windows_of(other.pid) or self._named("xmessage"),
                   "the other program's window is open")
        return other

    def button_of_another_program(self):
        """The place of the button that ends it."""
        box = self.box_of(self._named("xmessage")[0])
        return box.left + 25, box.bottom - 18

    def focus_another_program(self):
        """As a window manager does when somebody asks for that window by the keyboard."""
        self.run("xdotool", "windowactivate", self._named("xmessage")[0])

    def focused_window(self):
        return self.run("xdotool", "getwindowfocus").strip()

    def states_of(self, window):
        """What the window manager was told of a window: in which lists it is not, and so on."""
        output = self.run("xprop", "-id", window, "_NET_WM_STATE").decode()
        return set(re.findall(r"_NET_WM_STATE_(\w+)", output))

    def _named(self, name):
        return self.run("xdotool", "search", "--onlyvisible", "--classname", name).split()

    def windows_of(self, process_id):
        """The visible windows of a process."""
        return self.run("xdotool", "search", "--onlyvisible", "--pid", str(process_id)).split()

    def box_of(self, window):
        output = self.run("xwininfo", "-id", window).decode()
        left, top, width, height = (
            int(re.search(rf"{what}: +(-?\d+)", output).group(1))
            for what in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        return Box(left, top, left + width, top + height)

    def _start_display(self):
        super()._start_display()
        self.environment |= self._screen | {"XDG_SESSION_TYPE": "x11"}


class PanelScreen(BareScreen):
    """An X screen with a panel that holds a status area."""

    def __init__(self, user=None, panel=True, **options):
        super().__init__(user, **options)
        self.panel = None
        self._with_panel = panel

    def boot(self):
        super().boot()
        if self._with_panel:
            self.start_panel()

    def start_panel(self):
        self.panel = self.start(self.command())
        eventually(self.bus.has_host, "the panel offers a status area")

    def kill_panel(self):
        """The panel dies without a word."""
        self.end_process(self.panel)

    def command(self):
        raise NotImplementedError


class XfceScreen(PanelScreen):
    desktop = "XFCE"
    # The one that the panel has.
    plugin = "systray"
    panel_box = Box(480, 0, 800, 30)
    # The panel's own numbers for the edges, and for lying or standing there.
    edges = {"top": (6, 0), "bottom": (10, 0), "left": (5, 1), "right": (1, 1)}

    def __init__(self, dark=True, edge="top", **options):
        super().__init__(**options)
        self._dark = "true" if dark else "false"
        self._edge = edge

    def whole_panel(self):
        """The place of the whole panel."""
        windows = self.run("xdotool", "search", "--onlyvisible", "--classname", "xfce4-panel")
        return self.box_of(windows.split()[0])

    def command(self):
        path = "config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml"
        if not os.path.exists(os.path.join(self.folder, path)):
            position, mode = self.edges[self._edge]
            self.write(path, XFCE_PANEL.format(dark=self._dark, position=position, mode=mode,
                                               plugin=self.plugin))
        return ["xfce4-panel", "--disable-wm-check"]


class MateScreen(PanelScreen):
    desktop = "MATE"

    def __init__(self, dark=False, **options):
        super().__init__(**options)
        # Its applets are processes that the bus starts.
        self.environment["GTK_THEME"] = "Adwaita:dark" if dark else "Adwaita"

    def command(self):
        return ["mate-panel"]

    def item_box(self, before):
        # The clock may have moved on: the notification area's own window tells.
        tree = self.run("xwininfo", "-root", "-tree").decode()
        area = r'"notification-area-applet": .*?(\d+)x(\d+)\+0\+0 +\+(\d+)\+(\d+)'
        found = re.search(area, tree)
        if found is None:
            return None
        width, height, left, top = map(int, found.groups())
        return Box(left, top, left + width, top + height)
