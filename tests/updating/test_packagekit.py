#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Updates by the real PackageKit, polkit and apt, in a Debian that has nothing else to lose.

    test_packagekit.py [NAME_OF_A_TEST...]
"""

import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
TREE = os.path.dirname(os.path.dirname(HERE))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(HERE, ".."))
from roots import cached, packages_of  # noqa: E402


def main():
    driver = os.environ["FERRIN_UPDATE_DRIVER"]
    with cached("bookworm", packages_of("updates")).copy() as root:
        ended = subprocess.run(
            root.command("/usr/bin/python3", "-B", "/mnt/tree/tests/updating/updatecases.py",
                         *sys.argv[1:], binds=[f"{TREE}:/mnt/tree", f"{driver}:/mnt/driver"]),
            check=False)
    sys.exit(ended.returncode)


if __name__ == "__main__":
    main()
