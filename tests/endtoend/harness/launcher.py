#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Starts a program, or one of its actions, by its desktop entry as application menus do.

    launcher.py ENTRY [ACTION]
"""

import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio  # noqa: E402


def main():
    entry = Gio.DesktopAppInfo.new_from_filename(sys.argv[1])
    for action in sys.argv[2:]:
        if action not in entry.list_actions():
            raise SystemExit(f"{sys.argv[1]} has no action {action!r}")
        entry.launch_action(action, None)
        return
    entry.launch([], None)


if __name__ == "__main__":
    main()
