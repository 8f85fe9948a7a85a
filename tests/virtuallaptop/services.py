# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The system services of the virtual laptop: a private system bus, the real UPower, a small logind.

Processes are started with this one as their guardian: if it dies, the kernel ends them.
"""

import ctypes
import os
import signal
import subprocess
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

UPOWERD = "/usr/libexec/upowerd"
PR_SET_PDEATHSIG = 1
# umockdev names a listener for udev events after the number of its descriptor, and of two with the
# same name the older one receives nothing. UPower's numbers begin here, above those of the programs
# under test.
FIRST_DESCRIPTOR = 256
START_ABOVE = f"""import os, sys
nothing = os.open(os.devnull, os.O_RDONLY)
for number in range(3, {FIRST_DESCRIPTOR}):
    os.dup2(nothing, number)
os.execv(sys.argv[1], sys.argv[1:])"""
LIBC = ctypes.CDLL(None, use_errno=True)

# Every name may be owned and every method called; nothing is activatable unless a test puts a file
# for it into the folder of services.
BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path={folder}/bus</listen>
  <servicedir>{folder}/services</servicedir>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_type="method_call"/>
    <allow send_type="signal"/>
    <allow send_requested_reply="true" send_type="method_return"/>
    <allow send_requested_reply="true" send_type="error"/>
    <allow receive_type="method_call"/>
    <allow receive_type="method_return"/>
    <allow receive_type="error"/>
    <allow receive_type="signal"/>
  </policy>
</busconfig>
"""

LOGIND_INTERFACE = """<node><interface name="org.freedesktop.login1.Manager">
  <method name="Inhibit">
    <arg name="what" type="s" direction="in"/><arg name="who" type="s" direction="in"/>
    <arg name="why" type="s" direction="in"/><arg name="mode" type="s" direction="in"/>
    <arg name="pipe_fd" type="h" direction="out"/>
  </method>
  <method name="CanPowerOff"><arg type="s" direction="out"/></method>
  <method name="CanSuspend"><arg type="s" direction="out"/></method>
  <method name="CanHibernate"><arg type="s" direction="out"/></method>
  <method name="CanHybridSleep"><arg type="s" direction="out"/></method>
  <method name="PowerOff"><arg type="b" direction="in"/></method>
  <method name="Suspend"><arg type="b" direction="in"/></method>
  <method name="Hibernate"><arg type="b" direction="in"/></method>
  <method name="HybridSleep"><arg type="b" direction="in"/></method>
  <property name="PreparingForSleep" type="b" access="read"/>
  <signal name="PrepareForSleep"><arg name="start" type="b"/></signal>
</interface></node>"""


def end_with_parent():
    """In a new process, before its program starts: end when the parent has ended."""
    LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0)


def end(process):
    """Ends a process that we started, stopped or not, and waits for it."""
    if process is None or process.poll() is not None:
        return
    process.terminate()
    process.send_signal(signal.SIGCONT)
    try:
        process.wait(10)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def start_bus(folder):
    """Starts the private system bus in the folder; returns the process and its address."""
    configuration = os.path.join(folder, "bus.conf")
    os.mkdir(os.path.join(folder, "services"))
    with open(configuration, "w", encoding="utf-8") as file:
        file.write(BUS_CONFIGURATION.format(folder=folder))
    process = subprocess.Popen(
        ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address=1"],
        stdout=subprocess.PIPE, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL, text=True,
        preexec_fn=end_with_parent)
    address = process.stdout.readline().strip()
    if not address:
        raise RuntimeError("the private system bus did not start")
    return process, address


class UPower:
    """The real daemon on the virtual supplies; it can be stopped, started again and hung."""

    def __init__(self, bus, folder):
        self._bus = bus
        self._process = None
        self._history = os.path.join(folder, "upower-history")
        self._configuration = os.path.join(folder, "UPower.conf")
        os.makedirs(self._history, exist_ok=True)
        with open(self._configuration, "w", encoding="utf-8") as file:
            file.write("[UPower]\nPercentageAction=0\nTimeAction=0\n")

    def start(self):
        """Starts the daemon and waits until it has read the supplies."""
        if self._process is not None and self._process.poll() is None:
            raise ValueError("upower runs already")
        environment = os.environ | {
            "UPOWER_HISTORY_DIR": self._history, "UPOWER_CONF_FILE_NAME": self._configuration}
        self._process = subprocess.Popen(
            [sys.executable, "-c", START_ABOVE, UPOWERD], env=environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            preexec_fn=end_with_parent)
        while self.devices() is None:
            if self._process.poll() is not None:
                raise RuntimeError(f"upowerd ended with {self._process.returncode}")

    def stop(self):
        self._running()
        end(self._process)

    def hang(self):
        self._running().send_signal(signal.SIGSTOP)

    def resume(self):
        self._running().send_signal(signal.SIGCONT)

    def close(self):
        end(self._process)

    def devices(self):
        """The daemon's devices, or None without an answer. The main loop goes on meanwhile."""
        answers = []
        name = "org.freedesktop.UPower"
        self._bus.call(name, "/org/freedesktop/UPower", name, "EnumerateDevices", None,
                       GLib.VariantType("(ao)"), Gio.DBusCallFlags.NO_AUTO_START, 5000, None,
                       lambda bus, result: answers.append(_finish(bus, result)))
        while not answers:
            GLib.MainContext.default().iteration(True)
        return answers[0]

    def _running(self):
        if self._process is None or self._process.poll() is not None:
            raise ValueError("upower does not run")
        return self._process


def _finish(bus, result):
    try:
        return bus.call_finish(result).unpack()[0]
    except GLib.Error:
        return None


class Logind:
    """The part of logind that announces sleep. It never suspends anything."""

    PATH = "/org/freedesktop/login1"
    NAME = "org.freedesktop.login1"

    def __init__(self, bus):
        self._bus = bus
        self._sleeping = False
        node = Gio.DBusNodeInfo.new_for_xml(LOGIND_INTERFACE)
        bus.register_object(self.PATH, node.interfaces[0], self._call,
                            lambda *_: GLib.Variant("b", self._sleeping), None)
        bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                      "RequestName", GLib.Variant("(su)", (self.NAME, 4)), None,
                      Gio.DBusCallFlags.NONE, -1, None)

    def prepare_for_sleep(self, start):
        self._sleeping = start
        self._bus.emit_signal(None, self.PATH, f"{self.NAME}.Manager", "PrepareForSleep",
                              GLib.Variant("(b)", (start,)))
        self._bus.flush_sync()

    @staticmethod
    def _call(_bus, _sender, _path, _interface, method, _arguments, invocation):
        if method == "Inhibit":
            read_end, write_end = os.pipe()
            descriptors = Gio.UnixFDList.new()
            descriptors.append(write_end)
            os.close(write_end)
            os.close(read_end)
            invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", (0,)), descriptors)
        elif method.startswith("Can"):
            invocation.return_value(GLib.Variant("(s)", ("no",)))
        else:
            invocation.return_value(None)
