# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Whoever is on the session bus may call the item. Strangers that flood it, send nonsense, come and go,
or play the status area keep nobody else from it, leave nothing behind and have nothing written."""

import os
import random
import time

from harness import desktop
from harness.case import AT_START, OnADesktop, main
from harness.holdings import Holdings
from harness.item import ITEM, MENU, WATCHER, Bus
from harness.processes import a_moment, eventually
from harness.program import store_path

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

# The same nonsense again: FERRIN_TEST_SEED=...
SEED = int(os.environ.get("FERRIN_TEST_SEED", "20260101"))
PROPERTIES = "org.freedesktop.DBus.Properties"
APPLICATION = "org.freedesktop.Application"
PATHS = ("/StatusNotifierItem", "/MenuBar", "/org/ferrin/Ferrin", "/", "/no/such/thing")
INTERFACES = (ITEM, MENU, PROPERTIES, APPLICATION, "org.freedesktop.DBus.Introspectable",
              "no.such.Interface")
# All but those that do what they are for: open and quit.
METHODS = ("Get", "GetAll", "Set", "GetLayout", "GetGroupProperties", "GetProperty", "AboutToShow",
           "AboutToShowGroup", "Scroll", "SecondaryActivate", "ProvideXdgActivationToken",
           "Introspect", "Open", "ActivateAction", "NoSuchMethod")
TYPES = ("s", "i", "u", "b", "y", "x", "d", "o", "g", "v", "as", "ai", "a(ia{sv})", "a{sv}", "(ii)",
         "a(isvu)", "av")
TEXTS = ("", "ToolTip", "IconPixmap", "label", "x" * 60000, "\u202e\u0007", ITEM, MENU)
NUMBERS = (0, 1, -1, 7, 1003, 2**31 - 1, -2**31)


class Stranger:
    """Says things to the item that nobody should say."""

    def __init__(self, seed):
        self._random = random.Random(seed)

    def arguments(self):
        signature = "".join(self._random.choices(TYPES, k=self._random.randint(0, 4)))
        return GLib.Variant(f"({signature})", tuple(self._values(signature)))

    def call(self):
        return (self._random.choice(PATHS), self._random.choice(INTERFACES),
                self._random.choice(METHODS), self.arguments())

    def _values(self, signature):
        for each in _split(signature):
            yield self._value(each)

    def _value(self, kind):
        if kind in "iux":
            number = self._random.choice(NUMBERS)
            return abs(number) if kind == "u" else number
        simple = {"s": self._random.choice(TEXTS), "b": True, "y": 255, "d": float("nan"),
                  "o": "/StatusNotifierItem", "g": "a(isvu)", "v": GLib.Variant("s", "x"),
                  "(ii)": (1, 2), "a{sv}": {"a": GLib.Variant("i", 1)}}
        if kind in simple:
            return simple[kind]
        element = {"as": "", "ai": 5, "av": GLib.Variant("v", GLib.Variant("s", "x")),
                   "a(ia{sv})": (1, {}), "a(isvu)": (1001, "hovered", GLib.Variant("i", 0), 0)}[kind]
        return [element] * self._random.choice((0, 1, 500))


def _split(signature):
    """The single complete types of a signature that is made of TYPES."""
    while signature:
        kind = next(kind for kind in sorted(TYPES, key=len, reverse=True) if signature.startswith(kind))
        yield kind
        signature = signature[len(kind):]


class Strangers(OnADesktop):
    def make_session(self):
        return desktop.XfceScreen(panel=False)

    def setUp(self):
        super().setUp()
        self.watcher = self.session.start_watcher()
        self.program = self.start()
        self.item = self.program.item()
        self.program.says(AT_START)
        a_moment()
        self.written = self.what_is_written()

    def new_bus(self):
        return Bus(self.session.environment["DBUS_SESSION_BUS_ADDRESS"])

    def what_is_written(self):
        return {path: os.stat(path).st_mtime_ns
                for path in (store_path(self.session), os.path.dirname(store_path(self.session)))
                if os.path.exists(path)}

    def is_unharmed(self):
        # The time that is shown runs down by itself.
        self.program.says(r"37%, 2:4\d to empty")
        self.laptop.send("drain", "BAT0", 33)
        self.program.says(r"33%, 2:[23]\d to empty")
        self.assertEqual(self.what_is_written(), self.written)
        self.assertEqual(self.session.windows_of(self.program.pid), [])

    def flood(self, bus, count, ask):
        """Calls without waiting; gives how many were answered, one way or the other, in the end."""
        answered = []
        context = GLib.MainContext.default()
        slowest = 0
        for number in range(count):
            path, interface, method, arguments = ask()
            bus.connection.call(self.item.name, path, interface, method, arguments, None,
                                Gio.DBusCallFlags.NO_AUTO_START, 60000, None,
                                lambda _bus, result: answered.append(result))
            if number % 500 == 499:
                before = time.monotonic()
                self.assertIsNotNone(self.item.says())
                slowest = max(slowest, time.monotonic() - before)
        while len(answered) < count:
            context.iteration(True)
        print(f"\n{count} calls; the slowest answer to another caller took {slowest * 1000:.0f} ms")
        return answered

    def settled(self):
        a_moment()
        return Holdings(self.session, self.program)

    def leaves_nothing(self, once):
        """Done again, it leaves nothing. The heap keeps the room that answers took while they waited, so
        the first times may: how many wait depends on what else the machine does."""
        for _ in range(4):
            before = self.settled()
            once()
            more = self.settled().exceed(before)
            if not more:
                return
        self.fail(f"each time leaves something: {more}")

    def test_a_flood_of_questions_keeps_nobody_else_from_an_answer(self):
        bus = self.new_bus()

        def ask():
            return "/StatusNotifierItem", PROPERTIES, "GetAll", GLib.Variant("(s)", (ITEM,))
        self.flood(bus, 2000, ask)
        self.leaves_nothing(lambda: self.flood(bus, 10000, ask))
        self.is_unharmed()

    def test_nonsense_is_answered_and_does_nothing(self):
        bus = self.new_bus()
        stranger = Stranger(SEED)
        self.flood(bus, 2000, stranger.call)
        self.leaves_nothing(lambda: self.flood(bus, 5000, stranger.call))
        self.is_unharmed()

    def test_callers_that_come_and_go_are_forgotten(self):
        def come_and_go(count):
            for _ in range(count):
                bus = self.new_bus()
                bus.call(self.item.name, "/StatusNotifierItem", PROPERTIES, "GetAll", "(s)", ITEM)
                bus.connection.close_sync(None)
        come_and_go(100)
        self.leaves_nothing(lambda: come_and_go(300))
        self.is_unharmed()

    def test_a_status_area_that_comes_and_goes_is_followed(self):
        self.session.end_process(self.watcher)
        bus = self.new_bus()

        def take_and_drop(count):
            for _ in range(count):
                for method, arguments in (("RequestName", ("su", (WATCHER, 0))),
                                          ("ReleaseName", ("s", (WATCHER,)))):
                    bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                             method, f"({arguments[0]})", *arguments[1])
        take_and_drop(100)
        self.leaves_nothing(lambda: take_and_drop(300))
        self.session.start_watcher()
        eventually(lambda: self.session.bus.item_count() == 1, "the item is registered")
        self.is_unharmed()


if __name__ == "__main__":
    main()
