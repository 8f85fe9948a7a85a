# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Whole desktop shells, which bring their own window manager or want much of a session around."""

import glob
import json
import shutil

from harness.desktop import BareScreen
from harness.picture import Box
from harness.processes import eventually
from harness.session import Screen

APPINDICATOR = "ubuntu-appindicators@ubuntu.com"
# A sign of the item's label that draws nothing: it makes the text another one than before.
UNSEEN_MARK = "\u200e"
# Where a shell looks for things that a machine without a desktop does not have.
SHELL = {"GSETTINGS_BACKEND": "keyfile"}


# A panel with nothing that moves by itself, such as a clock.
CINNAMON_APPLETS = ("['panel1:right:0:systray@cinnamon.org:0',"
                    " 'panel1:right:1:xapp-status@cinnamon.org:1']")
PLASMA_PANEL = """[Containments][1]
activityId=
formfactor=2
immutability=1
lastScreen=0
location=4
plugin=org.kde.panel
wallpaperplugin=org.kde.image

[Containments][1][Applets][2]
immutability=1
plugin=org.kde.plasma.panelspacer

[Containments][1][Applets][3]
immutability=1
plugin=org.kde.plasma.systemtray

[Containments][1][Applets][3][Configuration]
SystrayContainmentId=4

[Containments][1][General]
AppletOrder=2;3

[Containments][4]
activityId=
formfactor=2
immutability=1
lastScreen=0
location=4
plugin=org.kde.plasma.private.systemtray
wallpaperplugin=org.kde.image

[Containments][4][General]
knownItems=org.kde.plasma.keyboardlayout
"""


class Shell:
    """What the shells have in common. They want a system bus to talk to: the session's own, on
    which they find nobody."""

    def start_shell(self, command, environment=None):
        system = {"DBUS_SYSTEM_BUS_ADDRESS": self.environment["DBUS_SESSION_BUS_ADDRESS"]}
        return self.start(command, system | SHELL | (environment or {}))

    def store_gsettings(self, groups):
        """Stores values, in the words of GVariant, by their path and key."""
        lines = []
        for path, values in groups.items():
            lines.append(f"[{path}]")
            lines += [f"{key}={value}" for key, value in values.items()]
        self.write("config/glib-2.0/settings/keyfile", "\n".join(lines) + "\n")


def xapp_watcher():
    """The status area of Linux Mint's desktops, a process that their sessions start."""
    places = ("/usr/libexec/xapps/sn-watcher", "/usr/lib/*/xapps")
    return next(path for place in places for path in glob.glob(f"{place}/xapp-sn-watcher"))


class CinnamonScreen(Shell, Screen):
    size = (1024, 600)
    desktop = "X-Cinnamon"

    def boot(self):
        super().boot()
        self.store_gsettings({
            "org/cinnamon": {"enabled-applets": CINNAMON_APPLETS, "desktop-effects": "false",
                             "startup-animation": "false"},
            "org/cinnamon/desktop/interface": {"scaling-factor": f"uint32 {self.scale}"},
        })
        self.start_shell(["cinnamon", "--sync"])
        self.start_shell([xapp_watcher()])
        eventually(self.bus.has_host, "the panel offers a status area")

    def windows_of(self, process_id):
        return self.run("xdotool", "search", "--onlyvisible", "--pid", str(process_id)).split()

    def _start_display(self):
        super()._start_display()
        self.environment |= self._screen | {"XDG_SESSION_TYPE": "x11"}


class PlasmaScreen(Shell, BareScreen):
    size = (1024, 600)
    desktop = "KDE"
    daemon = "kded6" if shutil.which("kded6") else "kded5"
    environment_of_plasma = {
        "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": daemon[-1],
        "QT_QUICK_BACKEND": "software", "QT_QPA_PLATFORM": "xcb"}

    def __init__(self, dark=False, **options):
        super().__init__(**options)
        self._dark = dark

    def boot(self):
        super().boot()
        theme = "breeze-dark" if self._dark else "breeze-light"
        self.write("config/plasmarc", f"[Theme]\nname={theme}\n")
        self.write("config/plasma-org.kde.plasma.desktop-appletsrc", PLASMA_PANEL)
        environment = dict(self.environment_of_plasma)
        if self.scale != 1:
            # As a session that scales does.
            environment["PLASMA_USE_QT_SCALING"] = "1"
        self.start_shell([self.daemon], environment)
        self.start_shell(["plasmashell", "--no-respawn"], environment)
        eventually(self.bus.has_host, "the panel offers a status area")


class GnomeScreen(Shell, Screen):
    """The shell in a window that fills the X screen: its pointer is a real one."""

    size = (1024, 600)
    desktop = "GNOME"

    def boot(self):
        super().boot()
        self.store_gsettings({
            "org/gnome/shell": {"enabled-extensions": f"['{APPINDICATOR}']",
                                "welcome-dialog-last-shown-version": "'99'"},
            "org/gnome/desktop/interface": {"enable-animations": "false"},
            # Of the screen that cannot be locked, and others about a session without a login.
            "org/gnome/desktop/notifications": {"show-banners": "false"},
            # Else it tells in a message that the screen cannot be locked.
            "org/gnome/desktop/lockdown": {"disable-lock-screen": "true"},
        })
        width, height = (length * self.scale for length in self.size)
        self.start_shell(
            ["gnome-shell", "--nested", "--wayland", "--no-x11", "--unsafe-mode"],
            self._screen | {"MUTTER_DEBUG_DUMMY_MODE_SPECS": f"{width}x{height}",
                            "MUTTER_DEBUG_DUMMY_MONITOR_SCALES": str(self.scale),
                            "GNOME_SHELL_SESSION_MODE": "user",
                            "XDG_SESSION_TYPE": "wayland"})
        eventually(self.bus.has_host, "the shell offers a status area")
        # It begins with its overview.
        eventually(lambda: self._evaluate(
            "!Main.layoutManager._startingUp && (Main.overview.hide(), !Main.overview.visible)"),
            "the desktop is shown")
        self.environment |= {"WAYLAND_DISPLAY": "wayland-0", "XDG_SESSION_TYPE": "wayland"}

    def windows_of(self, process_id):
        """The titles of a process' windows."""
        return self._evaluate("global.get_window_actors().map(actor => actor.meta_window).filter("
                              f"window => window.get_pid() == {process_id})"
                              ".map(window => window.get_title())")

    def item_label(self):
        """What the shell's text beside the glyph of the only item shows; None without one."""
        text = self._evaluate(
            "Object.entries(Main.panel.statusArea).filter(([role, button]) =>"
            " role.startsWith('appindicator-') && button._label?.is_mapped()"
            ").map(([role, button]) => button._label.get_text())[0] ?? null")
        return text and text.replace(UNSEEN_MARK, "")

    def _evaluate(self, script):
        """What a script answers that the shell runs."""
        done, answer = self.bus.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell",
                                     "Eval", "(s)", script)
        if not done:
            raise AssertionError(answer)
        return json.loads(answer) if answer else None

    def item_box(self, before):
        # Within what the shell has for it: other indicators come and go beside it.
        place = self._evaluate(
            "Object.entries(Main.panel.statusArea).filter(([role, button]) => button.is_mapped()"
            " && button.has_allocation() && role.startsWith('appindicator-')).map(([role, button]) =>"
            " [...button.get_transformed_position(), ...button.get_transformed_size()])[0] ?? null")
        if not place:
            return None
        left, top, width, height = map(round, place)
        return before.difference(self.picture(), within=Box(left, top, left + width, top + height))
