#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A status area in the shape of a process: a watcher with or without a host, or one that dies
with its questions to the item unanswered.

    watcher.py [without-host | dies]
"""

import os
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.kde.StatusNotifierWatcher"
PATH = "/StatusNotifierWatcher"
INTERFACE = f"""<node><interface name="{NAME}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>"""


class Watcher:
    def __init__(self, mode):
        self._mode = mode
        self._items = []
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._bus.register_object(PATH, interface, self._call, self._get, None)
        Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)
        if mode != "without-host":
            self._bus.emit_signal(None, PATH, NAME, "StatusNotifierHostRegistered", None)

    def _get(self, _bus, _sender, _path, _interface, key):
        return {
            "RegisteredStatusNotifierItems": GLib.Variant("as", self._items),
            "IsStatusNotifierHostRegistered": GLib.Variant("b", self._mode != "without-host"),
            "ProtocolVersion": GLib.Variant("i", 0),
        }[key]

    def _call(self, _bus, sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            (service,) = arguments.unpack()
            if self._mode == "dies":
                self._ask_and_die(sender)
            if service.startswith("/"):
                service = sender + service
            elif "/" not in service:
                service += "/StatusNotifierItem"
            if service not in self._items:
                self._items.append(service)
            self._bus.emit_signal(None, PATH, NAME, "StatusNotifierItemRegistered",
                                  GLib.Variant("(s)", (service,)))
        invocation.return_value(None)

    def _ask_and_die(self, sender):
        question = GLib.Variant("(s)", ("org.kde.StatusNotifierItem",))
        for _ in range(100):
            self._bus.call(sender, "/StatusNotifierItem", "org.freedesktop.DBus.Properties",
                           "GetAll", question, None, Gio.DBusCallFlags.NONE, -1, None, None)
        self._bus.flush_sync()
        os._exit(1)


if __name__ == "__main__":
    WATCHER = Watcher(sys.argv[1] if len(sys.argv) > 1 else "")
    GLib.MainLoop().run()
