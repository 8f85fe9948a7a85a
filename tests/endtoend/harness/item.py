# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The status item as the session bus tells of it."""

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROGRAM = "org.ferrin.Ferrin"


class Bus:
    """A connection of the test's own to a session bus."""

    def __init__(self, address):
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.connection.set_exit_on_close(False)

    def call(self, name, path, interface, method, signature=None, *arguments):
        parameters = GLib.Variant(signature, arguments) if signature else None
        return self.connection.call_sync(name, path, interface, method, parameters, None,
                                         Gio.DBusCallFlags.NO_AUTO_START, 30000, None).unpack()

    def property(self, name, path, interface, key):
        return self.call(name, path, "org.freedesktop.DBus.Properties", "Get", "(ss)",
                         interface, key)[0]

    def owner(self, name):
        """The unique name behind a well-known one, or None."""
        try:
            return self._daemon("GetNameOwner", name)[0]
        except GLib.Error:
            return None

    def process_of(self, name):
        return self._daemon("GetConnectionUnixProcessID", name)[0]

    def has_host(self):
        """Whether a watcher with a host is there, which is what an item needs to be seen."""
        try:
            return self.property(WATCHER, "/StatusNotifierWatcher", WATCHER,
                                 "IsStatusNotifierHostRegistered")
        except GLib.Error:
            return False

    def item_count(self):
        """How many items the watcher knows."""
        return len(self.property(WATCHER, "/StatusNotifierWatcher", WATCHER,
                                 "RegisteredStatusNotifierItems"))

    def item_of(self, process_id):
        """The item that a process has registered with the watcher, or None."""
        try:
            addresses = self.property(WATCHER, "/StatusNotifierWatcher", WATCHER,
                                      "RegisteredStatusNotifierItems")
            for address in addresses:
                name, slash, path = address.partition("/")
                if self.process_of(name) == process_id:
                    return Item(self, name, slash + path or "/StatusNotifierItem")
        except GLib.Error:
            pass
        return None

    def item_by_name(self, process_id):
        """The same item by the name that its process owns, whether or not a watcher knows it."""
        name = f"{ITEM}-{process_id}-1"
        return Item(self, name, "/StatusNotifierItem") if self.owner(name) else None

    def _daemon(self, method, name):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         method, "(s)", name)


class Item:
    """One registered item."""

    def __init__(self, bus, name, path):
        self.bus = bus
        self.name = name
        self.path = path

    def get(self, key):
        return self.bus.property(self.name, self.path, ITEM, key)

    def says(self):
        """What the item shows, in words; None while it does not answer."""
        try:
            return self.get("ToolTip")[2]
        except GLib.Error:
            return None

    def activate(self, x=0, y=0):
        self.bus.call(self.name, self.path, ITEM, "Activate", "(ii)", x, y)

    def menu(self):
        """The labels of the context menu by their number."""
        path = self.get("Menu")
        _, (_, _, entries) = self.bus.call(self.name, path, MENU, "GetLayout", "(iias)", 0, -1, [])
        return {number: properties.get("label", "") for number, properties, _ in entries}

    def choose(self, number):
        self.bus.call(self.name, self.get("Menu"), MENU, "Event", "(isvu)", number, "clicked",
                      GLib.Variant("s", ""), 0)


class SignalCount:
    """Counts the item's signals on a bus from its creation on."""

    def __init__(self, bus, item):
        self.names = []
        self._bus = bus
        self._subscription = bus.connection.signal_subscribe(
            bus.owner(item.name), ITEM, None, None, None, Gio.DBusSignalFlags.NONE,
            lambda _c, _s, _p, _i, name, _a: self.names.append(name))

    def collect(self):
        """The names of the signals that have come so far."""
        # A round trip: whatever was sent before it has arrived with its answer.
        self._bus.owner(PROGRAM)
        while GLib.MainContext.default().iteration(False):
            pass
        return list(self.names)

    def close(self):
        self._bus.connection.signal_unsubscribe(self._subscription)
