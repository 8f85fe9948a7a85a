# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Inside a root: a system bus with PackageKit, a repository, its server, and whoever asks them."""

import fcntl
import functools
import http.server
import json
import math
import os
import pathlib
import queue
import re
import shutil
import socket
import struct
import subprocess
import sys
import threading
import time

PORT = 8000
SOURCE = "/etc/apt/sources.list.d/ferrin.sources"
OTHER_SOURCE = "/etc/apt/sources.list.d/other.list"
KEYRING = "/usr/share/keyrings/ferrin-archive-keyring.gpg"
RULES = "/etc/polkit-1/rules.d/50-test.rules"
SERVICE = "/usr/share/dbus-1/system-services/org.freedesktop.PackageKit.service"
RELEASE = "/mnt/tree/scripts/release"
# As the user of an active session has them.
GRANTED, REFUSED = "YES", "AUTH_ADMIN"
TIMEOUT = 60
FIRST_USER, SECOND_USER = 1000, 1001


def run(*command, **options):
    done = subprocess.run([str(part) for part in command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def set_up_network():
    run("ip", "link", "set", "lo", "up")
    # Without a way out PackageKit takes the machine for offline.
    run("ip", "route", "add", "default", "dev", "lo")
    pathlib.Path("/etc/hosts").write_text("127.0.0.1 localhost\n", encoding="utf-8")


def start_bus():
    os.makedirs("/run/dbus", exist_ok=True)
    os.makedirs("/run/lock", exist_ok=True)
    run("dbus-uuidgen", "--ensure")
    bus = subprocess.Popen(["dbus-daemon", "--system", "--nofork", "--nopidfile"],
                           stderr=subprocess.DEVNULL)
    while not os.path.exists("/run/dbus/system_bus_socket"):
        time.sleep(0.02)
    return bus


def grant(installation=GRANTED):
    pathlib.Path(RULES).write_text(
        "polkit.addRule(function(action, subject) {\n"
        "    if (action.id == 'org.freedesktop.packagekit.system-sources-refresh')\n"
        "        return polkit.Result.YES;\n"
        "    if (action.id == 'org.freedesktop.packagekit.system-update')\n"
        f"        return polkit.Result.{installation};\n"
        "});\n", encoding="utf-8")


def installed():
    report = run("dpkg-query", "--show", "--showformat=${Version} ${db:Status-Status}", "ferrin")
    version, status = report.split()
    return version if status == "installed" else f"{version} {status}"


def packagekit():
    """Its process, or None while it does not run."""
    for name in os.listdir("/proc"):
        try:
            if name.isdigit() and os.readlink(f"/proc/{name}/exe") == "/usr/libexec/packagekitd":
                return int(name)
        except OSError:
            continue
    return None


def end_packagekit():
    """It keeps apt's settings until it ends."""
    while process := packagekit():
        os.kill(process, 9)
        time.sleep(0.05)


@functools.cache
def package(version, script="exit 0", size=3_000_000):
    """A package of Ferrin's whose program tells its version."""
    folder = pathlib.Path("/tmp/packages", f"{version}-{abs(hash(script))}")
    (folder / "DEBIAN").mkdir(parents=True)
    (folder / "DEBIAN/control").write_text(
        f"Package: ferrin\nVersion: {version}\nArchitecture: amd64\nMaintainer: T <t@example.org>\n"
        "Description: battery utility\n", encoding="utf-8")
    for path, text in (("DEBIAN/postinst", f"#!/bin/sh\n{script}\n"),
                       ("usr/bin/ferrin", f"#!/bin/sh\necho {version}\n")):
        (folder / path).parent.mkdir(parents=True, exist_ok=True)
        (folder / path).write_text(text, encoding="utf-8")
        (folder / path).chmod(0o755)
    info = folder / "usr/share/metainfo/org.ferrin.Ferrin.metainfo.xml"
    info.parent.mkdir(parents=True)
    template = pathlib.Path("/mnt/tree/packaging/org.ferrin.Ferrin.metainfo.xml.in").read_text(
        encoding="utf-8")
    release = (f'<release version="{version.partition("-")[0]}" date="2026-11-21" type="development">'
               "<description><p>The first of them.</p></description></release>")
    info.write_text(template.replace("@releases@", release), encoding="utf-8")
    (folder / "usr/share/ferrin").mkdir()
    (folder / "usr/share/ferrin/data").write_bytes(os.urandom(size))
    run("dpkg-deb", "--build", folder, f"{folder}.deb")
    return f"{folder}.deb"


@functools.cache
def key(name):
    run("gpg", "--batch", "--passphrase", "", "--quick-gen-key", name, "ed25519", "sign", "never")
    return name


class Repository:
    """What scripts/release makes, and what may be done to it on its way."""

    def __init__(self, folder):
        self.path = pathlib.Path(folder)
        self.lists = self.path / "dists/stable"
        self.changelog = self.path.parent / "CHANGELOG.md"

    def publish(self, *packages, by="test@example.org", days=90):
        shutil.rmtree(self.path, ignore_errors=True)
        versions = [re.match(r".*/(.*?)-[0-9]+-", each)[1] for each in packages]
        self.changelog.write_text("# Changelog\n\n" + "".join(
            f"## {version} – 2026-04-29\n\nFirst words.\n\n- **Quieter** in {version}.\n- Second.\n\n"
            for version in versions), encoding="utf-8")
        run(RELEASE, "--key", key(by), "--out", self.path, "--changelog", self.changelog,
            "--valid-days", days, *packages)

    def trust(self):
        shutil.copy(self.path / "ferrin-archive-keyring.gpg", KEYRING)
        pathlib.Path(SOURCE).write_text(
            f"Types: deb\nURIs: http://127.0.0.1:{PORT}/\nSuites: stable\nComponents: main\n"
            f"Signed-By: {KEYRING}\n", encoding="utf-8")

    def change(self, name, old, new):
        path = self.lists / name
        data = path.read_bytes()
        assert old in data, name
        path.write_bytes(data.replace(old, new))

    def sign_anew(self, by="test@example.org", fields=None):
        """Signs the list with other fields than are right."""
        text = (self.lists / "Release").read_text(encoding="utf-8")
        for name, value in (fields or {}).items():
            text = re.sub(rf"^{name}: .*$", f"{name}: {value}", text, flags=re.M)
        (self.lists / "Release").write_text(text, encoding="utf-8")
        run("gpg", "--batch", "--yes", "--local-user", key(by), "--clearsign", "--output",
            self.lists / "InRelease", self.lists / "Release")
        (self.lists / "Release.gpg").unlink(missing_ok=True)

    def unsign(self):
        (self.lists / "InRelease").unlink()
        (self.lists / "Release.gpg").unlink()

    def the_deb(self):
        found, = self.path.glob("pool/*.deb")
        return found


class QuietServer(http.server.ThreadingHTTPServer):
    """Says nothing about those who hang up: that is what is tried here."""

    def handle_error(self, *_):
        if not issubclass(sys.exc_info()[0], ConnectionError):
            super().handle_error(*_)


class Server:
    """Serves the repository as well or as badly as the test wants."""

    def __init__(self, folder, port=PORT):
        self.folder, self.port = folder, port
        self.requests = []
        # By a part of the path: bytes a second, and bytes after which nothing more comes.
        self.rates = {}
        self.limits = {}
        # The paths of those who hung up while they waited for more.
        self.abandoned = []
        self.missing = set()
        self._server = None
        self.start()

    def start(self):
        self._server = QuietServer(("127.0.0.1", self.port), self._handler())
        self._server.daemon_threads = True
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def stop(self):
        if self._server:
            self._server.shutdown()
            self._server.server_close()
            self._server = None

    def behave(self):
        for each in (self.rates, self.limits, self.abandoned, self.missing, self.requests):
            each.clear()
        if not self._server:
            self.start()

    def await_request(self):
        self._await(self.requests)

    def await_hanging_up(self):
        """Waits until somebody who was kept waiting hangs up; from then on everything flows."""
        self._await(self.abandoned)
        self.behave()

    @staticmethod
    def _await(paths):
        end = time.monotonic() + TIMEOUT
        while not paths:
            if time.monotonic() > end:
                raise AssertionError("The server waited in vain")
            time.sleep(0.05)

    @staticmethod
    def _for(path, figures):
        """The figure of the first part in the path; without one there is no bound."""
        return next((figure for part, figure in figures.items() if part in path), math.inf)

    def _handler(self):
        server = self

        class Handler(http.server.SimpleHTTPRequestHandler):
            def __init__(self, *arguments):
                super().__init__(*arguments, directory=str(server.folder))

            def log_message(self, *_):
                pass

            def do_GET(self):
                server.requests.append((self.path, self.headers.get("Range")))
                if any(part in self.path for part in server.missing):
                    self.send_error(404)
                    return
                super().do_GET()

            def copyfile(self, source, outputfile):
                while chunk := source.read(16384):
                    self._wait_below_limit(source.tell())
                    outputfile.write(chunk)
                    time.sleep(len(chunk) / server._for(self.path, server.rates))

            def _wait_below_limit(self, size):
                # Looked at anew each time: the test may let it flow.
                while size > server._for(self.path, server.limits):
                    if self._hung_up():
                        server.abandoned.append(self.path)
                        raise ConnectionAbortedError
                    time.sleep(0.05)

            def _hung_up(self):
                try:
                    return not self.connection.recv(1, socket.MSG_PEEK | socket.MSG_DONTWAIT)
                except BlockingIOError:
                    return False
                except ConnectionError:
                    return True
        return Handler


class Asker:
    """The program's engine, run by an ordinary user, and what it tells."""

    def __init__(self, user=FIRST_USER, timeout=TIMEOUT, program="/usr/bin/ferrin"):
        self._process = subprocess.Popen(
            ["setpriv", f"--reuid={user}", f"--regid={user}", "--clear-groups", "/mnt/driver",
             program, str(timeout)], text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            env={"PATH": "/usr/bin:/bin", "HOME": "/tmp"})
        self._lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()
        self.progress = []
        self.support = 0

    def _read(self):
        for line in self._process.stdout:
            self._lines.put(json.loads(line))

    def say(self, order):
        self._process.stdin.write(order + "\n")
        self._process.stdin.flush()

    def hear(self, timeout=TIMEOUT):
        """The next that it tells, progress aside."""
        end = time.monotonic() + timeout
        while True:
            report = self._lines.get(timeout=max(0.01, end - time.monotonic()))
            if report["event"] == "progress":
                self.progress.append(report)
            elif report["event"] == "support":
                self.support = report["support"]
            else:
                return report

    def hear_progress(self, activity=None):
        """Waits for a sign of this activity."""
        while True:
            report = self._lines.get(timeout=TIMEOUT)
            if report["event"] != "progress":
                raise AssertionError(f"It ended: {report}")
            self.progress.append(report)
            if activity is None or report["activity"] == activity:
                return report

    def hears_nothing(self, seconds=1.0):
        try:
            raise AssertionError(f"Unexpected: {self.hear(seconds)}")
        except queue.Empty:
            return

    def ask(self, order, timeout=TIMEOUT):
        self.say(order)
        return self.hear(timeout)

    def close(self):
        self._process.stdin.close()
        self._process.wait(timeout=10)
        self._process.stdout.close()


class Lock:
    """Holds a lock of the package manager's."""

    def __init__(self, path):
        self._file = os.open(path, os.O_RDWR | os.O_CREAT, 0o640)
        fcntl.fcntl(self._file, fcntl.F_SETLK,
                    struct.pack("hhqqi", fcntl.F_WRLCK, os.SEEK_SET, 0, 0, 0))

    def release(self):
        os.close(self._file)
