# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The life of a laptop at random: everything that can happen to it, and what holds after each thing.

The same number begins the same life.
"""

import contextlib
import json
import random
import re
import time

from harness.case import AT_START
from harness.processes import eventually
from virtuallaptop import CommandRefused

SPOILT = ("", "-1", "-32768", "65535", "9" * 40, "9223372036854775807", "nonsense", "x" * 4000,
          "\x01\x02", "ÿ", "12 W", "0x10", "1e6")
ATTRIBUTES = ("capacity", "energy_now", "energy_full", "power_now", "voltage_now", "status",
              "cycle_count", "model_name", "present", "capacity_level")
FAULTS = ("eio", "enxio", "directory", "garbage", "huge", "gone", "empty")
CHARGE = re.compile(r"(\d+)%")
TIME = re.compile(r"(\d+):(\d+)")


class RandomLife:
    """Does one thing after the other to a laptop on which the program runs."""

    def __init__(self, laptop, program, seed):
        self._laptop = laptop
        self._program = program
        self._random = random.Random(seed)
        self._battery = laptop.supply("BAT0")
        self.done = {}
        self.slowest = 0.0

    def live(self, operations):
        """So many operations, after each of which the item answers with possible words."""
        for _ in range(operations):
            self.do_one()
            self.check()

    def do_one(self):
        operation = self._random.choice(self.operations())
        name = operation.__name__.strip("_")
        self.done[name] = self.done.get(name, 0) + 1
        operation()

    def operations(self):
        """Everything that can happen, the usual more often than the rest."""
        return [self._plug, self._unplug, self._drain, self._drain, self._charge, self._spoil,
                self._spoil, self._break, self._heal, self._remove, self._second_battery,
                self._mouse, self._flap, self._adapter_details, self._upower, self._hang, self._sleep]

    def check(self):
        """The program runs, and answers with words that can be true."""
        before = time.monotonic()
        said = self._program.unseen_item().says()
        self.slowest = max(self.slowest, time.monotonic() - before)
        if said is None:
            raise AssertionError("the item does not answer:\n" + self._program.log())
        charges = [int(charge) for charge in CHARGE.findall(said)]
        minutes = [int(minutes) for _, minutes in TIME.findall(said)]
        if max(charges, default=0) > 100 or max(minutes, default=0) > 59:
            raise AssertionError(f"the item says {said!r}")

    def come_to_rest(self):
        """Everything is as in the beginning, and so are the words."""
        laptop = self._laptop
        laptop.send("wake")
        for name in list(laptop.send("state")):
            if name not in ("BAT0", "AC", "ucsi-source-psy-USBC000:001"):
                laptop.send("remove", name)
        for attribute in self._battery:
            self._try("heal", "BAT0", attribute)
        self._try("upower", "stop")
        laptop.send("upower", "start")
        laptop.send("set", "BAT0", *(word for pair in self._battery.items() for word in pair))
        laptop.send("unplug")
        self._says_the_time_of_the_start()

    def _says_the_time_of_the_start(self):
        # How long it lasts is a mean of what was drawn in the last minutes, of which some were mad.
        charge = AT_START.split("%", maxsplit=1)[0]
        eventually(lambda: re.fullmatch(rf"{charge}%, \d+:[0-5]\d to empty",
                                        self._program.unseen_item().says() or ""),
                   "the item says what is true")

    # What can happen.

    def _plug(self):
        self._try("plug")

    def _unplug(self):
        self._try("unplug")

    def _drain(self):
        self._try("drain", "BAT0", self._random.randint(0, 100))

    def _charge(self):
        self._try("charge", "BAT0", self._random.randint(0, 100))

    def _spoil(self):
        value = self._random.choice((*SPOILT, str(self._random.randint(-10**9, 10**9))))
        self._try("set", "BAT0", self._random.choice(ATTRIBUTES), value)

    def _break(self):
        self._try("fault", "BAT0", self._random.choice(ATTRIBUTES), self._random.choice(FAULTS))
        self._laptop.send("uevent", "BAT0")

    def _heal(self):
        for attribute, value in self._battery.items():
            self._try("heal", "BAT0", attribute)
            self._try("write", "BAT0", attribute, value)
        self._laptop.send("uevent", "BAT0")

    def _remove(self):
        self._heal()
        self._laptop.send("remove", "BAT0")
        self.check()
        self._laptop.send("add", "BAT0")

    def _second_battery(self):
        self._come_and_go("BAT1", self._battery | {
            "capacity": str(self._random.randint(0, 100)), "status": "Not charging"})

    def _mouse(self):
        self._come_and_go("hidpp_battery_0", {"type": "Battery", "scope": "Device",
                                              "status": "Discharging", "capacity": "7"})

    def _come_and_go(self, name, attributes):
        if name in self._laptop.send("state"):
            self._laptop.send("remove", name)
        else:
            self._laptop.send("add", name, json.dumps(attributes))

    def _flap(self):
        for _ in range(self._random.randint(2, 12)):
            self._plug()
            self._unplug()

    def _adapter_details(self):
        self._plug()
        self._laptop.send("adapter-details")

    def _upower(self):
        self._try("upower", self._random.choice(("restart", "stop", "start")))

    def _hang(self):
        self._try("upower", "hang")
        self._try("plug")
        self.check()
        self._try("upower", "resume")

    def _sleep(self):
        self._laptop.send("sleep")
        self._laptop.send("wake")

    def _try(self, *words):
        """What cannot be done to the laptop as it is now is not done."""
        with contextlib.suppress(CommandRefused):
            self._laptop.send(*words)
