# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The power supplies as files: a umockdev testbed that behaves like sysfs.

Every change goes through the attribute files and the `uevent` file of its supply together, each
replaced atomically, so that a reader never meets half a value. Needs umockdev's preload library.
"""

import contextlib
import glob
import os
import select
import shutil
import socket
import time

import gi

gi.require_version("UMockdev", "1.0")
from gi.repository import GLib, UMockdev  # noqa: E402

import machine as machines  # noqa: E402

# Never part of a real supply's uevent.
NOT_IN_UEVENT = {"alarm"}
# On a busy machine a listener may not run for some seconds.
LISTENER_TIMEOUT_SECONDS = 20
FAULTS = ("eio", "enxio", "gone", "directory", "garbage", "huge", "empty", "hang")


class Sysfs:
    """Owns the testbed. Attributes are also stored here, so that a faulty file can be restored."""

    def __init__(self, machine):
        self._testbed = UMockdev.Testbed.new()
        self._root = self._testbed.get_root_dir()
        # The testbed sets this variable for C code only.
        os.environ["UMOCKDEV_DIR"] = self._root
        self._faults = {}
        self.supplies = {}
        # Listeners from this descriptor on do not read for now.
        self.deaf_from = None
        # A machine without any supply has the class folder, too.
        os.makedirs(os.path.join(self._root, "sys/class/power_supply"), exist_ok=True)
        if os.geteuid() == 0:
            # The programs under test may run as another user, and listeners put their sockets here.
            os.chmod(self._root, 0o777)
        for name, attributes in machine.supplies.items():
            self._create(name, attributes)
        self._write_tree("sys/class/dmi/id", machine.dmi)
        self.add_typec(machine.typec)
        self._write_tree("sys/class/usb_power_delivery", machine.power_delivery)

    def close(self):
        """Removes the laptop's files; the testbed removes its folder itself."""
        self._testbed = None

    def add(self, name, attributes):
        if name in self.supplies:
            raise ValueError(f"{name} is there already")
        self._create(name, attributes)
        self._send(name, "add")

    def remove(self, name):
        """Removes a supply: first its attributes, then the event is sent, then the device."""
        self._known(name)
        folder = self._folder(name)
        for entry in os.scandir(folder):
            if entry.name not in ("uevent", "subsystem"):
                self._clear(entry.path)
        self._send(name, "remove")
        self._testbed.remove_device(self._path(name))
        shutil.rmtree(folder, ignore_errors=True)
        for key in [key for key in self._faults if key[0] == name]:
            del self._faults[key]
        return self.supplies.pop(name)

    def change(self, name, values, event=True):
        """Sets attributes (None removes one) and sends one event unless told otherwise."""
        self._known(name)
        for attribute, value in values.items():
            if value is None:
                self.supplies[name].pop(attribute, None)
            else:
                self.supplies[name][attribute] = value
            self._write_attribute(name, attribute)
        self._write_uevent(name)
        if event:
            self.uevent(name)

    def uevent(self, name, action="change"):
        self._known(name)
        self._send(name, action)

    def fault(self, name, attribute, kind):
        self._known(name)
        if kind not in FAULTS:
            raise ValueError(f"no such fault: {kind} (there are {', '.join(FAULTS)})")
        self._faults[name, attribute] = kind
        self._write_attribute(name, attribute)
        self._write_uevent(name)

    def heal(self, name, attribute):
        self._known(name)
        self._faults.pop((name, attribute), None)
        self._write_attribute(name, attribute)
        self._write_uevent(name)

    def add_typec(self, ports, base="sys/class/typec"):
        """Ports as nested dictionaries; a partner's are found beside its port as well."""
        self._write_tree(base, ports)
        for port, entries in ports.items():
            for name, value in entries.items():
                if isinstance(value, dict) and name.startswith(port):
                    self._write_tree(f"{base}/{name}", value)

    def _send(self, name, action):
        with self._room_for_an_event():
            self._testbed.uevent(self._path(name), action)

    @contextlib.contextmanager
    def _room_for_an_event(self):
        """umockdev ends the process when a listener has no room. To a deaf one the event is lost, as
        the kernel's would be: umockdev does not see it meanwhile."""
        deaf = [listener for listener in self._listeners() if not self._has_room(listener)]
        for listener in deaf:
            os.rename(os.path.join(self._root, listener), os.path.join(self._root, "deaf-" + listener))
        try:
            yield
        finally:
            for listener in deaf:
                os.rename(os.path.join(self._root, "deaf-" + listener),
                          os.path.join(self._root, listener))

    def _listeners(self):
        return glob.glob("event[0-9]*", root_dir=self._root)

    def _has_room(self, listener):
        """Whether a listener can take another event; waits for one that is not deaf."""
        descriptor = int(listener.removeprefix("event"))
        is_deaf = self.deaf_from is not None and descriptor >= self.deaf_from
        patience = 0 if is_deaf else LISTENER_TIMEOUT_SECONDS
        has_room = _can_send(os.path.join(self._root, listener), patience)
        if not has_room and not is_deaf:
            raise ValueError(f"the listener {listener} has stopped reading events")
        return has_room

    def _create(self, name, attributes):
        self.supplies[name] = {}
        with self._room_for_an_event():
            self._testbed.add_from_string(_description(name, self._path(name), attributes))
        for attribute, value in attributes.items():
            error = machines.failing_error(value)
            if error:
                self._faults[name, attribute] = "eio" if error == "EIO" else "enxio"
            else:
                self.supplies[name][attribute] = value
            self._write_attribute(name, attribute)
        self._write_uevent(name)

    def _known(self, name):
        if name not in self.supplies:
            raise ValueError(f"no supply {name} (there are {', '.join(self.supplies) or 'none'})")

    def _path(self, name):
        return f"/sys/devices/platform/{name}-host/power_supply/{name}"

    def _folder(self, name):
        return self._root + self._path(name)

    def _write_attribute(self, name, attribute):
        path = os.path.join(self._folder(name), attribute)
        fault = self._faults.get((name, attribute))
        if fault:
            self._clear(path)
            _make_faulty(path, fault)
            return
        value = self.supplies[name].get(attribute)
        if value is None:
            self._clear(path)
        elif attribute != "uevent":
            if os.path.isdir(path):
                self._clear(path)
            self._replace(path, value + "\n")

    def _write_uevent(self, name):
        if (name, "uevent") in self._faults:
            return
        path = os.path.join(self._folder(name), "uevent")
        if os.path.isdir(path):
            self._clear(path)
        lines = ["SUBSYSTEM=power_supply", f"POWER_SUPPLY_NAME={name}"]
        for attribute, value in self.supplies[name].items():
            if attribute not in NOT_IN_UEVENT and (name, attribute) not in self._faults:
                lines.append(f"POWER_SUPPLY_{attribute.upper()}={value}")
        self._replace(path, "\n".join(lines) + "\n")

    def _write_tree(self, base, entries):
        for name, value in entries.items():
            path = os.path.join(self._root, base, name)
            if isinstance(value, dict):
                os.makedirs(path, exist_ok=True)
                self._write_tree(os.path.join(base, name), value)
            else:
                os.makedirs(os.path.dirname(path), exist_ok=True)
                self._replace(path, str(value) + "\n")

    def _replace(self, path, text):
        new = os.path.join(self._root, "new")
        with open(new, "w", encoding="utf-8", errors="surrogateescape") as file:
            file.write(text)
        os.replace(new, path)

    @staticmethod
    def _clear(path):
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif os.path.lexists(path):
            os.unlink(path)


def _description(name, path, attributes):
    """The supply for the testbed, which tells of it at once: so what can be said is in there."""
    lines = [f"P: {path[4:]}", "E: SUBSYSTEM=power_supply", f"E: POWER_SUPPLY_NAME={name}"]
    for attribute, value in attributes.items():
        is_plain = value.isascii() and value.isprintable() and "\\" not in value
        if is_plain and attribute != "uevent" and not machines.failing_error(value):
            lines.append(f"E: POWER_SUPPLY_{attribute.upper()}={value}")
            lines.append(f"A: {attribute}={value}\\n")
    return "\n".join(lines) + "\n\n"


def _make_faulty(path, kind):
    if kind == "eio":
        # Reading a process' own memory at address 0 fails with exactly this error.
        os.symlink("/proc/self/mem", path)
    elif kind == "enxio":
        with socket.socket(socket.AF_UNIX) as listener:
            _bind(listener, path)
    elif kind == "directory":
        os.mkdir(path)
    elif kind == "hang":
        os.mkfifo(path)
    elif kind != "gone":
        contents = {
            "garbage": b"\xff\xfe\x00 not a \x80 number \xc3\x28\n",
            "huge": b"9" * (4 << 20) + b"\n",
            "empty": b"",
        }
        with open(path, "wb") as file:
            file.write(contents[kind])


def _bind(listener, path):
    # Socket paths are short; sysfs paths are not.
    folder = os.open(os.path.dirname(path), os.O_RDONLY | os.O_DIRECTORY)
    try:
        listener.bind(f"/proc/self/fd/{folder}/{os.path.basename(path)}")
    finally:
        os.close(folder)


def _can_send(path, patience):
    with socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as sender:
        try:
            sender.connect(path)
        except OSError:
            # The listener has gone.
            return True
        end = time.monotonic() + patience
        while not select.select([], [sender], [], min(patience, 0.02))[1]:
            if time.monotonic() >= end:
                return False
            # It may wait for an answer of one of our services, as UPower does after a sleep.
            while GLib.MainContext.default().iteration(False):
                pass
        return True
