# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Inside a root: what every case of updating begins with, and the words that all of them use."""

import pathlib
import subprocess
import unittest

import updatesystem as system
from updatesystem import Asker, Repository, Server, package

OLD, NEW = "1.0-1", "1.1-1"
ARCHIVE = pathlib.Path("/var/cache/apt/archives")
LISTS = pathlib.Path("/var/lib/apt/lists")


class WithARepository(unittest.TestCase):
    """The old version is installed and the new one published; each test begins with that."""

    @classmethod
    def setUpClass(cls):
        cls.repository = Repository("/tmp/repository/public")
        cls.repository.path.mkdir(parents=True, exist_ok=True)
        cls.server = Server(cls.repository.path)

    @classmethod
    def tearDownClass(cls):
        cls.server.stop()

    def setUp(self):
        system.end_packagekit()
        pathlib.Path(system.OTHER_SOURCE).unlink(missing_ok=True)
        self.forget()
        subprocess.run(["dpkg", "--purge", "--force-all", "ferrin"], capture_output=True,
                       check=False)
        system.run("dpkg", "--install", package(OLD))
        system.grant()
        self.server.behave()
        self.repository.publish(package(NEW))
        self.repository.trust()
        self.asker = self.new_asker()

    def new_asker(self, **options):
        asker = Asker(**options)
        self.addCleanup(asker.close)
        return asker

    def forget(self):
        for each in [*LISTS.glob("*_*"), *ARCHIVE.glob("*.deb"), *ARCHIVE.glob("partial/*")]:
            each.unlink()

    def offered(self):
        report = self.asker.ask("check")
        self.assertEqual(report["event"], "checked", report)
        return report

    def fails(self, order, failure, timeout=system.TIMEOUT):
        report = self.asker.ask(order, timeout)
        self.assertEqual(report.get("failure"), failure, report)
        self.assertTrue(report["words"])
        return report

    def still_works(self):
        """No state is a dead end."""
        self.server.behave()
        self.repository.publish(package(NEW))
        self.assertEqual(self.offered().get("version"), "1.1")
        self.assertEqual(self.asker.ask("install")["event"], "installed")
        self.assertEqual(system.installed(), NEW)
