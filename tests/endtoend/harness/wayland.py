# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Wayland sessions with the bars of wlroots' compositors."""

import json
import os
import re

from harness.picture import Box
from harness.processes import eventually
from harness.session import Screen, Session
from harness.xwindows import close_window

GROUND = "#336699"
BELOW_BARS = 40
SWAY = """output X11-1 resolution {width}x{height} scale {scale}
output * bg {desktop} solid_color
xwayland disable
"""
WAYBAR = '{{"layer": "top", "position": "{edge}", "height": 30, "modules-{place}": ["tray"]}}'
WAYBAR_STYLE = "window#waybar {{ background: {ground}; color: {text}; }}"
SWAYBAR = """bar {{
    position top
    tray_output *
    font DejaVu Sans 10
    status_command while echo; do sleep 1000; done
    colors {{
        background {ground}
        statusline {text}
    }}
}}
"""
DARK = {"ground": "#303338", "text": "#ffffff"}
LIGHT = {"ground": "#f2f2f2", "text": "#202020"}


class SwayScreen(Screen):
    """A compositor that shows itself, and takes the pointer, in a window that fills the X screen.
    It does not run as root."""

    desktop = "sway"
    bar = ""
    edge = "top"
    # Where nothing lies on it.
    desktop_color = GROUND

    def __init__(self, scale=1, dark=True):
        super().__init__("nobody" if os.geteuid() == 0 else None, scale)
        self.colours = DARK if dark else LIGHT

    def windows_of(self, process_id):
        """The titles of a process' windows. The compositor tells nothing of what is in the layers:
        whatever else lies on the bare desktop is taken for the one that the test is about."""
        windows = [node["name"] for node in self._nodes() if node.get("pid") == process_id]
        return windows or ["in a layer"] * self._is_covered()

    def box_of(self, title):
        """Where the window of this title shows what is its own; None for none."""
        for node in self._nodes():
            if node["name"] == title and node.get("pid"):
                inner, outer = node["window_rect"], node["rect"]
                left, top = outer["x"] + inner["x"], outer["y"] + inner["y"]
                return Box(left, top, left + inner["width"], top + inner["height"])
        return None

    def _is_covered(self):
        picture = self.picture()
        bare = bytes.fromhex(self.desktop_color[1:]) * picture.width
        return any(picture.row(y) != bare for y in range(BELOW_BARS * self.scale, picture.height))

    def _nodes(self):
        def below(tree):
            yield tree
            for child in tree["nodes"] + tree["floating_nodes"]:
                yield from below(child)
        return below(json.loads(self.run("swaymsg", "-t", "get_tree")))

    def _start_display(self):
        super()._start_display()
        # The compositor scales what it shows; nobody else is to.
        for variable in ("GDK_SCALE", "QT_SCALE_FACTOR"):
            self.environment.pop(variable, None)
        self.environment |= {
            "SWAYSOCK": os.path.join(self.folder, "run", "sway.sock"),
            "XDG_SESSION_TYPE": "wayland"}
        width, height = (length * self.scale for length in self.size)
        # It knows the names of requests to close a window only if they are there before it.
        self._on_screen("xprop", "-root", "-f", "WM_PROTOCOLS", "32a", "-set", "WM_PROTOCOLS",
                        "WM_DELETE_WINDOW")
        configuration = SWAY.format(desktop=GROUND, width=width, height=height, scale=self.scale)
        self.start(
            ["sway", "-c", self.write("config/sway", configuration + self.bar)],
            {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"} | self._screen)
        self.environment["WAYLAND_DISPLAY"] = eventually(self._display, "the compositor is there")
        eventually(lambda: self.run("swaymsg", "-t", "get_outputs"), "the compositor answers")

    def _display(self):
        names = os.listdir(self.environment["XDG_RUNTIME_DIR"])
        return next((name for name in names if name in ("wayland-0", "wayland-1")), None)

    def _bar_is_drawn(self):
        ground = tuple(bytes.fromhex(self.colours["ground"][1:]))
        aside = self.size[0] // 4 * self.scale
        row = (8 if self.edge == "top" else self.size[1] - 8) * self.scale
        eventually(lambda: self.picture().pixel(aside, row) == ground,
                   "the bar is drawn")


class TwoScreens:
    """Mixed into a session: a second screen to the right of the first, each in a window of the
    compositor's. Removed and added again, it has another name."""

    size = (1600, 600)
    first, second = Box(0, 0, 800, 600), Box(800, 0, 1600, 600)
    _count = 1

    def _start_display(self):
        super()._start_display()
        self._set_up("X11-1", self.first)
        self.add_second()

    def add_second(self):
        self._count += 1
        self.run("swaymsg", "create_output")
        self._set_up(self.name_of_second(), self.second)
        self._on_screen("xdotool", "windowmove", self._newest_window(), str(self.second.left), "0")

    def remove_second(self):
        close_window(self._screen["DISPLAY"], int(self._newest_window(), 16))
        eventually(lambda: not self.output(self.name_of_second()), "the screen is gone")

    def name_of_second(self):
        return f"X11-{self._count}"

    def scale_first(self, scale):
        self.run("swaymsg", "output", "X11-1", "scale", scale)

    def output(self, name):
        """Where a screen is on the desktop; None for none."""
        for output in json.loads(self.run("swaymsg", "-t", "get_outputs")):
            if output["name"] == name and output["active"]:
                place = output["rect"]
                return Box(place["x"], place["y"], place["x"] + place["width"],
                           place["y"] + place["height"])
        return None

    def _set_up(self, name, box):
        self.run("swaymsg", "output", name, "resolution", f"{box.width}x{box.height}",
                 "position", str(box.left), str(box.top))
        eventually(lambda: self.output(name) == box, f"{name} is there")

    def _newest_window(self):
        windows = self._on_screen("xwininfo", "-root", "-children").decode()
        return re.search(r"^ +(0x\w+)", windows[windows.index("children:"):], re.M).group(1)


class WaybarScreen(SwayScreen):
    """Waybar in its usual size, with icons of its default of 16 pixels."""

    def __init__(self, scale=1, dark=True, edge="top", place="right"):
        super().__init__(scale, dark)
        self.edge = edge
        self.settings = WAYBAR.format(edge=edge, place=place)

    def boot(self):
        super().boot()
        style = self.write("config/waybar.css", WAYBAR_STYLE.format(**self.colours))
        self.start(["waybar", "-c", self.write("config/waybar.json", self.settings), "-s", style])
        eventually(self.bus.has_host, "Waybar offers a status area")
        self._bar_is_drawn()


class TwoWaybarScreens(TwoScreens, WaybarScreen):
    """With a bar on each."""


class TwoSwayScreens(TwoScreens, SwayScreen):
    """Without any bar."""


class SwaybarScreen(SwayScreen):
    """The compositor's own bar, which it starts on its first bus: that must be there before it."""

    def _start_display(self):
        """Not yet: see boot."""

    def boot(self):
        super().boot()
        self.bar = SWAYBAR.format(**self.colours)
        super()._start_display()
        eventually(self.bus.has_host, "swaybar offers a status area")
        self._bar_is_drawn()


WESTON = """[core]
idle-time=0
[shell]
panel-position=none
background-color=0xff{desktop}
"""


class Weston:
    """Mixed into a session: a compositor without layers for programs, which draws no title bars."""

    desktop = "weston"
    socket = "wayland-test"

    def _start_weston(self, backend, environment=None):
        self.environment |= {"XDG_SESSION_TYPE": "wayland", "WAYLAND_DISPLAY": self.socket}
        configuration = self.write("config/weston.ini", WESTON.format(desktop=GROUND[1:]))
        self.start(["weston", f"--backend={backend}-backend.so", f"--socket={self.socket}",
                    f"--config={configuration}", "--width=800", "--height=600"], environment)
        eventually(lambda: self.socket in os.listdir(self.environment["XDG_RUNTIME_DIR"]),
                   "the compositor is there")


class WestonSession(Weston, Session):
    """Nobody sees its screen."""

    def _start_display(self):
        self._start_weston("headless")


class WestonScreen(Weston, Screen):
    """In a window that fills the X screen."""

    def _start_display(self):
        super()._start_display()
        self._start_weston("x11", self._screen)
        ground = tuple(bytes.fromhex(GROUND[1:]))
        eventually(lambda: self.picture().pixel(400, 500) == ground, "the desktop is drawn")
