# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A settings portal in the shape of a process. Each line of its input is a setting that the desktop has
from then on: its group, its key, and its value as text of GLib's variants, by tabs.
"""

import sys

import gi

from harness.serviceprocess import ServiceProcess

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
APPEARANCE = "org.freedesktop.appearance"
SCHEMES = {"none": 0, "dark": 1, "light": 2}
INTERFACE = f"""<node><interface name="{SETTINGS}">
  <method name="Read">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""


class Desktop(ServiceProcess):
    """The portal as a test holds it."""

    def __init__(self, session, scheme="none"):
        super().__init__(session, "harness.portal")
        self.prefers(scheme)

    def prefers(self, scheme):
        self.sets(APPEARANCE, "color-scheme", f"uint32 {SCHEMES[scheme]}")

    def has_accent(self, red, green, blue):
        """Each 0 to 1."""
        parts = ", ".join(str(float(part)) for part in (red, green, blue))
        self.sets(APPEARANCE, "accent-color", f"({parts})")

    def wants_high_contrast(self, wants):
        self.sets(APPEARANCE, "contrast", f"uint32 {int(wants)}")

    def enlarges_texts(self, factor):
        """As GNOME does."""
        self.sets("org.gnome.desktop.interface", "text-scaling-factor", f"double {factor}")

    def sets(self, group, key, value):
        """Gives a setting a value, and waits for the portal to have it."""
        self.send(f"{group}\t{key}\t{value}")


class Portal:
    def __init__(self):
        self._settings = {}
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._bus.register_object(PATH, interface, self._call, None, None)
        Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: print("ready", flush=True), None)

    def set(self, group, key, text):
        value = GLib.Variant.parse(None, text, None, None)
        self._settings[group, key] = value
        self._bus.emit_signal(None, PATH, SETTINGS, "SettingChanged",
                              GLib.Variant("(ssv)", (group, key, value)))
        print("set", flush=True)

    def _call(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        value = self._settings.get(arguments.unpack())
        if value:
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", value),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")


def main():
    portal = Portal()
    loop = GLib.MainLoop()

    def read(stream, _condition):
        line = stream.readline()
        if not line:
            loop.quit()
            return False
        portal.set(*line.strip().split("\t"))
        return True
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      read)
    loop.run()


if __name__ == "__main__":
    main()
