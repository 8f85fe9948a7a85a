#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Two releases, made by the one command that makes them: the first is installed in a clean root and
finds, fetches, verifies and installs the second, and goes on as that."""

import glob
import os
import re
import shutil
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
sys.dont_write_bytecode = True
sys.path[:0] = [os.path.join(HERE, "..", "endtoend"), os.path.join(HERE, "..", "updating")]
from cleanroot import CleanRoot  # noqa: E402
from harness import desktop  # noqa: E402
from harness.case import AT_START  # noqa: E402
from harness.dashboard import Dashboard  # noqa: E402
from harness.processes import eventually  # noqa: E402
from harness.item import PROGRAM  # noqa: E402
from harness.settings import Settings  # noqa: E402
from test_update import CHECK, Update  # noqa: E402
from updateserver import Releases, UpdateServer, run  # noqa: E402
from virtuallaptop import VirtualLaptop  # noqa: E402

ENTRY = "org.ferrin.Ferrin.desktop"
NEXT = "77.0"
# What the desktop installs packages with, without a question.
INSTALLER = """#!/bin/sh
exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive \\
    apt-get install --yes --no-install-recommends "$1" >/installed.log 2>&1 </dev/null
"""


class ReleaseTree:
    """A copy of the sources in which versions can be raised. It stays, so that only what has changed
    is built anew by the next run."""

    def __init__(self, releases):
        self.path = os.path.join(os.environ["FERRIN_BUILD"], "tests", "package", "source")
        self._releases = releases
        for name in os.listdir(SOURCE):
            if name in (".git", "build"):
                continue
            path, copy = os.path.join(SOURCE, name), os.path.join(self.path, name)
            if os.path.isdir(path):
                shutil.copytree(path, copy, dirs_exist_ok=True)
            else:
                os.makedirs(self.path, exist_ok=True)
                shutil.copy2(path, copy)

    def raise_version(self, version, notes):
        self._replace("CMakeLists.txt", r"(project\(ferrin VERSION) \S+", rf"\1 {version}")
        self._replace("CHANGELOG.md", r"\A# Changelog\n", f"# Changelog\n\n## {version}\n\n{notes}\n")

    def _replace(self, name, pattern, text):
        path = os.path.join(self.path, name)
        with open(path, encoding="utf-8") as file:
            before = file.read()
        after, count = re.subn(pattern, text, before, count=1)
        assert count == 1, name
        with open(path, "w", encoding="utf-8") as file:
            file.write(after)

    def release(self, feed, *more):
        """Returns the one package that the release adds."""
        public = self._releases.public
        before = set(os.listdir(public)) if os.path.isdir(public) else set()
        run(os.path.join(self.path, "scripts", "release"), "--key", self._releases.key, "--out",
            public, "--feed-url", feed, *more)
        package, = [name for name in set(os.listdir(public)) - before if name != "feed"]
        return os.path.join(public, package)


class TheNextRelease(unittest.TestCase):
    def setUp(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(prefix="ferrin-releases-"))
        self.releases = Releases(folder)
        os.mkdir(self.releases.public)
        self.server = UpdateServer(folder, self.releases.public)
        self.addCleanup(self.server.close)
        tree = ReleaseTree(self.releases)
        notes = os.path.join(folder, "notes.md")
        with open(notes, "w", encoding="utf-8") as file:
            file.write("The first.\n")
        self.installed = tree.release(self.server.feed, "--notes", notes)
        tree.raise_version(NEXT, "- **Quieter**.")
        self.next = tree.release(self.server.feed)

    def install(self):
        root = CleanRoot()
        self.addCleanup(root.close)
        root.run("apt-get", "update")
        root.run("apt-get", "install", "--yes", "--no-install-recommends",
                 root.take(self.installed))
        shutil.copy(self.server.authority.certificate,
                    os.path.join(root.path, "usr/local/share/ca-certificates/test.crt"))
        root.run("update-ca-certificates")
        installer = os.path.join(root.path, "usr/bin/gdebi-gtk")
        with open(installer, "w", encoding="utf-8") as file:
            file.write(INSTALLER)
        os.chmod(installer, 0o755)
        os.environ["FERRIN_BINARY"] = root.launcher(ENTRY)
        return root

    def test_reaches_an_installed_one(self):
        root = self.install()
        screen = desktop.XfceScreen()
        screen.size = (1000, 600)
        with VirtualLaptop() as laptop, screen as session, \
                Dashboard(session, laptop, AT_START) as dashboard:
            old_name = session.bus.owner(PROGRAM)
            settings, update = Settings(session, dashboard), Update(session, dashboard)
            self.check(settings)
            update.says(f"Ferrin {NEXT} is available")
            self.assertIn("Quieter", update.find("What is new").description)
            update.click("Download")
            update.says(f"Ferrin {NEXT} is ready to install")
            update.click("Install")
            update.has_closed()
            settings.close()

            eventually(lambda: session.bus.owner(PROGRAM) not in (None, old_name),
                       "the new version runs")
            self.assertEqual(root.run("dpkg-query", "--show", "--showformat=${Version}", "ferrin"),
                             NEXT)
            dashboard.program.says(AT_START)
            self.check(settings)
            update.says("Ferrin is up to date")
            update.find(f"Version {NEXT} is the newest one.")
            downloads = os.path.join(session.environment["XDG_CACHE_HOME"], "ferrin", "updates")
            self.assertEqual(glob.glob(os.path.join(downloads, "*.deb*")), [])

    def check(self, settings):
        settings.open()
        settings.select("General")
        settings.click(CHECK)


if __name__ == "__main__":
    unittest.main(verbosity=2)
