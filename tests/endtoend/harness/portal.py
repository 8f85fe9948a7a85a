#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A settings portal in the shape of a process. Each line of its input, "dark", "light" or "none", is
the colour scheme that the desktop prefers from then on; it begins with the one that it is given.

    portal.py SCHEME
"""

import subprocess
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
GROUP, KEY = "org.freedesktop.appearance", "color-scheme"
SCHEMES = {"none": 0, "dark": 1, "light": 2}
INTERFACE = f"""<node><interface name="{SETTINGS}">
  <method name="Read">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""


class Desktop:
    """The portal as a test holds it."""

    def __init__(self, session, scheme):
        self._process = session.start(["/usr/bin/python3", "-B", __file__, scheme],
                                      stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self._process.stdout.readline()

    def prefers(self, scheme):
        self._process.stdin.write(scheme + "\n")
        self._process.stdin.flush()

    def close(self):
        self._process.stdin.close()
        self._process.stdout.close()


class Portal:
    def __init__(self, scheme):
        self._scheme = scheme
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._bus.register_object(PATH, interface, self._call, None, None)
        Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: print("ready", flush=True), None)

    def prefer(self, scheme):
        self._scheme = scheme
        self._bus.emit_signal(None, PATH, SETTINGS, "SettingChanged",
                              GLib.Variant("(ssv)", (GROUP, KEY, self._value())))

    def _value(self):
        return GLib.Variant("u", SCHEMES[self._scheme])

    def _call(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        if arguments.unpack() == (GROUP, KEY):
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", self._value()),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")


def main():
    portal = Portal(sys.argv[1])
    loop = GLib.MainLoop()

    def read(stream, _condition):
        line = stream.readline()
        if not line:
            loop.quit()
            return False
        portal.prefer(line.strip())
        return True
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      read)
    loop.run()


if __name__ == "__main__":
    main()
