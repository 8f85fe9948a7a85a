# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""PackageKit in the shape of a process on a laptop's system bus, which does what its input says. It
knows one package, that of the program; each line of its input is one of

    offer VERSION             the package sources have this version, too
    tell_at_length            its notes have more than the window has room for
    hold METHOD               transactions of this kind do not end
    progress SIZE REMAINING   the one that is held downloads: so many bytes, and so many of them to come
    fail METHOD CODE TEXT     they end with this error
    work METHOD               they end well again, the one that is held at once
"""

import os
import re
import sys

import gi

from harness.serviceprocess import ServiceProcess

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME, PATH = "org.freedesktop.PackageKit", "/org/freedesktop/PackageKit"
TRANSACTION = f"{NAME}.Transaction"
INSTALLED = "ferrin;0.1.0;amd64;installed:ferrin"
NOTES = "The battery is read more often.\nA new glyph."
LONG_NOTES = "\n".join(f"Change {number} of forty." for number in range(1, 41))
SIZE = 2000000
NORMAL, SUCCESS, FAILED, DOWNLOADS = 5, 1, 2, 8
SERVICE = f"""<node><interface name="{NAME}">
  <method name="CreateTransaction"><arg type="o" direction="out"/></method>
  <property name="BackendName" type="s" access="read"/>
</interface></node>"""
METHODS = {"SetHints": "as", "SearchFiles": "t as", "RefreshCache": "b", "GetUpdates": "t",
           "GetDetails": "as", "GetUpdateDetail": "as", "DownloadPackages": "b as", "Cancel": ""}
IN_TRANSACTION = "".join(
    f'<method name="{name}">' + "".join(f'<arg type="{each}" direction="in"/>'
                                        for each in types.split()) + "</method>"
    for name, types in METHODS.items())
TRANSACTIONS = f"""<node><interface name="{TRANSACTION}">{IN_TRANSACTION}
  <property name="AllowCancel" type="b" access="read"/>
</interface></node>"""


class PackageKit(ServiceProcess):
    """The service as a test holds it, on the bus of a laptop whose program begins later."""

    def __init__(self, session, laptop):
        address = laptop.environment["DBUS_SYSTEM_BUS_ADDRESS"]
        super().__init__(session, "harness.packagekit", {"DBUS_SYSTEM_BUS_ADDRESS": address})

    def tell(self, *words):
        self.send(" ".join(map(str, words)))


class Service:
    def __init__(self):
        self._offered = None
        self._notes = NOTES
        self._held, self._failing = {}, {}
        self._count = 0
        self._bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
        self._transaction = Gio.DBusNodeInfo.new_for_xml(TRANSACTIONS).interfaces[0]
        interface = Gio.DBusNodeInfo.new_for_xml(SERVICE).interfaces[0]
        self._bus.register_object(PATH, interface, self._create,
                                  lambda *_: GLib.Variant("s", "aptcc"), None)
        self.be_installed()
        Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: print("ready", flush=True), None)

    def offer(self, version):
        self._offered = f"ferrin;{version};amd64;ferrin-stable-main"

    def tell_at_length(self):
        self._notes = LONG_NOTES

    def hold(self, method):
        self._held[method] = None

    def progress(self, size, remaining):
        path = next(path for path in self._held.values() if path)
        self._tell(path, "Details", "(a{sv})", {"size": GLib.Variant("t", int(size))})
        changed = {"Status": GLib.Variant("u", DOWNLOADS),
                   "DownloadSizeRemaining": GLib.Variant("t", int(remaining))}
        self._bus.emit_signal(None, path, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                              GLib.Variant("(sa{sv}as)", (TRANSACTION, changed, [])))

    def fail(self, method, code, *text):
        self._failing[method] = int(code), " ".join(text)

    def work(self, method):
        self._failing.pop(method, None)
        path = self._held.pop(method, None)
        if path:
            self._end(path, SUCCESS)

    def be_installed(self):
        """Has the bus list it among the services that it could start."""
        folder = re.match("unix:path=(.*)/bus", os.environ["DBUS_SYSTEM_BUS_ADDRESS"]).group(1)
        with open(f"{folder}/services/{NAME}.service", "w", encoding="utf-8") as file:
            file.write(f"[D-BUS Service]\nName={NAME}\nExec=/bin/false\n")
        bus = "org.freedesktop.DBus"
        self._bus.call_sync(bus, "/org/freedesktop/DBus", bus, "ReloadConfig", None, None,
                            Gio.DBusCallFlags.NONE, -1, None)

    def _create(self, _bus, _sender, _path, _interface, _method, _arguments, invocation):
        self._count += 1
        path = f"/{self._count}_transaction"
        self._bus.register_object(path, self._transaction, self._call,
                                  lambda *_: GLib.Variant("b", True), None)
        invocation.return_value(GLib.Variant("(o)", (path,)))

    def _call(self, _bus, _sender, path, _interface, method, _arguments, invocation):
        invocation.return_value(None)
        if method == "SetHints":
            return
        if method == "SearchFiles":
            self._tell(path, "Package", "(uss)", NORMAL, INSTALLED, "a battery utility")
        elif method == "GetUpdates" and self._offered:
            self._tell(path, "Package", "(uss)", NORMAL, self._offered, "a battery utility")
        elif method == "GetDetails":
            self._tell(path, "Details", "(a{sv})", {"size": GLib.Variant("t", SIZE)})
        elif method == "GetUpdateDetail":
            self._tell(path, "UpdateDetail", "(sasasasasasussuss)", self._offered, [], [], [], [],
                       [], 0, "", self._notes, 0, "", "")
        if method in self._held:
            self._held[method] = path
        elif method in self._failing:
            self._tell(path, "ErrorCode", "(us)", *self._failing[method])
            self._end(path, FAILED)
        else:
            self._end(path, SUCCESS)

    def _end(self, path, exit_code):
        self._tell(path, "Finished", "(uu)", exit_code, 0)

    def _tell(self, path, member, signature, *values):
        self._bus.emit_signal(None, path, TRANSACTION, member, GLib.Variant(signature, values))


def main():
    service = Service()
    loop = GLib.MainLoop()

    def read(stream, _condition):
        line = stream.readline()
        if not line:
            loop.quit()
            return False
        command, *words = line.split()
        getattr(service, command)(*words)
        print("done", flush=True)
        return True
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      read)
    loop.run()


if __name__ == "__main__":
    main()
