# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""An ordinary user of this machine, for tests that root runs: with a home and subordinate ids, as
Debian gives them to everybody. Nobody outside of the command's own namespace sees that user."""

import os
import pwd
import subprocess

SOURCE = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
NAME, NUMBER, SUBORDINATE = "ordinary", 54321, 0x10000000
# Where that user finds the tree, which may lie in a folder that is closed to others.
TREE = "/mnt"
BECOME = f"""set -e
home=$1; shift
for file in passwd subuid subgid; do mount --bind "$home/$file" "/etc/$file"; done
mount --bind {SOURCE} {TREE}
cd "$home"
exec setpriv --reuid={NUMBER} --regid={NUMBER} --clear-groups \\
    env --ignore-environment PATH=/usr/bin:/bin USER={NAME} HOME="$home" LC_ALL=C.UTF-8 "$@"
"""


def run_as_ordinary_user(home, *command):
    """Runs a command of the tree, below TREE, and returns how it ended and what it said. The empty
    folder becomes the user's home."""
    people = "".join(":".join(map(str, each)) + "\n" for each in pwd.getpwall())
    ids = f"{NAME}:{SUBORDINATE}:65536\n"
    files = {"passwd": f"{people}{NAME}:x:{NUMBER}:{NUMBER}::{home}:/bin/sh\n",
             "subuid": ids, "subgid": ids}
    for name, text in files.items():
        with open(os.path.join(home, name), "w", encoding="utf-8") as file:
            file.write(text)
    os.chown(home, NUMBER, NUMBER)
    os.chmod(home, 0o755)
    return subprocess.run(["unshare", "--mount", "--", "sh", "-c", BECOME, "sh", home, *command],
                          text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
