# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Every status area by the name that its users know it by, dark or light, at a scale."""

from harness import desktop, panels, shells, traybars, wayland

DARK = {"ground": "#000000", "text": "#ffffff"}
LIGHT = {"ground": "#f0f0f0", "text": "#202020"}


def _i3bar(dark, scale):
    colours = DARK if dark else LIGHT
    return traybars.I3Screen(background=colours["ground"], text=colours["text"], scale=scale)


def _tint2(dark, scale):
    return traybars.Tint2Screen((DARK if dark else LIGHT)["ground"], scale=scale)


def _polybar(dark, scale):
    return traybars.PolybarScreen(**(DARK if dark else LIGHT), scale=scale)


# The panels of Cinnamon and GNOME are dark under every appearance.
HOSTS = {
    "Xfce": desktop.XfceScreen,
    "LXQt": panels.LxqtScreen,
    "MATE": desktop.MateScreen,
    "Cinnamon": lambda dark, scale: shells.CinnamonScreen(scale=scale),
    "Plasma": shells.PlasmaScreen,
    "GNOME": lambda dark, scale: shells.GnomeScreen(scale=scale),
    "Waybar": wayland.WaybarScreen,
    "swaybar": wayland.SwaybarScreen,
    "i3bar": _i3bar,
    "tint2": _tint2,
    "polybar": _polybar,
}


def session_of(host, dark, scale):
    """The host in a session that has not been booted yet."""
    return HOSTS[host](dark=dark, scale=scale)
