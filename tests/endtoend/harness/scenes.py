# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Scenes of the program in a real panel for the eye, light and dark, at one and at two device pixels
a pixel: what the commands that picture it share."""

import contextlib
import os
import subprocess
import sys

from harness import desktop
from harness.case import AT_START
from harness.dashboard import Dashboard
from harness.picture import Box
from harness.portal import Desktop
from harness.processes import a_moment, eventually
from harness.program import store_settings
from harness.readwindow import TAB
from virtuallaptop import VirtualLaptop

# The ground behind the windows, at the top and at the bottom.
WALLPAPERS = {"Light": ("#b9cbdc", "#7f9bb5"), "Dark": ("#3d5166", "#18222d")}
MARGIN = 12

# The settings of a new user's GNOME and Plasma: the fonts and colours that their own windows have.
INTERFACE = "org.gnome.desktop.interface"
KDE = "org.kde.kdeglobals"
GNOME_LIGHT = ((INTERFACE, "font-name", "'Cantarell 11'"),
               (INTERFACE, "accent-color", "'blue'"))
PLASMA_DARK = ((f"{KDE}.General", "font", "'Noto Sans,10,-1,5,50,0,0,0,0,0'"),
               (f"{KDE}.Colors:Selection", "BackgroundNormal", "'61,174,233'"))
FONTS = "Cantarell", "Noto Sans"


class Desk(desktop.XfceScreen):
    """A panel above a wallpaper, with shadows."""

    def __init__(self, appearance, scale, size):
        super().__init__(dark=appearance == "Dark", scale=scale)
        self.size = size
        self._wallpaper = WALLPAPERS[appearance]

    def boot(self):
        super().boot()
        above, below = self._wallpaper
        self.run("hsetroot", "-add", below, "-add", above, "-gradient", "180")
        # It takes the wallpaper up when it starts.
        self.start(["picom", "--no-use-damage"])
        eventually(lambda: b'"picom"' in self.all_windows(), "the compositing manager is there")
        self.settle()

    def settle(self):
        """A picture of the screen once a second has changed nothing."""
        last = self.picture()

        def is_still():
            nonlocal last
            a_moment()
            before, last = last, self.picture()
            return before.difference(last) is None
        eventually(is_still, "the screen stands still")
        return last


class Player:
    """One start of the program, whose pictures go into a folder under one prefix."""

    # Of the screen, in pixels.
    size = 700, 520

    def __init__(self, session, laptop, folder, prefix):
        self._session = session
        self._folder = folder
        self._prefix = prefix
        self._number = 0
        self.scale = session.scale
        self.laptop = laptop
        self.dashboard = Dashboard(session, laptop, AT_START,
                                   {"QT_SCALE_FACTOR": str(session.scale)})
        # The window that is pictured and worked.
        self.window = self.dashboard

    def take(self, scene, box=None):
        """A picture of all that is open, or of a part of the screen, and where it is."""
        last = self._session.settle()
        self._number += 1
        path = os.path.join(self._folder, f"{self._prefix}-{self._number:02}-{scene}.png")
        last.save(path, box or self._frame(last), 1)
        print(path, flush=True)
        return path

    def _frame(self, picture):
        boxes = [self._session.box_of(window) for window in self.dashboard.windows()]
        return Box(max(0, min(box.left for box in boxes) - MARGIN), 0, picture.width,
                   min(picture.height, max(box.bottom for box in boxes) + MARGIN))

    def place(self, pattern, role=None):
        scale = self.scale
        return tuple(scale * each for each in self.window.find(pattern, role).box.centre)

    def point(self, pattern, role=None):
        self._session.point(self.place(pattern, role))

    def leave(self):
        self._session.point((5, self.scale * (self.size[1] - 20)))

    def click(self, pattern, role=None):
        self._session.click(self.place(pattern, role))

    def select(self, entry):
        self.click(entry, TAB)
        eventually(lambda: self.window.selected() == [entry], f"{entry} is selected")
        self.leave()


def played(kind, folder, appearance, scale, scenes, settings=()):
    """Plays scenes with a player of this kind, on a desktop with these settings, and gives what they
    yield."""
    with VirtualLaptop() as laptop, Desk(appearance, scale, kind.size) as session, \
            contextlib.closing(Desktop(session, appearance.lower())) as portal:
        for setting in settings:
            portal.sets(*setting)
        store_settings(session, appColor=appearance)
        player = kind(session, laptop, folder, f"{appearance.lower()}-{scale}x")
        return list(scenes(player) or [])


def compose(kind, folder, path, best, columns):
    """The best pictures side by side: light as in GNOME, and dark as in Plasma."""
    for font in FONTS:
        if font not in subprocess.check_output(["fc-match", font], text=True):
            raise SystemExit(f"There is no font {font}; scripts/pictures brings it.")
    pictures = played(kind, folder, "Light", 2, best, GNOME_LIGHT)
    pictures += played(kind, folder, "Dark", 2, best, PLASMA_DARK)
    subprocess.run(["montage", *pictures, "-tile", f"{columns}x", "-geometry", "+0+0", "-strip",
                    path], check=True)


def main(usage, kind, all_scenes, best, columns):
    """A command with a folder, and with a file for the best alone, composed."""
    if len(sys.argv) not in (2, 3):
        print(usage, file=sys.stderr)
        return 2
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    if len(sys.argv) == 3:
        compose(kind, folder, sys.argv[2], best, columns)
        return 0
    for appearance in WALLPAPERS:
        for scale in (1, 2):
            played(kind, folder, appearance, scale, all_scenes)
    return 0
