# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The first process in new namespaces: turns a folder into the root of the file system, runs one
command there and ends with it. What to do comes as JSON; namespaces.py writes it."""

import ctypes
import fcntl
import json
import os
import signal
import socket
import struct
import subprocess
import sys

DEVICES = ("null", "zero", "full", "random", "urandom", "tty")
LINKS = {"fd": "/proc/self/fd", "stdin": "/proc/self/fd/0", "stdout": "/proc/self/fd/1",
         "stderr": "/proc/self/fd/2", "ptmx": "pts/ptmx"}
# Gone with the command, even where the rest may be written to.
VOLATILE = {"tmp": "mode=1777", "run": "mode=755", "var/tmp": "mode=1777"}
SIOCGIFFLAGS, SIOCSIFFLAGS, IFF_UP = 0x8913, 0x8914, 1
MNT_DETACH = 2
SYS_PIVOT_ROOT = {"x86_64": 155, "aarch64": 41}
LIBC = ctypes.CDLL(None, use_errno=True)


def mount(*words, must=True):
    done = subprocess.run(["mount", *words], text=True, stderr=subprocess.PIPE, check=False)
    if must and done.returncode != 0:
        sys.exit(f"root: {' '.join(words)}: {done.stderr.strip()}")


def bind(source, target):
    if os.path.isdir(source):
        os.makedirs(target, exist_ok=True)
    elif not os.path.exists(target):
        os.makedirs(os.path.dirname(target), exist_ok=True)
        with open(target, "w", encoding="utf-8"):
            pass
    mount("--rbind", source, target)


def set_up_devices(folder):
    mount("-t", "tmpfs", "-o", "mode=755", "tmpfs", folder)
    for name in DEVICES:
        bind(f"/dev/{name}", os.path.join(folder, name))
    for name, target in LINKS.items():
        os.symlink(target, os.path.join(folder, name))
    for name in ("shm", "pts"):
        os.mkdir(os.path.join(folder, name))
    mount("-t", "tmpfs", "-o", "mode=1777", "tmpfs", os.path.join(folder, "shm"))
    mount("-t", "devpts", "-o", "newinstance,ptmxmode=0666,mode=620", "devpts",
          os.path.join(folder, "pts"))


def set_up(order):
    """Makes the root whole below its folder. Its places for mounts were made with it."""
    root = order["root"]
    mount("--bind", root, root)
    for name, options in VOLATILE.items():
        mount("-t", "tmpfs", "-o", options, "tmpfs", os.path.join(root, name))
    if not order["writable"]:
        for name in ("home", "root", "mnt"):
            mount("-t", "tmpfs", "-o", "mode=755", "tmpfs", os.path.join(root, name))
    # Nobody but root may make it, and X servers want it.
    os.makedirs(os.path.join(root, "tmp/.X11-unix"))
    os.chmod(os.path.join(root, "tmp/.X11-unix"), 0o1777)
    os.makedirs(os.path.join(root, "home/person"), exist_ok=True)
    mount("-t", "proc", "proc", os.path.join(root, "proc"))
    # Only who owns the network may; a root is complete without it, too.
    mount("-t", "sysfs", "-o", "ro", "sysfs", os.path.join(root, "sys"), must=False)
    set_up_devices(os.path.join(root, "dev"))
    if order["network"]:
        bind(os.path.realpath("/etc/resolv.conf"), os.path.join(root, "etc/resolv.conf"))
    for each in order["binds"]:
        source, _, target = each.partition(":")
        bind(source, root + (target or source))
    if not order["writable"]:
        protect(root)


def protect(root):
    """Nobody may change the root itself; what is mounted below it stays as it is."""
    output = subprocess.run(["findmnt", "--noheadings", "--output", "VFS-OPTIONS", "--mountpoint",
                             root], text=True, stdout=subprocess.PIPE, check=True).stdout
    # The options that it has may not be given up.
    kept = [option for option in output.split()[-1].split(",") if option != "rw"]
    mount("-o", ",".join(["remount", "bind", "ro", *kept]), root)


def enter(root):
    os.chdir(root)
    if LIBC.syscall(SYS_PIVOT_ROOT[os.uname().machine], b".", b".") != 0 \
            or LIBC.umount2(b".", MNT_DETACH) != 0:
        sys.exit(f"root: {os.strerror(ctypes.get_errno())} on entering {root}")
    os.chdir("/")


def bring_up_loopback():
    with socket.socket() as any_socket:
        request = struct.pack("16sH14x", b"lo", 0)
        flags = struct.unpack("16sH14x", fcntl.ioctl(any_socket, SIOCGIFFLAGS, request))[1]
        fcntl.ioctl(any_socket, SIOCSIFFLAGS, struct.pack("16sH14x", b"lo", flags | IFF_UP))


def run(order):
    """Runs the command as somebody, reaps whom it leaves behind, and returns its exit code."""
    command = order["command"]
    if order["user"] == "person":
        command = ["unshare", "--user", "--map-user=1000", "--map-group=1000", "--", *command]
    child = subprocess.Popen(["env", "--chdir", order["folder"], *command],
                             env=order["environment"])
    signal.signal(signal.SIGTERM, lambda *_: child.terminate())
    while True:
        process_id, status = os.wait()
        if process_id == child.pid:
            code = os.waitstatus_to_exitcode(status)
            return code if code >= 0 else 128 - code


def main():
    order = json.loads(sys.argv[1])
    if not order["network"]:
        bring_up_loopback()
    set_up(order)
    enter(order["root"])
    return run(order)


if __name__ == "__main__":
    sys.exit(main())
