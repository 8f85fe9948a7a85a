# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A first look at all windows of the program on a desktop: use_installed.py SETTINGS

The settings that it stores are copied to that path.
"""

import os
import shutil
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "endtoend"))
from harness import desktop  # noqa: E402
from harness.case import AT_START  # noqa: E402
from harness.dashboard import TAB, Dashboard  # noqa: E402
from harness.processes import eventually  # noqa: E402
from harness.program import store_path  # noqa: E402
from virtuallaptop import VirtualLaptop  # noqa: E402


def main():
    with VirtualLaptop() as laptop, desktop.XfceScreen() as session, \
            Dashboard(session, laptop, AT_START) as dashboard:
        dashboard.open()
        dashboard.select("HEALTH")
        dashboard.shows(Max_capacity=r"\d+%", Charge_cycles=r".*", Health="Normal", Lifespan=".*")
        dashboard.click("SETTINGS", TAB)
        eventually(dashboard.settings_window, "the settings have opened")
        assert ".qml" not in dashboard.program.log(), dashboard.program.log()
        dashboard.program.terminate()
        shutil.copy(store_path(session), sys.argv[1])


if __name__ == "__main__":
    main()
