# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The desktop's portal in the shape of a process: settings, links, and starts at login. Each line of its
input is a setting that the desktop has from then on: its group, its key, and its value as text of GLib's
variants, by tabs.
"""

import os
import shlex
import sys

import gi

from harness import login
from harness.item import PROGRAM
from harness.serviceprocess import ServiceProcess

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
APPEARANCE = "org.freedesktop.appearance"
BACKGROUND = "org.freedesktop.portal.Background"
OPEN = "org.freedesktop.portal.OpenURI"
REQUEST = "org.freedesktop.portal.Request"
GRANTED, REFUSED = 0, 1
SCHEMES = {"none": 0, "dark": 1, "light": 2}
OPENED = "opened-links"
INTERFACE = f"""<node><interface name="{SETTINGS}">
  <method name="Read">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface><interface name="{BACKGROUND}">
  <method name="RequestBackground">
    <arg type="s" direction="in"/><arg type="a{{sv}}" direction="in"/><arg type="o" direction="out"/>
  </method>
</interface><interface name="{OPEN}">
  <method name="OpenURI">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a{{sv}}" direction="in"/>
    <arg type="o" direction="out"/>
  </method>
</interface></node>"""


class Desktop(ServiceProcess):
    """The portal as a test holds it."""

    def __init__(self, session, scheme="none"):
        super().__init__(session, "harness.portal")
        self._folder = session.environment["XDG_STATE_HOME"]
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

    def refuses_background(self):
        """The user does not want to have programs started at login."""
        self.sets(BACKGROUND, "response", f"uint32 {REFUSED}")

    def opened(self):
        """The links that were opened so far."""
        path = os.path.join(self._folder, OPENED)
        if not os.path.exists(path):
            return []
        with open(path, encoding="utf-8") as file:
            return file.read().splitlines()

    def sets(self, group, key, value):
        """Gives a setting a value, and waits for the portal to have it."""
        self.send(f"{group}\t{key}\t{value}")


class Portal:
    def __init__(self):
        self._settings = {}
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        for interface in Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces:
            self._bus.register_object(PATH, interface, self._call, None, None)
        Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: print("ready", flush=True), None)

    def set(self, group, key, text):
        value = GLib.Variant.parse(None, text, None, None)
        self._settings[group, key] = value
        self._bus.emit_signal(None, PATH, SETTINGS, "SettingChanged",
                              GLib.Variant("(ssv)", (group, key, value)))
        print("set", flush=True)

    def _call(self, _bus, sender, _path, _interface, method, arguments, invocation):
        if method == "RequestBackground":
            self._answer(sender, invocation, *self._start_at_login(arguments.unpack()[1]))
        elif method == "OpenURI":
            with open(os.path.join(os.environ["XDG_STATE_HOME"], OPENED), "a", encoding="utf-8") as file:
                file.write(arguments.unpack()[1] + "\n")
            self._answer(sender, invocation, arguments.unpack()[2], GRANTED, {})
        else:
            self._read(arguments.unpack(), invocation)

    def _read(self, name, invocation):
        value = self._settings.get(name)
        if value:
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", value),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")

    def _answer(self, sender, invocation, options, response, results):
        """The call at once, and the request that it made after that."""
        name = sender[1:].replace(".", "_")
        path = f"{PATH}/request/{name}/{options.get('handle_token', 't')}"
        invocation.return_value(GLib.Variant("(o)", (path,)))
        values = {key: GLib.Variant("b", value) for key, value in results.items()}
        self._bus.emit_signal(sender, path, REQUEST, "Response",
                              GLib.Variant("(ua{sv})", (response, values)))

    def _start_at_login(self, options):
        """Puts an autostart entry on the desktop's side, or takes it away, as portals do."""
        response = self._settings.get((BACKGROUND, "response"), GLib.Variant("u", GRANTED)).unpack()
        if response != GRANTED:
            return options, response, {}
        entry = os.path.join(os.environ["XDG_CONFIG_HOME"], login.ENTRY)
        program, *words = options["commandline"]
        if options["autostart"]:
            os.makedirs(os.path.dirname(entry), exist_ok=True)
            with open(entry, "w", encoding="utf-8") as file:
                command = shlex.join(["flatpak", "run", f"--command={program}", PROGRAM, *words])
                file.write(f"[{login.GROUP}]\nType=Application\nName={PROGRAM}\nExec={command}\n"
                           f"X-Flatpak={PROGRAM}\n")
        elif os.path.exists(entry):
            os.remove(entry)
        return options, response, {"background": True, "autostart": options["autostart"]}


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
