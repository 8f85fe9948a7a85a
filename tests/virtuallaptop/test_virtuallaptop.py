# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Programs on the virtual laptop see what its commands have set."""

import contextlib
import errno
import faulthandler
import glob
import json
import os
import signal
import socket
import subprocess
import sys
import threading
import time
import unittest

from gi.repository import Gio, GLib

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.dirname(HERE))
sys.dont_write_bytecode = True
from virtuallaptop import TOOL, CommandRefused, VirtualLaptop  # noqa: E402

PORT = "ucsi-source-psy-USBC000:001"
BATTERY_PATH = "/org/freedesktop/UPower/devices/battery_BAT0"

# No test takes this long on the slowest machine.
TIMEOUT_SECONDS = 300


def eventually(condition, what):
    """Waits for a condition, for as long as a very slow machine may need."""
    end = time.monotonic() + 60
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"never came true: {what}")
        time.sleep(0.02)


@contextlib.contextmanager
def running(*command, **options):
    """A program that writes text and that is gone afterwards, whatever happened."""
    with subprocess.Popen(command, stdout=subprocess.PIPE, text=True, **options) as process:
        try:
            yield process
        finally:
            process.kill()


def lines_of(process):
    """The next lines of a program; if it ends, that is a failure."""
    while line := process.stdout.readline():
        yield line
    raise AssertionError(f"ended too early: {process.args}")


class Finite(unittest.TestCase):
    """A test with a time limit."""

    def setUp(self):
        def give_up(*_):
            raise AssertionError(f"still waiting after {TIMEOUT_SECONDS} seconds")

        previous = signal.signal(signal.SIGALRM, give_up)
        self.addCleanup(signal.signal, signal.SIGALRM, previous)
        # Again and again: the tidying after a failure may wait as well.
        signal.setitimer(signal.ITIMER_REAL, TIMEOUT_SECONDS, 30)
        self.addCleanup(signal.setitimer, signal.ITIMER_REAL, 0)
        # A library that waits lets no handler run.
        faulthandler.dump_traceback_later(2 * TIMEOUT_SECONDS, exit=True)
        self.addCleanup(faulthandler.cancel_dump_traceback_later)


class OnALaptop(Finite):
    machine = None
    upower = True

    def setUp(self):
        super().setUp()
        self.laptop = VirtualLaptop(self.machine, self.upower)
        self.addCleanup(self.laptop.close)

    def run_on(self, *command):
        return subprocess.run(command, env=self.laptop.environment, capture_output=True,
                              check=False)

    def read(self, name, attribute):
        return self.run_on("cat", f"/sys/class/power_supply/{name}/{attribute}").stdout.decode()

    def daemon_says(self, key):
        output = self.run_on("upower", "-i", BATTERY_PATH).stdout.decode()
        lines = [line.partition(":") for line in output.splitlines()]
        return {name.strip(): value.strip() for name, _, value in lines}.get(key)


class TheRunningLaptop(OnALaptop):
    def test_the_daemon_follows_the_attributes(self):
        self.assertEqual(self.daemon_says("percentage"), "37%")
        self.laptop.send("drain", "BAT0", 12)
        eventually(lambda: self.daemon_says("percentage") == "12%", "the daemon saw the drain")
        self.laptop.send("plug")
        eventually(lambda: self.daemon_says("state") == "charging", "the daemon saw the adapter")

    def test_files_and_uevent_stay_in_step(self):
        self.laptop.send("set", "BAT0", "status", "Not charging", "power_now", 0)
        self.assertEqual(self.read("BAT0", "status"), "Not charging\n")
        self.assertIn("POWER_SUPPLY_STATUS=Not charging\n", self.read("BAT0", "uevent"))
        self.assertIn("POWER_SUPPLY_POWER_NOW=0\n", self.read("BAT0", "uevent"))
        self.laptop.send("unset", "BAT0", "power_now")
        self.assertEqual(self.read("BAT0", "power_now"), "")
        self.assertNotIn("POWER_NOW", self.read("BAT0", "uevent"))

    def test_a_listener_hears_one_uevent_a_change(self):
        with running("udevadm", "monitor", "--kernel", env=self.laptop.environment) as monitor:
            lines = lines_of(monitor)
            next(line for line in lines if "KERNEL" in line)
            self.laptop.send("write", "BAT0", "energy_now", 1)
            self.laptop.send("set", "BAT0", "energy_now", 2, "status", "Charging")
            self.laptop.send("remove", PORT)
            events = (line for line in lines if "power_supply" in line)
            first, second = next(events), next(events)
        self.assertIn("change", first)
        self.assertIn("BAT0", first)
        self.assertIn("remove", second)

    def test_plugging_in_leaves_the_details_for_later(self):
        self.laptop.send("plug")
        port = self.laptop.supply(PORT)
        self.assertEqual((port["online"], port["voltage_max"]), ("1", "5000000"))
        self.assertEqual(self.laptop.supply("BAT0")["status"], "Charging")
        self.laptop.send("adapter-details")
        self.assertEqual(self.read(PORT, "current_max"), "3250000\n")
        self.assertEqual(self.read(PORT, "manufacturer"), "Acme\n")
        self.laptop.send("unplug")
        self.assertEqual(self.read(PORT, "manufacturer"), "")
        self.assertEqual(self.read(PORT, "voltage_max"), "5000000\n")
        self.assertEqual(self.read("AC", "online"), "0\n")
        self.assertEqual(self.laptop.supply("BAT0")["status"], "Discharging")

    def test_details_of_an_adapter_without_a_type_are_told(self):
        self.laptop.send("remove", PORT)
        self.laptop.send("remove", "AC")
        with self.assertRaises(CommandRefused):
            self.laptop.send("adapter-details")
        self.laptop.send("add", "odd", json.dumps({"online": 1}))
        self.laptop.send("unset", "odd", "type")
        self.laptop.send("adapter-details")
        self.assertEqual(self.read("odd", "manufacturer"), "Acme\n")

    def test_a_full_battery_is_full(self):
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 100)
        battery = self.laptop.supply("BAT0")
        self.assertEqual((battery["status"], battery["capacity"]), ("Full", "100"))
        self.assertEqual(battery["energy_now"], battery["energy_full"])

    def test_batteries_come_and_go(self):
        self.laptop.send("remove", "BAT0")
        self.assertEqual(self.run_on("ls", "/sys/class/power_supply").stdout.split(),
                         [b"AC", PORT.encode()])
        eventually(lambda: self.daemon_says("state") is None, "the daemon let the battery go")
        self.laptop.send("add", "BAT0")
        eventually(lambda: self.daemon_says("percentage") == "37%", "the daemon took it up again")
        self.laptop.send("add", "hidpp_battery_0", json.dumps(
            {"type": "Battery", "scope": "Device", "capacity": 55, "status": "Discharging"}))
        self.assertEqual(self.read("hidpp_battery_0", "scope"), "Device\n")

    def test_faulty_files_fail_as_told_and_heal(self):
        errors = {"eio": errno.EIO, "enxio": errno.ENXIO, "gone": errno.ENOENT,
                  "directory": errno.EISDIR}
        for kind, number in errors.items():
            with self.subTest(kind):
                self.laptop.send("fault", "BAT0", "capacity", kind)
                read = "open('/sys/class/power_supply/BAT0/capacity').read()"
                output = self.run_on(sys.executable, "-c", read).stderr.decode()
                self.assertIn(f"[Errno {number}]", output)
        self.laptop.send("fault", "BAT0", "capacity", "huge")
        self.assertGreater(len(self.read("BAT0", "capacity")), 1 << 20)
        self.laptop.send("set", "BAT0", "capacity", 36)
        self.laptop.send("heal", "BAT0", "capacity")
        self.assertEqual(self.read("BAT0", "capacity"), "36\n")

    def test_the_daemon_can_hang_and_return(self):
        self.laptop.send("upower", "hang")
        self.laptop.send("drain", "BAT0", 20)
        self.laptop.send("upower", "resume")
        eventually(lambda: self.daemon_says("percentage") == "20%", "the daemon caught up")
        self.laptop.send("upower", "restart")
        self.assertEqual(self.daemon_says("percentage"), "20%")
        self.laptop.send("upower", "stop")
        self.assertIsNone(self.daemon_says("state"))

    def test_a_hung_daemon_does_not_keep_events_from_others(self):
        with running("udevadm", "monitor", "--udev", env=self.laptop.environment) as monitor:
            lines = lines_of(monitor)
            while not next(lines).startswith("UDEV"):
                pass
            self.laptop.send("upower", "hang")
            # Its queue has room for ten or so.
            for percent in range(50, 20, -1):
                self.laptop.send("drain", "BAT0", percent)
            for _ in range(50, 20, -1):
                next(line for line in lines if "BAT0" in line)
            self.laptop.send("remove", "BAT0")
            self.laptop.send("add", "BAT0")
            next(line for line in lines if "add" in line)
        self.laptop.send("upower", "resume")
        self.laptop.send("drain", "BAT0", 19)
        eventually(lambda: self.daemon_says("percentage") == "19%", "the daemon hears again")

    def system_bus(self):
        bus = Gio.DBusConnection.new_for_address_sync(
            self.laptop.environment["DBUS_SYSTEM_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self.addCleanup(bus.close_sync)
        return bus

    def test_a_listener_that_waits_for_a_service_gets_its_events_afterwards(self):
        """As UPower does after a sleep: it asks for the next delay and reads nothing meanwhile."""
        bus = self.system_bus()
        path = os.path.join(self.laptop.environment["UMOCKDEV_DIR"], "event200")
        with socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as listener, \
                socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as sender:
            listener.bind(path)
            listener.setblocking(False)
            sender.setblocking(False)
            sender.connect(path)
            with contextlib.suppress(BlockingIOError):
                while True:
                    sender.send(b"full")

            def ask_and_read():
                # By then the laptop waits for room.
                time.sleep(0.5)
                bus.call_sync("org.freedesktop.login1", "/org/freedesktop/login1",
                              "org.freedesktop.login1.Manager", "CanSuspend", None, None,
                              Gio.DBusCallFlags.NONE, -1)
                with contextlib.suppress(BlockingIOError):
                    while True:
                        listener.recv(4096)
            thread = threading.Thread(target=ask_and_read)
            thread.start()
            self.laptop.send("drain", "BAT0", 30)
            thread.join()
            os.unlink(path)
        self.assertEqual(self.laptop.supply("BAT0")["capacity"], "30")

    def test_sleep_is_told_on_the_system_bus(self):
        output = []
        bus = self.system_bus()
        bus.signal_subscribe("org.freedesktop.login1", "org.freedesktop.login1.Manager",
                             "PrepareForSleep", None, None, Gio.DBusSignalFlags.NONE,
                             lambda *signal: output.append(signal[5].unpack()))
        # Once the bus answers, it has heard of the subscription.
        bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetId", None, None,
                      Gio.DBusCallFlags.NONE, -1)
        self.laptop.send("sleep")
        self.laptop.send("wake")

        def both_came():
            GLib.MainContext.default().iteration(False)
            return len(output) == 2

        eventually(both_came, "the bus told of sleep and waking")
        self.assertEqual(output, [(True,), (False,)])

    def test_ports_can_be_described(self):
        port = {"port0": {"power_role": "source [sink]", "port0-partner": {
            "identity": {"id_header": "0x0"}}}}
        self.laptop.send("typec", json.dumps(port))
        read = self.run_on("cat", "/sys/class/typec/port0/power_role",
                           "/sys/class/typec/port0-partner/identity/id_header")
        self.assertEqual(read.stdout, b"source [sink]\n0x0\n")

    def test_wrong_commands_are_refused_in_words(self):
        for words in (["set", "BAT7", "status", "Full"], ["set", "BAT0", "status"], ["fly"],
                      ["fault", "BAT0", "capacity", "purple"], ["upower", "start"], ["plug", "in"]):
            with self.subTest(words), self.assertRaises(CommandRefused):
                self.laptop.send(*words)


class WithoutTheDaemon(OnALaptop):
    upower = False

    def test_it_can_come_late(self):
        self.assertIsNone(self.daemon_says("state"))
        self.laptop.send("upower", "start")
        self.assertEqual(self.daemon_says("percentage"), "37%")


class TheTool(Finite):
    def test_a_program_runs_unchanged_and_gives_its_exit_code(self):
        read = "cat /sys/class/power_supply/BAT0/capacity"
        script = f"{read}; {HERE}/laptop drain BAT0 9 && {read}; exit 7"
        ran = subprocess.run([TOOL, "--", "sh", "-c", script], capture_output=True, check=False)
        self.assertEqual((ran.stdout, ran.returncode), (b"37\n9\n", 7))

    def test_a_missing_machine_is_an_error(self):
        ran = subprocess.run([TOOL, "--machine", "none.json", "--", "true"], capture_output=True,
                             check=False)
        self.assertEqual(ran.returncode, 2)
        self.assertIn(b"none.json", ran.stderr)

    def test_termination_ends_everything_it_started(self):
        with running(TOOL, "--", "sh", "-c", "echo $$ $UMOCKDEV_DIR; exec sleep 600") as tool:
            program, folder = next(lines_of(tool)).split()
            children = _children(tool.pid)
            self.assertIn(int(program), children)
            tool.send_signal(signal.SIGTERM)
            self.assertEqual(tool.wait(), 128 + signal.SIGTERM)
        self.assertFalse([pid for pid in children if _alive(pid)])
        self.assertFalse(os.path.exists(folder))

    def test_it_ends_with_its_parent(self):
        script = f"{TOOL} -- sh -c 'echo $PPID; exec sleep 600' & exec sleep 600"
        with running("sh", "-c", script) as parent:
            tool = int(next(lines_of(parent)))
            children = _children(tool)
            parent.kill()
            parent.wait()
        eventually(lambda: not any(map(_alive, [tool, *children])), "the laptop ended as well")


class EveryMachine(Finite):
    def test_starts_with_its_supplies_and_the_daemon_on_them(self):
        for path in sorted(glob.glob(os.path.join(HERE, "..", "machines", "*.json"))):
            with self.subTest(os.path.basename(path)), VirtualLaptop(path) as laptop:
                with open(path, encoding="utf-8") as file:
                    record = json.load(file)
                shown = subprocess.run(["ls", "/sys/class/power_supply"], env=laptop.environment,
                                       capture_output=True, check=True).stdout.decode().split()
                self.assertLessEqual(set(record["supplies"]), set(shown))
                if record["kind"] == "upower" and "energy" in record["upower"]:
                    self.assertTrue(shown)
                devices = subprocess.run(["upower", "-e"], env=laptop.environment,
                                         capture_output=True, check=True).stdout.decode()
                self.assertIn("DisplayDevice", devices)


def _children(pid):
    with open(f"/proc/{pid}/task/{pid}/children", encoding="ascii") as file:
        return [int(child) for child in file.read().split()]


def _alive(pid):
    try:
        with open(f"/proc/{pid}/stat", encoding="ascii") as file:
            return file.read().rpartition(")")[2].split()[0] != "Z"
    except OSError:
        return False


if __name__ == "__main__":
    unittest.main()
