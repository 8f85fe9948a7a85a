# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Measures what the item costs each status area over a steady discharge.

    bench/hosts.py BUILD_TREE [HOST...]

on the machine's panels; on the desktops of the host matrix by
"tests/roots/in-desktops 12 --hosts -- /usr/bin/python3 bench/hosts.py BUILD_TREE".

For each host: the processor time of the session's processes, the program and what serves the screen
excepted, in the same minutes without the item and with it; the signals that the item sent to
everybody (a label goes to its host alone); the memory of the program, and the median of the times from
its start to its registered item.
"""

import os
import pathlib
import statistics
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path[:0] = [str(ROOT / "tests"), str(ROOT / "tests" / "endtoend")]

from costs import Registrations, memory_of  # noqa: E402
from harness.hosts import HOSTS, session_of  # noqa: E402
from harness.item import Bus, SignalCount  # noqa: E402
from harness.processes import eventually  # noqa: E402
from harness.program import MOCK, Program, binary  # noqa: E402
from virtuallaptop import VirtualLaptop  # noqa: E402

SETTLING_SECONDS = 30
WATCHED_SECONDS = 120
STEP_SECONDS = 5
STARTS = 15
# The default laptop's battery, in µWh and µW.
FULL, BEGIN, RATE = 46_000_000, 17_020_000, 6_100_000
# In the tray bars the item is not on the bus.
TRAY_BARS = ("i3bar", "tint2", "polybar")
NOT_THE_HOST = ("ferrin", "Xvfb", "dbus-daemon")


def session_processes(session):
    """The processes whose HOME is the session's, by process ID and name."""
    marker = f"XDG_RUNTIME_DIR={session.folder}".encode()
    for folder in pathlib.Path("/proc").iterdir():
        try:
            if folder.name.isdigit() and marker in (folder / "environ").read_bytes():
                yield folder.name, (folder / "comm").read_text().strip()
        except OSError:
            pass


def milliseconds_spent(session):
    """By the path of the thread in /proc."""
    spent = {}
    for process, name in session_processes(session):
        for thread in pathlib.Path(f"/proc/{process}/task").glob("*/schedstat"):
            try:
                if name not in NOT_THE_HOST:
                    spent[thread] = int(thread.read_text().split()[0]) / 1e6
            except OSError:
                pass
    return spent


def discharge(laptop, seconds, each_step):
    """Discharges a battery at its usual rate."""
    begun = time.monotonic()
    while (passed := time.monotonic() - begun) < seconds:
        each_step()
        energy = BEGIN - int(RATE * passed / 3600)
        laptop.send("write", "BAT0", "energy_now", energy, "capacity", energy * 100 // FULL)
        time.sleep(STEP_SECONDS)


def watched(laptop, session, each_step=lambda: None):
    """Milliseconds of processor time per minute."""
    before = milliseconds_spent(session)
    discharge(laptop, WATCHED_SECONDS, each_step)
    after = milliseconds_spent(session)
    # The time of a thread that has ended is no longer counted.
    both = before.keys() & after.keys()
    return sum(after[each] - before[each] for each in both) * 60 / WATCHED_SECONDS


def most_in_a_minute(counts):
    """From the running counts of all steps."""
    steps = 60 // STEP_SECONDS
    return max(later - counts[max(0, number - steps + 1)] for number, later in enumerate(counts))


def time_to_item(host, session, laptop):
    """The median of some starts, in words; empty where no status area lives through them."""
    if host in TRAY_BARS:
        return ""
    mock = {key: laptop.environment[key] for key in MOCK}
    registrations = Registrations(session.environment["DBUS_SESSION_BUS_ADDRESS"])
    try:
        seconds = [registrations.seconds_to_item(
            lambda: session.start([binary()], mock, stderr=subprocess.DEVNULL)) for _ in range(STARTS)]
    except AssertionError as error:
        print(f"{host}: {error}", file=sys.stderr)
        return ""
    return f"{statistics.median(seconds) * 1000:.0f} ms"


def measure(host):
    with VirtualLaptop() as laptop, session_of(host, dark=True, scale=1) as session:
        time.sleep(SETTLING_SECONDS)
        without = watched(laptop, session)
        program = Program(session, laptop)
        program.says(r"3\d%, \d:\d\d to empty")
        eventually(lambda: host in TRAY_BARS or session.bus.item_of(program.pid), "there it is")
        # Whoever has read the item is told of its changes; from here on that is the host alone.
        session.bus.connection.close_sync(None)
        session.bus = Bus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        time.sleep(SETTLING_SECONDS)
        signals = SignalCount(session.bus, program.unseen_item())
        counts = []
        beside = watched(laptop, session, lambda: counts.append(len(signals.collect())))
        memory = memory_of(program.pid)
        program.terminate()
        start = time_to_item(host, session, laptop)
    signals = "" if host in TRAY_BARS else most_in_a_minute(counts)
    print(f"| {host} | {without:.1f} ms | {beside:.1f} ms | {signals} "
          f"| {memory['Private_Dirty']:.1f} MiB | {memory['Pss']:.1f} MiB | {start} |", flush=True)


def main():
    os.environ["FERRIN_BINARY"] = str(pathlib.Path(sys.argv[1]).resolve() / "bin" / "ferrin")
    print("| host | its processor time a minute | with the item | signals in any minute "
          "| private dirty memory | PSS | from start to registered item |\n"
          "|---|---:|---:|---:|---:|---:|---:|")
    for host in sys.argv[2:] or HOSTS:
        measure(host)


if __name__ == "__main__":
    main()
