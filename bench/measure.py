#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Measures what Ferrin costs, beside floors and beside cbatticon, and prints one table.

    bench/measure.py BUILD_TREE

Instructions are counted by callgrind and repeat; seconds do not, so starting is told as a ratio of
medians of runs that took turns.
"""

import os
import pathlib
import re
import statistics
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path[:0] = [str(ROOT / "tests"), str(ROOT / "tests" / "endtoend")]

from costs import Registrations, memory_of  # noqa: E402
from harness import desktop  # noqa: E402
from harness.dashboard import Dashboard  # noqa: E402
from harness.processes import end, eventually  # noqa: E402
from harness.program import MOCK, Program  # noqa: E402
from harness.settings import PAGES, Settings  # noqa: E402
from harness.shells import PlasmaScreen  # noqa: E402
from virtuallaptop import VirtualLaptop  # noqa: E402

TREE = pathlib.Path(sys.argv[1]).resolve()
FERRIN = TREE / "bin" / "ferrin"
REFRESH = TREE / "bench" / "bench_refresh"
BARE_ITEM = TREE / "bench" / "bench_bareitem"
# A folder of the package manager's, in whose place the tree is seen.
PACKAGE_FOLDER = "/usr/games"
OPENING = TREE / "bench" / "bench_opening"
OUR_WINDOWS = TREE / "libexec" / "ferrin" / "ferrin-windows.so"
BARE_WINDOWS = TREE / "bench" / "bench_barewindow.so"

SETTLING_SECONDS = 8
WATCHED_SECONDS = 60
# By then the program has stored what it learned at its start, and Qt's threads that helped to paint
# have ended.
RESTING_SECONDS = 40
STARTS = 15
STARTS_OF_TWINS = 5
MEMORIES_OF_TWINS = 5
OPENINGS = 10
SETTINGS_OPENINGS = 3
FIRST_OPENINGS = 9
# After each of the first.
LATER_OPENINGS = 8
REFRESHES = 1000
CHANGING_REFRESHES = 100_000


def row(what, measured, beside, verdict):
    print(f"| {what} | {measured} | {beside} | {verdict} |", flush=True)


def verdict(ratio, limit):
    return f"{ratio:.2f} (limit {limit:g})" + ("" if ratio <= limit else " **missed**")


COUNTING = ("valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null")


def counted(output):
    return int(re.search(r"Collected : (\d+)", output)[1])


def instructions(mode, count, batteries):
    return counted(subprocess.run([*COUNTING, REFRESH, mode, str(count), str(batteries)],
                                  capture_output=True, text=True, check=True).stderr)


def instructions_a_refresh(mode, batteries):
    # The difference of two runs excludes starting and ending.
    few, many = 200, 200 + REFRESHES
    return (instructions(mode, many, batteries) - instructions(mode, few, batteries)) / REFRESHES


def refreshes():
    ours, plain, bare = (instructions_a_refresh(mode, 1) for mode in ("ours", "plain", "bare"))
    row("Instructions of a refresh on which nothing changed", f"{ours:,.0f}",
        f"{bare:,.0f} the same files by system calls alone", verdict(ours / bare, 3))
    row("", "", f"{plain:,.0f} the same files by `QFile`", verdict(ours / plain, 3))
    before = ours
    for batteries in (4, 16, 64):
        grown = instructions_a_refresh("ours", batteries)
        row(f"The same with {batteries} batteries", f"{grown:,.0f}", f"{before:,.0f} with a fourth",
            verdict(grown / before, 4))
        before = grown


def changing():
    output = subprocess.run([REFRESH, "changing", str(CHANGING_REFRESHES), "1"],
                            capture_output=True, text=True, check=True).stdout
    first, last = (int(number) for number in re.findall(r": (\d+)", output))
    row(f"Bytes held after {CHANGING_REFRESHES:,} refreshes with changing values", f"{last:,}",
        f"{first:,} after the first thousand", verdict(last / first, 1))


def memory(session_type, where, environment):
    with VirtualLaptop() as laptop, session_type() as session:
        program = Program(session, laptop, environment)
        program.unseen_item()
        other = session.start(["cbatticon"], {key: laptop.environment[key] for key in MOCK})
        time.sleep(SETTLING_SECONDS)
        ours, theirs = memory_of(program.pid), memory_of(other.pid)
    for name, title, limit in (("Pss", "PSS", 0.5), ("Private_Dirty", "Private dirty", 1 / 3)):
        row(f"{title}, idle, {where}", f"{ours[name]:.1f} MiB",
            f"{theirs[name]:.1f} MiB cbatticon", verdict(ours[name] / theirs[name], limit))
    row(f"Resident, idle, {where}", f"{ours['Rss']:.1f} MiB", f"{theirs['Rss']:.1f} MiB cbatticon",
        verdict(ours["Rss"] / 32, 1))


def wake_ups_by_thread(pid):
    return {task.name: int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)",
                                     (task / "status").read_text(), re.M)[1])
            for task in pathlib.Path(f"/proc/{pid}/task").iterdir()}


def watched_wake_ups(pid):
    time.sleep(RESTING_SECONDS)
    before = wake_ups_by_thread(pid)
    time.sleep(WATCHED_SECONDS)
    after = wake_ups_by_thread(pid)
    # The count of a thread that has ended is lost.
    return sum(count - before.get(thread, 0) for thread, count in after.items())


def wake_up_row(where, counted):
    expected = WATCHED_SECONDS / 5
    row(f"Wake-ups in {WATCHED_SECONDS} seconds {where}", counted, f"{expected:.0f} of the timer",
        verdict(counted / expected, 1.1))


def rest(laptop):
    """A full battery at the mains: no time runs down that the panel would have to be told."""
    laptop.send("plug")
    laptop.send("set", "BAT0", "status", "Full", "capacity", 100)


def wake_ups():
    # Without UPower, which emits a signal every two minutes at rest.
    with VirtualLaptop(None, False) as laptop, desktop.XfceScreen() as session:
        rest(laptop)
        program = Program(session, laptop)
        program.item()
        wake_up_row("at rest", watched_wake_ups(program.pid))


def starting():
    with VirtualLaptop() as laptop, desktop.XfceScreen() as session:
        mock = {key: laptop.environment[key] for key in MOCK}
        program = Program(session, laptop)
        program.item()
        program.terminate()
        registrations = Registrations(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        taken = {binary: [] for binary in (FERRIN, BARE_ITEM)}
        for _ in range(STARTS):
            for binary, seconds in taken.items():
                seconds.append(registrations.seconds_to_item(
                    lambda: session.start([str(binary)], mock, stderr=subprocess.DEVNULL)))
    ours, bare = (statistics.median(seconds) * 1000 for seconds in taken.values())
    row(f"From process start to registered item, median of {STARTS}", f"{ours:.0f} ms",
        f"{bare:.0f} ms a bare `QGuiApplication`", verdict(ours / bare, 1.5))


def instructions_to_item(command, session, mock, registrations):
    """Until its item is registered, the end that follows at once included."""
    log = pathlib.Path(session.folder, "counted")
    registrations.seconds_to_item(lambda: session.start(
        command(*COUNTING, f"--log-file={log}"), mock, stderr=subprocess.DEVNULL))
    return counted(log.read_text())


def as_built(*before):
    return [*before, str(FERRIN)]


def as_installed(*before):
    """The same program where packages put theirs, in a mount namespace of its own."""
    mine = [] if os.geteuid() == 0 else ["--user", "--map-current-user", "--keep-caps"]
    return ["unshare", *mine, "--mount", "--", "sh", "-c",
            f'mount --bind {TREE} {PACKAGE_FOLDER} && exec "$@"', "sh", *before,
            f"{PACKAGE_FOLDER}/bin/ferrin"]


def updater():
    """What the updater costs: the same program where a package may own it, and where none can."""
    twins = (as_installed, as_built)
    taken = {command: [] for command in twins}
    held = {command: [] for command in twins}
    with VirtualLaptop(None, False) as laptop, desktop.XfceScreen() as session:
        mock = {key: laptop.environment[key] for key in MOCK}
        registrations = Registrations(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        for _ in range(STARTS_OF_TWINS):
            for command in twins:
                taken[command].append(instructions_to_item(command, session, mock, registrations))
        for _ in range(MEMORIES_OF_TWINS):
            for command in twins:
                program = session.start(command(), mock, stderr=subprocess.DEVNULL)
                time.sleep(SETTLING_SECONDS)
                held[command].append(memory_of(program.pid)["Pss"])
                end(program)
    ours, bare = map(statistics.median, taken.values())
    row(f"Instructions from process start to registered item with an updater, median of "
        f"{STARTS_OF_TWINS}", f"{ours:,.0f}", f"{bare:,.0f} without", f"{ours / bare:.4f} (limit 1.02)"
        + ("" if ours / bare <= 1.02 else " **missed**"))
    ours, bare = (statistics.median(megabytes) for megabytes in held.values())
    row("PSS, idle, with an updater", f"{ours:.2f} MiB", f"{bare:.2f} MiB without",
        f"{ours - bare:.2f} (limit 1)" + ("" if ours - bare <= 1 else " **missed**"))


def switch_dashboard(program, session, shown):
    program.item().activate()
    eventually(lambda: bool(session.windows_of(program.pid)) == shown, "the dashboard has turned")


def after_the_settings():
    screen = desktop.XfceScreen()
    screen.size = (1000, 600)
    with VirtualLaptop(None, False) as laptop, screen as session, \
            Dashboard(session, laptop, r"37%.*") as dashboard:
        window, pid = Settings(session, dashboard), dashboard.program.pid
        time.sleep(SETTLING_SECONDS)
        before = memory_of(pid)
        for _ in range(SETTINGS_OPENINGS):
            window.open()
            for page in PAGES:
                window.select(page)
            window.close()
        time.sleep(SETTLING_SECONDS)
        left = memory_of(pid)["Pss"] - before["Pss"]
    row(f"PSS left by {SETTINGS_OPENINGS} openings of the settings and all of their pages",
        f"{left:.1f} MiB", f"{before['Pss']:.1f} MiB before the first", f"{left:.1f} (no limit)")


def after_the_dashboard(session_type, where):
    with VirtualLaptop(None, False) as laptop, session_type() as session:
        program = Program(session, laptop)
        program.item()
        time.sleep(SETTLING_SECONDS)
        before = memory_of(program.pid)
        for _ in range(OPENINGS):
            switch_dashboard(program, session, True)
            time.sleep(1)
            switch_dashboard(program, session, False)
            time.sleep(1)
        time.sleep(SETTLING_SECONDS)
        after = memory_of(program.pid)
        rest(laptop)
        switch_dashboard(program, session, True)
        counted = watched_wake_ups(program.pid)
    left = after["Pss"] - before["Pss"]
    row(f"PSS left by {OPENINGS} openings of the dashboard, {where}", f"{left:.1f} MiB",
        f"{before['Pss']:.1f} MiB before the first", f"{left:.1f} (limit 15)")
    wake_up_row(f"with the dashboard open, {where}", counted)


def milliseconds_to_open(what, modules):
    """The first openings of a module's window and all later ones, of processes that took turns."""
    first = {module: [] for module in modules}
    later = {module: [] for module in modules}
    with desktop.BareScreen() as session:
        for _ in range(FIRST_OPENINGS):
            for module in modules:
                window = session.start([str(OPENING), str(module), what, str(1 + LATER_OPENINGS)],
                                       stdout=subprocess.PIPE)
                milliseconds = [float(line) for line in window.communicate()[0].split()]
                first[module].append(milliseconds[0])
                later[module] += milliseconds[1:]
    return [[statistics.median(taken) for taken in each.values()] for each in (first, later)]


def opening(what, title, first_limit, later_limit):
    first, later = milliseconds_to_open(what, (OUR_WINDOWS, BARE_WINDOWS))
    for name, (ours, bare), limit in (("first", first, first_limit),
                                      ("a later", later, later_limit)):
        row(f"From the click to {title}, {name} opening", f"{ours:.1f} ms",
            f"{bare:.1f} ms a bare `QQuickView`", verdict(ours / bare, limit))


def opening_icons():
    for name, (taken,) in zip(("first", "a later"), milliseconds_to_open("icons", (OUR_WINDOWS,))):
        row(f"CPU time to open the popover of 36 icons, {name} opening", f"{taken:.0f} ms",
            "100 ms", verdict(taken / 100, 1))


def main():
    os.environ["FERRIN_BINARY"] = str(FERRIN)
    print("| what | Ferrin | beside | ratio |\n|---|---:|---:|---|")
    refreshes()
    changing()
    panels = [(desktop.XfceScreen, "XFCE", "in the Xfce panel")]
    # Plasma 5 shares no Qt with Ferrin.
    if PlasmaScreen.daemon == "kded6":
        panels.append((PlasmaScreen, "KDE", "in Plasma's panel"))
    for session_type, name, where in (*panels, (desktop.BareScreen, "GNOME", "without any panel")):
        memory(session_type, where, {"XDG_CURRENT_DESKTOP": name})
    starting()
    updater()
    opening("dashboard", "the first frame", 3, 1.5)
    opening("settings", "the first frame of the settings", 2, 2)
    opening_icons()
    for session_type, _, where in panels:
        after_the_dashboard(session_type, where)
    after_the_settings()
    wake_ups()


if __name__ == "__main__":
    main()
