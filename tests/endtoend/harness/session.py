# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A user's session of its own: a home, a session bus, and an X server that nobody sees."""

import os
import shutil
import signal
import subprocess
import tempfile

from harness import processes
from harness.item import Bus
from harness.picture import Picture

# Anybody may speak on it, so that a test run by root can serve a desktop of another user.
BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={folder}/bus</listen>
  <auth>EXTERNAL</auth>
  <standard_session_servicedirs/>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


WATCHER = os.path.join(os.path.dirname(__file__), "watcher.py")


class Session:
    """A user's session without a screen: home folders and a session bus. The base of the rest."""

    desktop = ""

    def __init__(self, user=None, scale=1):
        self.user = user
        # Device pixels a pixel, for the panel as for the program.
        self.scale = scale
        self.folder = tempfile.mkdtemp(prefix="ferrin-session-")
        self._processes = []
        self.environment = self._make_environment()
        self.bus_process = None
        self.bus = None

    def boot(self):
        """Starts all that belongs to the session."""
        # What the bus starts on demand has the bus' own environment: the display comes first.
        self._start_display()
        self.bus_process = self._start_bus()
        self.bus = Bus(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def close(self):
        for process in reversed(self._processes):
            processes.end(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    def __enter__(self):
        try:
            self.boot()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def start(self, command, environment=None, **options):
        """Starts a process as the session's user; it ends with the session."""
        process = processes.start(command, self.environment | (environment or {}), self.user,
                                  **options)
        self._processes.append(process)
        return process

    def end_process(self, process):
        """A process of the session dies without a word."""
        processes.end(process, signal.SIGKILL)
        self._processes.remove(process)

    def start_watcher(self):
        """A status area in the shape of a process."""
        watcher = self.start([WATCHER])
        processes.eventually(self.bus.has_host, "there is a status area")
        return watcher

    def run(self, *command):
        return processes.run(command, self.environment)

    def write(self, path, text):
        """Writes a file under the session's folder and gives it to the session's user."""
        path = os.path.join(self.folder, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        self._give_away()
        return path

    def _start_display(self):
        pass

    def _make_environment(self):
        kept = {key: os.environ[key] for key in ("PATH", "LANG", "TMPDIR", "FONTCONFIG_FILE")
                if key in os.environ}
        kept |= {"LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "1", "GTK_USE_PORTAL": "0",
                 "LIBGL_ALWAYS_SOFTWARE": "1", "XDG_CURRENT_DESKTOP": self.desktop}
        if self.scale != 1:
            kept |= {"GDK_SCALE": str(self.scale), "QT_SCALE_FACTOR": str(self.scale)}
        folders = {"HOME": "home", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
                   "XDG_DATA_HOME": "data", "XDG_STATE_HOME": "state", "XDG_RUNTIME_DIR": "run"}
        for variable, name in folders.items():
            kept[variable] = os.path.join(self.folder, name)
            os.mkdir(kept[variable], 0o700)
        self._give_away()
        return kept

    def _give_away(self):
        if self.user is not None:
            for path, _, files in os.walk(self.folder):
                for name in (path, *(os.path.join(path, file) for file in files)):
                    shutil.chown(name, self.user, "nogroup")

    def _start_bus(self):
        configuration = self.write("bus.conf", BUS_CONFIGURATION.format(folder=self.folder))
        process = self.start(
            ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address=1"],
            stdout=subprocess.PIPE, text=True)
        with process.stdout as output:
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = output.readline().strip()
        return process


class Screen(Session):
    """A session with an X server that nobody sees."""

    # Device pixels at a scale of one.
    size = (800, 600)
    # What comes to rest; None for all of it.
    still_part = None

    def __init__(self, user=None, scale=1):
        super().__init__(user, scale)
        self.server = None
        self._screen = {}

    def picture(self):
        return Picture(self._on_screen("import", "-silent", "-window", "root", "-depth", "8",
                                       "ppm:-"))

    def settled_picture(self):
        """The screen once it has not changed for a moment."""
        last = None

        def at_rest():
            nonlocal last
            before, last = last, self.picture()
            processes.a_moment()
            return before and before.difference(last, within=self.still_part) is None
        processes.eventually(at_rest, "the screen is at rest")
        return last

    def drag(self, start, end):
        """The real pointer takes what is at one place to another."""
        middle = (start[0] + end[0]) // 2, (start[1] + end[1]) // 2
        for step in (start, "mousedown", middle, end, "mouseup"):
            if isinstance(step, str):
                self._on_screen("xdotool", step, "1")
            else:
                self.point(step)
            self._on_screen("xdotool", "sleep", "0.2")

    def point(self, place):
        """Moves the real pointer."""
        self._on_screen("xdotool", "mousemove", *map(str, place))

    def click(self, place, button=1):
        """A click of the real pointer."""
        self._on_screen("xdotool", "mousemove", *map(str, place), "click", str(button))

    def press(self, *keys):
        """Presses of real keys, one after the other."""
        self._on_screen("xdotool", "key", *keys)

    def repeat_keys_soon(self):
        """Held keys repeat fifty times a second, a fifth of a second after they went down."""
        self._on_screen("xset", "r", "rate", "200", "50")

    def hold(self, key):
        """Holds a real key for so long that it repeats some twenty times."""
        self._on_screen("xdotool", "keydown", key, "sleep", "0.6", "keyup", key)

    def resize(self, width, height):
        """Gives the screen another size, of at most the one that it began with."""
        timings = (30, width, width + 10, width + 20, width + 30,
                   height, height + 10, height + 20, height + 30)
        self._on_screen("xrandr", "--newmode", "other", *map(str, timings))
        self._on_screen("xrandr", "--addmode", "screen", "other")
        self._on_screen("xrandr", "--output", "screen", "--mode", "other")

    def item_box(self, before):
        """Where the item stands, given a picture of the screen without it."""
        return before.difference(self.picture())

    def _on_screen(self, *command):
        return processes.run(command, self.environment | self._screen)

    def _start_display(self):
        readable, writable = os.pipe()
        size = "x".join(str(length * self.scale) for length in self.size)
        # Without a reset when its last client leaves, which would take the next one with it.
        self.server = self.start(
            ["Xvfb", "-displayfd", str(writable), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[writable])
        os.close(writable)
        with os.fdopen(readable) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("the X server did not start")
        self._screen = {"DISPLAY": f":{number}"}
