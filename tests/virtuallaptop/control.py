# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The commands of a running virtual laptop: one line per command, one line per reply."""

import inspect
import json
import os
import shlex
import socket

from gi.repository import GLib

import machine as machines
import services

CHARGING_WATTS = 33
HELP = """commands, one a line; names are those of the power supplies:
  set NAME ATTRIBUTE VALUE [ATTRIBUTE VALUE...]    attributes, then one uevent
  write NAME ATTRIBUTE VALUE [ATTRIBUTE VALUE...]  the same without a uevent
  unset NAME ATTRIBUTE...                          attributes vanish, then one uevent
  uevent NAME [ACTION]
  plug | unplug                  every adapter's online and the batteries' status
  drain NAME PERCENT             the battery is discharging and has that much left
  charge NAME PERCENT            the battery is charging, or full at 100
  adapter-details [JSON]         attributes that an adapter tells late, for the USB adapter or
                                 by supply name; without JSON those of a 65 W adapter
  remove NAME | add NAME [JSON]  without JSON what was there before
  fault NAME ATTRIBUTE KIND      KIND: eio enxio gone directory garbage huge empty hang
  heal NAME ATTRIBUTE
  typec JSON                     USB-C ports under /sys/class/typec
  upower stop|start|restart|hang|resume
  sleep | wake
  state | environment            answered with JSON"""


class Commands:
    """Executes the commands on the parts of the laptop."""

    def __init__(self, sysfs, upower, logind, environment):
        self._sysfs = sysfs
        self._upower = upower
        self._logind = logind
        self._environment = environment
        self._removed = {}
        self._at_rest = {}
        self._rates = {}
        for name, attributes in sysfs.supplies.items():
            self._remember(name, attributes)

    def run(self, line):
        """The reply to a command line."""
        try:
            words = shlex.split(line)
            if not words:
                raise ValueError("no command")
            action = getattr(self, "_" + words[0].replace("-", "_") + "_command", None)
            if action is None:
                raise ValueError(f"no such command: {words[0]}")
            try:
                inspect.signature(action).bind(*words[1:])
            except TypeError as error:
                raise ValueError(f"{words[0]}: {error}") from error
            answer = action(*words[1:])
        except (ValueError, RuntimeError, OSError, GLib.Error) as error:
            return "error: " + str(error).replace("\n", " ")
        return "ok" if answer is None else "ok " + json.dumps(answer)

    def _remember(self, name, attributes):
        for rate in ("power_now", "current_now"):
            if machines.is_battery(attributes) and rate in attributes:
                self._rates[name, rate] = attributes[rate]
        if machines.is_adapter(attributes):
            self._at_rest[name] = dict(attributes, online="0")

    def _set_command(self, name, *pairs):
        self._sysfs.change(name, _values(pairs))

    def _write_command(self, name, *pairs):
        self._sysfs.change(name, _values(pairs), event=False)

    def _unset_command(self, name, *attributes):
        self._sysfs.change(name, dict.fromkeys(attributes))

    def _uevent_command(self, name, action="change"):
        self._sysfs.uevent(name, action)

    def _plug_command(self):
        self._turn_adapters(True)
        for name in self._names(machines.is_battery):
            percent = self._percent(name)
            self._sysfs.change(name, self._rate(name, "Full" if percent >= 100 else "Charging"))

    def _unplug_command(self):
        self._turn_adapters(False)
        for name in self._names(machines.is_battery):
            self._sysfs.change(name, self._rate(name, "Discharging"))

    def _turn_adapters(self, online):
        for name in self._names(machines.is_adapter):
            values = {"online": "1"}
            if not online:
                # The details disappear with the adapter.
                gone = dict.fromkeys(self._sysfs.supplies[name])
                values = gone | self._at_rest.get(name, {"online": "0"})
            self._sysfs.change(name, values)

    def _drain_command(self, name, percent):
        self._level(name, int(percent), "Discharging")

    def _charge_command(self, name, percent):
        self._level(name, int(percent), "Full" if int(percent) >= 100 else "Charging")

    def _level(self, name, percent, status):
        attributes = self._supply(name)
        values = self._rate(name, status)
        for family in ("energy", "charge"):
            if f"{family}_full" in attributes:
                values[f"{family}_now"] = str(int(attributes[f"{family}_full"]) * percent // 100)
        if "capacity" in attributes or not values.keys() & {"energy_now", "charge_now"}:
            values["capacity"] = str(percent)
        self._sysfs.change(name, values)

    def _rate(self, name, status):
        """The status and a matching rate."""
        attributes = self._supply(name)
        values = {"status": status}
        for rate in ("power_now", "current_now"):
            if (name, rate) not in self._rates:
                continue
            if status == "Full":
                values[rate] = "0"
            elif status == "Discharging":
                values[rate] = self._rates[name, rate]
            elif rate == "power_now":
                values[rate] = str(CHARGING_WATTS * 1000000)
            else:
                volts = int(attributes.get("voltage_now", "12000000")) / 1e6
                values[rate] = str(round(CHARGING_WATTS * 1e6 / volts))
        return values

    def _adapter_details_command(self, details=None):
        values = json.loads(details) if details else machines.DEFAULT_ADAPTER_DETAILS
        by_name = {name: part for name, part in values.items() if isinstance(part, dict)}
        if not by_name:
            adapters = self._names(machines.is_adapter)
            usb = [name for name in adapters if self._sysfs.supplies[name].get("type") == "USB"]
            if not adapters:
                raise ValueError("there is no adapter")
            by_name[(usb or adapters)[0]] = values
        for name, attributes in by_name.items():
            self._sysfs.change(name, {key: str(value) for key, value in attributes.items()})

    def _remove_command(self, name):
        self._removed[name] = self._sysfs.remove(name)

    def _add_command(self, name, attributes=None):
        if attributes is None and name not in self._removed:
            raise ValueError(f"{name} was never there: say what it is")
        values = json.loads(attributes) if attributes else self._removed[name]
        self._sysfs.add(name, {key: str(value) for key, value in values.items()})
        self._remember(name, self._sysfs.supplies[name])

    def _fault_command(self, name, attribute, kind):
        self._sysfs.fault(name, attribute, kind)

    def _heal_command(self, name, attribute):
        self._sysfs.heal(name, attribute)

    def _typec_command(self, ports):
        self._sysfs.add_typec(json.loads(ports))

    def _upower_command(self, action):
        if action == "restart":
            self._upower.stop()
            self._upower.start()
        elif action in ("stop", "start", "hang", "resume"):
            getattr(self._upower, action)()
        else:
            raise ValueError(f"upower does not {action}")
        self._sysfs.deaf_from = services.FIRST_DESCRIPTOR if action == "hang" else None

    def _sleep_command(self):
        self._logind.prepare_for_sleep(True)

    def _wake_command(self):
        self._logind.prepare_for_sleep(False)

    def _state_command(self):
        return self._sysfs.supplies

    def _environment_command(self):
        return self._environment

    def _names(self, kind):
        return [name for name, attributes in self._sysfs.supplies.items() if kind(attributes)]

    def _supply(self, name):
        if name not in self._sysfs.supplies:
            raise ValueError(f"no supply {name}")
        return self._sysfs.supplies[name]

    def _percent(self, name):
        return int(self._supply(name).get("capacity", "0"))


def _values(pairs):
    if not pairs or len(pairs) % 2:
        raise ValueError("attributes and values come in pairs")
    return dict(zip(pairs[::2], pairs[1::2]))


class ControlSocket:
    """Reads command lines in the main loop and replies to each in order."""

    def __init__(self, path, commands):
        self._path = path
        self._commands = commands
        self._buffers = {}
        self._listener = socket.socket(socket.AF_UNIX)
        self._listener.bind(path)
        self._listener.listen()
        GLib.unix_fd_add_full(0, self._listener.fileno(), GLib.IOCondition.IN, self._accept)

    def close(self):
        self._listener.close()
        os.unlink(self._path)

    def _accept(self, *_):
        connection, _ = self._listener.accept()
        self._buffers[connection] = b""
        condition = GLib.IOCondition.IN | GLib.IOCondition.HUP
        GLib.unix_fd_add_full(0, connection.fileno(), condition,
                              lambda *_: self._read(connection))
        return True

    def _read(self, connection):
        received = _received(connection)
        *lines, self._buffers[connection] = (self._buffers[connection] + received).split(b"\n")
        for line in lines:
            answer = self._commands.run(line.decode(errors="replace"))
            try:
                connection.sendall(answer.encode() + b"\n")
            except OSError:
                received = b""
        if received:
            return True
        del self._buffers[connection]
        connection.close()
        return False


def _received(connection):
    try:
        return connection.recv(65536)
    except OSError:
        return b""
