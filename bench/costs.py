# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What a process costs: its memory, and the time until its item is in the status area."""

import pathlib
import re
import time

from gi.repository import Gio, GLib

from harness.processes import TIMEOUT_SECONDS, end


def memory_of(pid):
    """Rss, Pss and Private_Dirty in MiB."""
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return {name: int(kilobytes) / 1024
            for name, kilobytes in re.findall(r"^(Rss|Pss|Private_Dirty):\s+(\d+)", text, re.M)}


class Registrations:
    """Receives the registrations of items with the session's watcher."""

    def __init__(self, address):
        self._loop = GLib.MainLoop()
        self._bus = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self._bus.signal_subscribe(None, "org.kde.StatusNotifierWatcher",
                                   "StatusNotifierItemRegistered", None, None,
                                   Gio.DBusSignalFlags.NONE, lambda *_: self._loop.quit())

    def seconds_to_item(self, start):
        """From a start until the item is registered; the process is ended again."""
        timeout = GLib.timeout_add_seconds(TIMEOUT_SECONDS, self._loop.quit)
        begun = time.monotonic()
        process = start()
        self._loop.run()
        taken = time.monotonic() - begun
        end(process)
        if taken >= TIMEOUT_SECONDS:
            raise AssertionError("the item was never registered: has the status area ended?")
        GLib.source_remove(timeout)
        return taken
