# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The command lines that run something in namespaces of its own."""

import json
import os
import subprocess
import sys

INSIDE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "inside.py")
PATH = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"
ENVIRONMENT = {"PATH": PATH, "LC_ALL": "C.UTF-8"}
HOMES = {"root": "/root", "person": "/home/person"}
HOW_TO_GET_THEM = """An ordinary user needs for them:
  - newuidmap and newgidmap, of the package uidmap;
  - 65536 subordinate ids: a line "{user}:100000:65536" in /etc/subuid and in /etc/subgid;
  - a kernel that lets users make namespaces: kernel.unprivileged_userns_clone=1 and
    kernel.apparmor_restrict_unprivileged_userns=0, where sysctl knows them.
In a container, its own confinement may forbid them to root, too (Docker: --privileged)."""


class NoNamespaces(Exception):
    """Roots cannot be entered here; says why, and what helps."""


def as_its_root(command):
    """The command with all ids of a system of its own, and power over files of theirs."""
    if os.geteuid() == 0:
        return list(command)
    return ["unshare", "--user", "--map-root-user", "--map-auto", "--", *command]


def require():
    """Raises NoNamespaces unless roots can be made and entered here."""
    try:
        tried = subprocess.run(as_its_root(_apart(True) + ["mount", "-t", "proc", "proc", "/proc"]),
                               text=True, stdin=subprocess.DEVNULL, capture_output=True,
                               check=False)
    except FileNotFoundError as error:
        raise NoNamespaces(f"{error.filename} is not installed") from error
    if tried.returncode != 0:
        advice = HOW_TO_GET_THEM.format(user=os.environ.get("USER", "NAME"))
        raise NoNamespaces("This system gives no namespaces to make and enter roots in:\n  "
                           + tried.stderr.strip() + "\n" + advice)


def entered(path, command, *, user="root", binds=(), environment=None, folder="/",
            network=False, writable=False):
    """The command line that runs a command in the root in a folder.

    user: "root" of the root, or "person", an ordinary user in it who owns the caller's files
    binds: folders and files of the machine, "PATH" or "PATH:PATH_INSIDE", that it may write to
    environment: added to a bare one
    network: of the machine; else there is loopback alone
    writable: whether what is not bound may be changed for good
    All that was started ends with the command.
    """
    order = {"root": path, "command": list(command), "user": user, "binds": list(binds),
             "environment": ENVIRONMENT | {"HOME": HOMES[user], "USER": user} | (environment or {}),
             "folder": folder, "network": network, "writable": writable}
    return as_its_root([*_apart(not network), sys.executable, "-B", INSIDE, json.dumps(order)])


def _apart(network):
    return ["unshare", "--mount", "--pid", "--ipc", *["--net"] * network, "--fork",
            "--kill-child=SIGKILL", "--"]
