# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Processes in groups of their own, ended by number; and waiting without a stop-watch."""

import ctypes
import os
import signal
import subprocess
import time

TIMEOUT_SECONDS = int(os.environ.get("FERRIN_TEST_TIMEOUT", "90"))
PR_SET_PDEATHSIG = 1
LIBC = ctypes.CDLL(None)


def eventually(condition, what, timeout=TIMEOUT_SECONDS):
    """Waits until a condition holds and returns what it returned. The limit is for the dead, not
    for the slow: no test asserts how long anything takes."""
    end = time.monotonic() + timeout
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"this never came true: {what}")
        time.sleep(0.02)


def a_moment():
    """What a person takes between two clicks. Hosts take faster ones for a double click, and a
    menu takes one within half a second of its opening for a slip of the hand."""
    time.sleep(1)


def start(command, environment, user=None, **options):
    """Starts a process as the leader of a group of its own that ends with this process."""
    if user is not None:
        options |= {"user": user, "group": "nogroup", "extra_groups": []}
    options = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL,
               "stderr": subprocess.DEVNULL} | options
    return subprocess.Popen(
        command, env=environment, start_new_session=True,
        preexec_fn=lambda: LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0), **options)


def end(process, first=signal.SIGTERM):
    """Ends a process and what is left of its group."""
    if process.poll() is None:
        process.send_signal(first)
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


def run(command, environment, **options):
    """Runs a short command to its end and gives what it printed."""
    ran = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, capture_output=True,
                         timeout=TIMEOUT_SECONDS, check=False, **options)
    return ran.stdout
