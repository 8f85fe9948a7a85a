# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Bars that know only the older tray, into which a program docks a window of its own."""

import re

from harness.desktop import BareScreen
from harness.picture import Box
from harness.processes import eventually
from harness.session import Screen
from harness.xwindows import has_owner

I3 = """# i3 config file (v4)
font pango:DejaVu Sans {points}
bar {{
    position {position}
    i3bar_command true
    tray_output screen
    colors {{
        background {background}
        statusline {text}
    }}
    status_command while echo; do sleep 1000; done
}}
"""
TINT2 = """rounded = 0
border_width = 0
background_color = {ground} 100
panel_items = FS
panel_size = 100% {height}
panel_position = top center horizontal
panel_background_id = 1
systray_padding = 2 2 4
systray_icon_size = 0
systray_monitor = primary
"""
POLYBAR = """[bar/b]
width = 100%
height = {height}
modules-right = d
tray-position = right
tray-maxsize = {height}
background = {ground}
foreground = {text}
[module/d]
type = custom/text
content = " "
"""
LXPANEL = """Global {
    edge=top
    margin=0
    widthtype=percent
    width=100
    height=26
    transparent=0
    setdocktype=1
    setpartialstrut=1
    iconsize=24
}
Plugin {
    type=space
    expand=1
}
Plugin {
    type=tray
}
"""
QTILE = """from libqtile import bar, layout, widget
from libqtile.config import Group, Screen
items = [widget.Spacer(), widget.{widget}(), widget.TextBox("|")]
screens = [Screen(top=bar.Bar(items, {height}))]
layouts = [layout.Floating()]
groups = [Group("1")]
keys = []
"""
QTILE_HEIGHT = 24


class TrayBar(BareScreen):
    """What the bars have in common: an owner of the tray's selection, and no other status area."""

    bar = None
    bar_class = None

    def boot(self):
        super().boot()
        self.start_bar()

    def start_bar(self):
        self.bar = self.start(self.command())
        eventually(self.has_tray, "the bar offers a tray")

    def restart_bar(self):
        """The bar dies without a word, and the next one comes."""
        self.end_process(self.bar)
        eventually(lambda: not self.has_tray(), "the tray is gone")
        self.start_bar()

    def has_tray(self):
        return has_owner(self.environment["DISPLAY"], b"_NET_SYSTEM_TRAY_S0")

    def bar_box(self):
        windows = self.run("xdotool", "search", "--onlyvisible", "--class", self.bar_class)
        return self.box_of(windows.split()[0])

    def docked_window(self, process_id):
        """The window that a process has in the tray, or None."""
        found = self.run("xdotool", "search", "--all", "--onlyvisible", "--pid", str(process_id),
                         "--classname", "^item$").split()
        return found[0] if found else None

    def title_of(self, window):
        output = self.run("xprop", "-id", window, "_NET_WM_NAME").decode()
        title = re.search(r'= "(.*)"', output)
        return title and title.group(1)

    def command(self):
        raise NotImplementedError


class I3Screen(TrayBar):
    """i3 is the window manager, and knows how its bar is to be."""

    desktop = "i3"
    bar_class = "i3bar"

    def __init__(self, position="top", background="#000000", text="#ffffff", **options):
        super().__init__(**options)
        self._position = position
        self._configure(background, text)

    def boot(self):
        Screen.boot(self)
        self.start(["i3", "-c", self.configuration])
        eventually(lambda: b"I3_SOCKET_PATH(" in self.run("xprop", "-root", "I3_SOCKET_PATH"),
                   "the window manager is there")
        self.start_bar()

    def recolour(self, background, text):
        """The user changes the bar's colours and has the configuration read again."""
        self._configure(background, text)
        self.run("i3-msg", "reload")

    def _configure(self, background, text):
        self.configuration = self.write("config/i3", I3.format(
            position=self._position, background=background, text=text,
            points=10 * self.scale))

    def command(self):
        return ["i3bar", "--bar_id=bar-0"]


class Tint2Screen(TrayBar):
    bar_class = "Tint2"

    def __init__(self, ground="#000000", **options):
        super().__init__(**options)
        self._configuration = TINT2.format(ground=ground, height=30 * self.scale)

    def command(self):
        return ["tint2", "-c", self.write("config/tint2rc", self._configuration)]


class PolybarScreen(TrayBar):
    bar_class = "Polybar"

    def __init__(self, ground="#333333", text="#ffffff", **options):
        super().__init__(**options)
        self._configuration = POLYBAR.format(ground=ground, text=text, height=28 * self.scale)

    def command(self):
        return ["polybar", "-c", self.write("config/polybar.ini", self._configuration)]


class TrayerScreen(TrayBar):
    bar_class = "trayer"

    def command(self):
        return ["trayer", "--edge", "top", "--align", "right", "--SetDockType", "true",
                "--expand", "true", "--width", "10", "--widthtype", "percent",
                "--height", "24", "--heighttype", "pixel", "--tint", "0x202020",
                "--transparent", "true", "--alpha", "0"]


class StalonetrayScreen(TrayBar):
    bar_class = "stalonetray"

    def command(self):
        return ["stalonetray", "--geometry", "2x1-0+0", "--background", "#202020",
                "--icon-size", "24", "--window-type", "dock"]


class LxpanelScreen(TrayBar):
    desktop = "LXDE"
    bar_class = "panel"

    def command(self):
        self.write("config/lxpanel/default/config", "[Command]\n")
        self.write("config/lxpanel/default/panels/panel", LXPANEL)
        return ["lxpanel", "--profile", "default"]


class IcewmScreen(TrayBar):
    """Window manager and bar are one."""

    desktop = "ICEWM"

    def boot(self):
        Screen.boot(self)
        self.start_bar()

    def command(self):
        return ["icewm"]

    def bar_box(self):
        tree = self.all_windows().decode()
        window = re.search(r"(0x[0-9a-f]+) \"TaskBar\"", tree).group(1)
        return self.box_of(window)


class QtileTrayScreen(TrayBar):
    """The bar of a window manager that has either kind of status area."""

    desktop = "qtile"
    widget = "Systray"

    def boot(self):
        Screen.boot(self)
        self.start_bar()

    def command(self):
        return ["qtile", "start", "-c",
                self.write("config/qtile/config.py", QTILE.format(
                    widget=self.widget, height=QTILE_HEIGHT))]

    def bar_box(self):
        """The bar's window has no name."""
        return Box(0, 0, self.size[0], QTILE_HEIGHT)
