# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What a session does with the autostart entries when its user logs in."""

import os
import shutil

import gi

gi.require_version("GLib", "2.0")
from gi.repository import GLib  # noqa: E402

GROUP = "Desktop Entry"
ENTRY = "autostart/org.ferrin.Ferrin.desktop"


def entry_path(session):
    """The program's entry among those of the session's user."""
    return os.path.join(session.environment["XDG_CONFIG_HOME"], ENTRY)


def write_entry(session, **keys):
    """Puts an entry of the program's name there, as others than the program would."""
    lines = [f"[{GROUP}]", "Type=Application", "Name=Ferrin"]
    lines += [f"{key.replace('_', '-')}={value}" for key, value in keys.items()]
    session.write(os.path.join("config", ENTRY), "\n".join(lines) + "\n")


def read_entry(session):
    """All keys of the entry with their texts, or None where there is none."""
    if not os.path.exists(entry_path(session)):
        return None
    file = _load(entry_path(session))
    return {key: file.get_string(GROUP, key) for key in file.get_keys(GROUP)[0]}


def command_at_login(session):
    """What the session runs for the entry at its next start, or None."""
    if not os.path.exists(entry_path(session)):
        return None
    file = _load(entry_path(session))
    if _flag(file, "Hidden", False) or not _flag(file, "X-GNOME-Autostart-enabled", True):
        return None
    if not _is_for(file, session.desktop) or not _is_there(file, "TryExec"):
        return None
    # Without files to open the field codes stand for nothing.
    words = GLib.shell_parse_argv(file.get_string(GROUP, "Exec"))[1]
    return [word.replace("%%", "%") for word in words
            if not (len(word) == 2 and word[0] == "%" and word != "%%")]


def _load(path):
    file = GLib.KeyFile()
    file.load_from_file(path, GLib.KeyFileFlags.NONE)
    return file


def _has(file, key):
    return key in file.get_keys(GROUP)[0]


def _flag(file, key, otherwise):
    return file.get_boolean(GROUP, key) if _has(file, key) else otherwise


def _is_for(file, desktop):
    if _has(file, "OnlyShowIn") and desktop not in file.get_string_list(GROUP, "OnlyShowIn"):
        return False
    return not _has(file, "NotShowIn") or desktop not in file.get_string_list(GROUP, "NotShowIn")


def _is_there(file, key):
    return not _has(file, key) or shutil.which(file.get_string(GROUP, key)) is not None
