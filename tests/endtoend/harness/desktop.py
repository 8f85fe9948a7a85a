# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Private desktops: a home, a session bus, a screen, and on it a panel, or none."""

import json
import os
import re
import shutil
import signal
import subprocess
import tempfile

from harness import processes
from harness.item import Bus
from harness.picture import Box, Picture
from harness.processes import eventually

# Anybody may speak on it, so that a test run by root can serve a desktop of another user.
BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={folder}/bus</listen>
  <auth>EXTERNAL</auth>
  <standard_session_servicedirs/>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

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
    <property name="plugin-2" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""

SWAY = """output X11-1 resolution {size}
output * bg #336699 solid_color
xwayland disable
"""
WAYBAR = '{"layer": "top", "position": "top", "height": 30, "modules-right": ["tray"]}'
WAYBAR_STYLE = "window#waybar { background: #303338; color: #ffffff; }"


WATCHER = os.path.join(os.path.dirname(__file__), "watcher.py")


class Session:
    """A user's session without a screen: home folders and a session bus. The base of the rest."""

    desktop = ""

    def __init__(self, user=None):
        self.user = user
        self.folder = tempfile.mkdtemp(prefix="ferrin-session-")
        self._processes = []
        self.environment = self._make_environment()
        self.bus_process = None
        self.bus = None

    def boot(self):
        """Starts all that belongs to the session."""
        # What the bus starts on demand has the bus' own environment: the display comes first.
        self._start_display()
        self.bus_process = self._start_bus()
        self.bus = Bus(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def close(self):
        for process in reversed(self._processes):
            processes.end(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    def __enter__(self):
        try:
            self.boot()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def start(self, command, environment=None, **options):
        """Starts a process as the session's user; it ends with the session."""
        process = processes.start(command, self.environment | (environment or {}), self.user,
                                  **options)
        self._processes.append(process)
        return process

    def run(self, *command):
        return processes.run(command, self.environment)

    def write(self, path, text):
        """Writes a file under the session's folder and gives it to the session's user."""
        path = os.path.join(self.folder, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        self._give_away()
        return path

    def _start_display(self):
        pass

    def _make_environment(self):
        kept = {key: os.environ[key] for key in ("PATH", "LANG", "TMPDIR") if key in os.environ}
        kept |= {"LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "1", "GTK_USE_PORTAL": "0",
                 "LIBGL_ALWAYS_SOFTWARE": "1", "XDG_CURRENT_DESKTOP": self.desktop}
        folders = {"HOME": "home", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
                   "XDG_DATA_HOME": "data", "XDG_STATE_HOME": "state", "XDG_RUNTIME_DIR": "run"}
        for variable, name in folders.items():
            kept[variable] = os.path.join(self.folder, name)
            os.mkdir(kept[variable], 0o700)
        self._give_away()
        return kept

    def _give_away(self):
        if self.user is not None:
            for path, _, files in os.walk(self.folder):
                for name in (path, *(os.path.join(path, file) for file in files)):
                    shutil.chown(name, self.user, "nogroup")

    def _start_bus(self):
        configuration = self.write("bus.conf", BUS_CONFIGURATION.format(folder=self.folder))
        process = self.start(
            ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address=1"],
            stdout=subprocess.PIPE, text=True)
        with process.stdout as told:
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = told.readline().strip()
        return process


class Screen(Session):
    """A session with an X server that nobody sees."""

    size = "800x600"

    def __init__(self, user=None):
        super().__init__(user)
        self.server = None
        self._screen = {}

    def picture(self):
        return Picture(self._on_screen("import", "-silent", "-window", "root", "-depth", "8",
                                       "ppm:-"))

    def point(self, place):
        """Moves the real pointer."""
        self._on_screen("xdotool", "mousemove", *map(str, place))

    def click(self, place, button=1):
        """A click of the real pointer."""
        self._on_screen("xdotool", "mousemove", *map(str, place), "click", str(button))

    def press(self, *keys):
        """Presses of real keys, one after the other."""
        self._on_screen("xdotool", "key", *keys)

    def resize(self, width, height):
        """Gives the screen another size, of at most the one that it began with."""
        timings = (30, width, width + 10, width + 20, width + 30,
                   height, height + 10, height + 20, height + 30)
        self._on_screen("xrandr", "--newmode", "other", *map(str, timings))
        self._on_screen("xrandr", "--addmode", "screen", "other")
        self._on_screen("xrandr", "--output", "screen", "--mode", "other")

    def item_box(self, before):
        """Where the item stands, given a picture of the screen without it."""
        return before.difference(self.picture())

    def _on_screen(self, *command):
        return processes.run(command, self.environment | self._screen)

    def _start_display(self):
        readable, told = os.pipe()
        # Without a reset when its last client leaves, which would take the next one with it.
        self.server = self.start(
            ["Xvfb", "-displayfd", str(told), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[told])
        os.close(told)
        with os.fdopen(readable) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("the X server did not start")
        self._screen = {"DISPLAY": f":{number}"}


class BareScreen(Screen):
    """An X session with a window manager and nothing else."""

    def __init__(self, user=None, compositing=False):
        super().__init__(user)
        self._compositing = compositing

    def boot(self):
        super().boot()
        self.start(["openbox", "--sm-disable"])
        eventually(lambda: b"window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                   "the window manager is there")
        if self._compositing:
            self.start(["picom"])
            eventually(lambda: b'"picom"' in self.all_windows(), "the compositing manager is there")

    def start_watcher(self):
        """A status area in the shape of a process."""
        watcher = self.start([WATCHER])
        eventually(self.bus.has_host, "there is a status area")
        return watcher

    def end_process(self, process):
        """A process of the session dies without a word."""
        processes.end(process, signal.SIGKILL)
        self._processes.remove(process)

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
        told = self.run("xprop", "-id", window, "_NET_WM_STATE").decode()
        return set(re.findall(r"_NET_WM_STATE_(\w+)", told))

    def _named(self, name):
        return self.run("xdotool", "search", "--onlyvisible", "--classname", name).split()

    def windows_of(self, process_id):
        """The visible windows of a process."""
        return self.run("xdotool", "search", "--onlyvisible", "--pid", str(process_id)).split()

    def box_of(self, window):
        told = self.run("xwininfo", "-id", window).decode()
        left, top, width, height = (
            int(re.search(rf"{what}: +(-?\d+)", told).group(1))
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
            self.write(path, XFCE_PANEL.format(dark=self._dark, position=position, mode=mode))
        return ["xfce4-panel", "--disable-wm-check"]


class MateScreen(PanelScreen):
    desktop = "MATE"

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


class WaybarScreen(Screen):
    """A Wayland session with Waybar: the compositor shows itself, and takes the pointer, in a
    window that fills the X screen. It does not run as root."""

    desktop = "sway"

    def __init__(self):
        super().__init__("nobody" if os.geteuid() == 0 else None)

    def boot(self):
        super().boot()
        self.start(["waybar", "-c", self.write("config/waybar.json", WAYBAR),
                    "-s", self.write("config/waybar.css", WAYBAR_STYLE)])
        eventually(self.bus.has_host, "Waybar offers a status area")
        eventually(lambda: self.picture().pixel(400, 15) == (0x30, 0x33, 0x38), "Waybar is drawn")

    def windows_of(self, process_id):
        """The titles of a process' windows."""
        return [node["name"] for node in _nodes(json.loads(self.run("swaymsg", "-t", "get_tree")))
                if node.get("pid") == process_id]

    def _start_display(self):
        super()._start_display()
        self.environment |= {
            "SWAYSOCK": os.path.join(self.folder, "run", "sway.sock"),
            "XDG_SESSION_TYPE": "wayland"}
        self.start(
            ["sway", "-c", self.write("config/sway", SWAY.format(size=self.size))],
            {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"} | self._screen)
        self.environment["WAYLAND_DISPLAY"] = eventually(self._display, "the compositor is there")
        eventually(lambda: self.run("swaymsg", "-t", "get_outputs"), "the compositor answers")

    def _display(self):
        names = os.listdir(self.environment["XDG_RUNTIME_DIR"])
        return next((name for name in names if name in ("wayland-0", "wayland-1")), None)


def _nodes(tree):
    yield tree
    for child in tree["nodes"] + tree["floating_nodes"]:
        yield from _nodes(child)
