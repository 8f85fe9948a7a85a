#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A screen reader without a voice: it answers each line of its input with one line of JSON.

    tree PROCESS              what the program of that number shows, or null
    press PROCESS [INDEX...]  whether the object on that path of children could be pressed, and was
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def application(process):
    """The root of a program's objects, always read anew, or None."""
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    for number in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(number)
        if child is not None and child.get_process_id() == process:
            child.set_cache_mask(Atspi.Cache.NONE)
            return child
    return None


def described(accessible):
    box = accessible.get_extents(Atspi.CoordType.SCREEN)
    children = (accessible.get_child_at_index(number)
                for number in range(accessible.get_child_count()))
    return {
        "role": accessible.get_role_name(),
        "name": accessible.get_name(),
        "description": accessible.get_description(),
        "states": sorted(state.value_nick for state in accessible.get_state_set().get_states()),
        "box": [box.x, box.y, box.x + box.width, box.y + box.height],
        "children": [described(child) for child in children if child is not None],
    }


def answer(command, process, *path):
    accessible = application(int(process))
    if accessible is None or command == "tree":
        return accessible and described(accessible)
    for number in path:
        accessible = accessible.get_child_at_index(int(number))
    actions = map(accessible.get_action_name, range(accessible.get_n_actions()))
    return any(name == "Press" and accessible.do_action(number)
               for number, name in enumerate(actions))


def main():
    Atspi.init()
    for line in sys.stdin:
        # What has been told since the last question goes first.
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            said = answer(*line.split())
        except GLib.Error:
            # An object went away in the middle.
            said = None
        print(json.dumps(said), flush=True)


if __name__ == "__main__":
    main()
