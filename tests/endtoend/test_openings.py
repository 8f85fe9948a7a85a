# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard opened and closed a hundred times: nothing of it stays behind."""

from harness.case import AT_START, OnADesktop, main
from harness.processes import eventually

OPENINGS = 100
# After this many, all that is made once has been made.
WARM = 10
# An opening that left anything behind would cost a hundred times more than this by the end.
TOLERANCE_KB = 2048


def memory(process_id):
    """What a process has to itself, and what it has with its share of what is shared, in kB."""
    with open(f"/proc/{process_id}/smaps_rollup", encoding="ascii") as file:
        values = dict(line.split(":", 1) for line in file if line.count(":") == 1)
    return {key: int(values[key].split()[0]) for key in ("Private_Dirty", "Pss")}


class AHundredOpenings(OnADesktop):
    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.item = self.program.item()
        self.program.says(AT_START)

    def all_windows(self):
        """The program's windows, shown or not."""
        return self.session.run("xdotool", "search", "--pid", str(self.program.pid)).split()

    def shown(self):
        return self.session.windows_of(self.program.pid)

    def open_and_close(self):
        self.item.activate()
        eventually(self.shown, "the dashboard has opened")
        # Everything is painted, and the slow figures are read.
        eventually(lambda: self.program.log().count("Connection to shell") > self.refreshed,
                   "the figures have been read")
        self.refreshed += 1
        self.item.activate()
        eventually(lambda: not self.shown(), "the dashboard has closed")

    def test_they_leave_no_window_and_no_memory_behind(self):
        self.refreshed = 0
        before = memory(self.program.pid)
        windows = len(self.all_windows())
        for opening in range(1, OPENINGS + 1):
            self.open_and_close()
            if opening == WARM:
                warm = memory(self.program.pid)
                warm_windows = len(self.all_windows())
        end = memory(self.program.pid)
        print(f"\nkB at first {before}, after {WARM} openings {warm}, after {OPENINGS} {end}")
        self.assertTrue(self.program.is_running())
        self.assertEqual(len(self.all_windows()), warm_windows)
        self.assertLessEqual(warm_windows - windows, 1)
        # The share of what is shared is told above, but it depends on who else is running.
        self.assertLess(end["Private_Dirty"] - warm["Private_Dirty"], TOLERANCE_KB)
        self.program.says(AT_START)


if __name__ == "__main__":
    main()
