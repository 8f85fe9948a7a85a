# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A Flatpak's sandbox around the program, made of the permissions that its manifest asks for, by the
tools that Flatpak itself uses: bubblewrap and the proxy of the buses."""

import json
import os
import signal
import subprocess
import tempfile

from harness.dashboard import Dashboard
from harness.item import PROGRAM
from harness.processes import eventually
from harness.program import MOCK, Program

# What every sandbox may do on the session bus.
SESSION = ["--filter", f"--own={PROGRAM}", f"--own={PROGRAM}.*", "--call=org.freedesktop.portal.*=*",
           "--broadcast=org.freedesktop.portal.*=@/org/freedesktop/portal/*",
           # Not Flatpak's: how the tests read the windows. Flatpak has a proxy of its own for that.
           "--talk=org.a11y.Bus"]
BUSES = {"DBUS_SESSION_BUS_ADDRESS": "/run/flatpak/bus",
         "DBUS_SYSTEM_BUS_ADDRESS": "/run/dbus/system_bus_socket"}
FOLDERS = {"XDG_CONFIG_HOME": "config", "XDG_DATA_HOME": "data", "XDG_CACHE_HOME": "cache",
           "XDG_STATE_HOME": ".local/state"}
KEPT = ("DISPLAY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "HOME", "XDG_RUNTIME_DIR", "LC_ALL",
        "LIBGL_ALWAYS_SOFTWARE")
# Each option of bubblewrap with a path that is the same on both sides.
SYSTEM = ["--ro-bind", "/usr", "/usr", "--ro-bind", "/etc", "/etc", "--ro-bind", "/sys", "/sys",
          "--symlink", "usr/bin", "/bin", "--symlink", "usr/lib", "/lib", "--symlink", "usr/lib64",
          "/lib64", "--proc", "/proc", "--dev", "/dev", "--tmpfs", "/tmp", "--tmpfs", "/run"]


def manifest(path):
    """What Flatpak's builder makes of the manifest."""
    # It leaves a folder where it is run.
    with tempfile.TemporaryDirectory(prefix="ferrin-manifest-") as folder:
        output = subprocess.run(["flatpak-builder", "--show-manifest", path], check=True, cwd=folder,
                                stdout=subprocess.PIPE, text=True).stdout
    return json.loads(output)


def data_folder(session):
    """The one folder of the user's that the program has, seen from outside."""
    return os.path.join(session.environment["HOME"], ".var", "app", PROGRAM)


class Permissions:
    """The manifest's, in the terms of bubblewrap and the proxy. One that is not known is an error."""

    def __init__(self, arguments):
        self.session, self.system = list(SESSION), ["--filter"]
        self.wrap = ["--unshare-user", "--unshare-pid", "--unshare-cgroup-try"]
        self.has_x11 = False
        left = list(arguments)
        if "--share=network" not in left:
            self.wrap.append("--unshare-net")
        if "--share=ipc" not in left:
            self.wrap.append("--unshare-ipc")
        for each in left:
            self._take(each)

    def _take(self, argument):
        if argument.startswith("--system-talk-name="):
            self.system.append(argument.replace("--system-talk-name", "--talk"))
        elif argument.startswith("--talk-name="):
            self.session.append(argument.replace("--talk-name", "--talk"))
        elif argument == "--device=dri":
            self.wrap += ["--dev-bind-try", "/dev/dri", "/dev/dri"]
        elif argument == "--socket=fallback-x11":
            self.has_x11 = True
        elif argument not in ("--socket=wayland", "--share=ipc"):
            raise AssertionError(f"no sandbox of the tests knows {argument}")


class Sandbox:
    """The sandbox of a session: the proxies, which all that is started in it shares."""

    def __init__(self, session, laptop, installed, permissions):
        """Runs what is installed in the folder, which is /app in there."""
        self._session = session
        self._laptop = laptop
        self._installed = installed
        self._permissions = permissions
        self._sockets = {name: os.path.join(session.folder, f"proxy-{name}") for name in BUSES}
        addresses = session.environment | {key: laptop.environment[key] for key in MOCK}
        filters = dict(zip(BUSES, (permissions.session, permissions.system)))
        self.proxy = session.start(["xdg-dbus-proxy", *(word for name in BUSES for word in (
            addresses[name], self._sockets[name], *filters[name]))])
        eventually(lambda: all(map(os.path.exists, self._sockets.values())), "the buses are there")
        for folder in (data_folder(session), self._runtime()):
            os.makedirs(folder, mode=0o700)

    def command(self, environment, *words, info=None):
        """The command line that runs a program of /app."""
        options = [*self._permissions.wrap, *SYSTEM, "--as-pid-1", "--die-with-parent", "--clearenv",
                   *(["--info-fd", str(info)] if info is not None else []), *self._files()]
        for name, value in (self._environment() | environment).items():
            options += ["--setenv", name, value]
        return ["bwrap", *options, "--", *words]

    def _runtime(self):
        return os.path.join(self._session.environment["XDG_RUNTIME_DIR"], "app", PROGRAM)

    def _files(self):
        mine = self._session.write("flatpak-info", f"[Application]\nname={PROGRAM}\n")
        files = ["--ro-bind", self._installed, "/app", "--ro-bind", mine, "/.flatpak-info",
                 "--ro-bind", mine, os.path.join(self._session.environment["XDG_RUNTIME_DIR"],
                                                 "flatpak-info")]
        for name, place in BUSES.items():
            files += ["--ro-bind", self._sockets[name], place]
        # Where nobody can write, nobody hears uevents, which do not reach a Flatpak.
        mock = self._laptop.environment["UMOCKDEV_DIR"]
        files += ["--ro-bind", mock, mock]
        for path in (data_folder(self._session), self._runtime(), self._screen_readers_bus()):
            files += ["--bind", path, path]
        if self._permissions.has_x11:
            display = "/tmp/.X11-unix/X" + self._session.environment["DISPLAY"][1:]
            files += ["--ro-bind", display, display]
        return files

    def _environment(self):
        environment = {key: self._session.environment[key] for key in KEPT
                       if key in self._session.environment}
        environment |= {name: os.path.join(data_folder(self._session), folder)
                        for name, folder in FOLDERS.items()}
        environment |= {name: f"unix:path={place}" for name, place in BUSES.items()}
        return environment | {
            "PATH": "/app/bin:/usr/bin", "XDG_DATA_DIRS": "/app/share:/usr/share",
            "FLATPAK_ID": PROGRAM,
            **{key: self._laptop.environment[key] for key in ("LD_PRELOAD", "UMOCKDEV_DIR")}}

    def _screen_readers_bus(self):
        """The path of the bus on which programs are read out."""
        address, = self._session.bus.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        return address.partition("path=")[2].partition(",")[0]


class SandboxedProgram(Program):
    """One start of the program in the sandbox that the session has."""

    def __init__(self, session, laptop, environment=None, command=None):
        readable, writable = os.pipe()
        words = command or ["ferrin"]
        super().__init__(session, laptop, {},
                         session.sandbox.command(environment or {}, *words, info=writable),
                         pass_fds=[writable])
        os.close(writable)
        self._session = session
        with os.fdopen(readable) as pipe:
            self.pid = json.loads(pipe.read())["child-pid"]

    @property
    def window_pid(self):
        # As it is counted in the sandbox.
        return 1

    @property
    def bus_pid(self):
        return self._session.sandbox.proxy.pid

    def unseen_item(self):
        # It owns no name that tells whose it is.
        return self.item()

    def terminate(self):
        os.kill(self.pid, signal.SIGTERM)
        return self.exit_code()


class SandboxedDashboard(Dashboard):
    program_class = SandboxedProgram
