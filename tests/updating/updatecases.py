#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Run inside a root by test_packagekit.py: what the package engine finds, fetches, installs, refuses,
and says, whatever the repository, its server and the system do."""

import os
import pathlib
import shutil
import sys
import time
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import updatesystem as system  # noqa: E402
from updatefixture import ARCHIVE, NEW, OLD, WithARepository  # noqa: E402
from updatesystem import Lock, package  # noqa: E402

DOWNLOADING, INSTALLING = 3, 4


def setUpModule():
    system.set_up_network()
    system.run("useradd", "--uid", system.SECOND_USER, "second")
    for name in ("sources.list", "apt.conf.d/99mmdebstrap"):
        pathlib.Path("/etc/apt", name).unlink(missing_ok=True)
    system.start_bus()


class AnUpdate(WithARepository):
    def test_is_found_with_its_notes_downloaded_and_installed(self):
        self.assertIsNone(system.packagekit(), "nobody has asked yet")
        report = self.offered()
        self.assertEqual(report["version"], "1.1")
        self.assertEqual(report["date"], "2026-04-29")
        self.assertEqual(report["notes"], "First words.\n\n• Quieter in 1.1.\n• Second.")
        self.assertEqual(report["size"], self.repository.the_deb().stat().st_size)

        self.server.rates["pool"] = 2_000_000
        self.assertEqual(self.asker.ask("download")["event"], "downloaded")
        shares = [each["done"] for each in self.asker.progress if each["activity"] == DOWNLOADING]
        self.assertGreater(len({share for share in shares if 0 < share < 1}), 1, shares)
        self.assertEqual(shares, sorted(shares), "it never goes back")
        self.assertEqual(system.installed(), OLD)
        self.assertFalse(os.path.exists("/var/lib/PackageKit/prepared-update"))

        before = len(self.server.requests)
        self.asker.progress.clear()
        self.assertEqual(self.asker.ask("install")["event"], "installed")
        self.assertEqual(system.installed(), NEW)
        self.assertEqual(system.run("/usr/bin/ferrin"), "1.1-1\n")
        self.assertEqual(len(self.server.requests), before, "it was downloaded before")
        self.assertFalse(all(each["canCancel"] for each in self.asker.progress))
        self.assertIsNone(self.offered().get("version"))

    def test_is_none_where_nothing_is_newer(self):
        self.repository.publish(package(OLD))
        self.assertIsNone(self.offered().get("version"))

    def test_is_none_where_only_an_older_one_is_published(self):
        self.repository.publish(package("0.9-1"))
        self.assertIsNone(self.offered().get("version"))
        # Who names it all the same does not get it, though the service would.
        self.asker.say("ferrin;0.9-1;amd64;ferrin-stable-main")
        self.asker.ask("install")
        self.assertEqual(system.installed(), OLD)

    def test_is_none_where_it_is_held_back(self):
        system.run("apt-mark", "hold", "ferrin")
        self.addCleanup(system.run, "apt-mark", "unhold", "ferrin")
        self.assertIsNone(self.offered().get("version"))

    def test_of_a_program_that_no_package_owns_is_not_looked_for(self):
        shutil.copy("/usr/bin/ferrin", "/usr/bin/stray")
        self.asker = self.new_asker(program="/usr/bin/stray")
        self.fails("check", "notPackaged")
        self.assertEqual(self.asker.support, 1)

    def test_that_is_gone_by_now_is_not_installed(self):
        self.offered()
        self.repository.publish(package("1.2-1"))
        system.run("apt-get", "update")
        self.assertEqual(self.asker.ask("install")["event"], "failed")
        self.assertEqual(system.installed(), OLD)
        self.assertEqual(self.offered()["version"], "1.2")

    def test_reaches_two_users_at_once(self):
        second = self.new_asker(user=system.SECOND_USER)
        self.asker.say("check")
        second.say("check")
        for each in (self.asker, second):
            self.assertEqual(each.hear()["version"], "1.1")
        self.asker.say("install")
        second.say("install")
        for each in (self.asker, second):
            self.assertEqual(each.hear()["event"], "installed")
        self.assertEqual(system.installed(), NEW)


class Cancelled(WithARepository):
    def test_a_check_tells_nothing_more_and_another_may_begin(self):
        self.server.limits["InRelease"] = 0
        self.asker.say("check")
        self.server.await_request()
        self.asker.say("cancel")
        self.asker.progress.clear()
        self.asker.hears_nothing()
        self.still_works()

    def downloads_a_part(self, order):
        """Of 3 MB so many that the end is not near, and then the server lets it wait."""
        self.offered()
        self.server.limits["pool"] = 1_000_000
        self.asker.say(order)
        while self.asker.hear_progress(DOWNLOADING)["done"] <= 0.1:
            pass

    def test_a_download_may_begin_again(self):
        self.downloads_a_part("download")
        self.asker.say("cancel")
        self.server.await_hanging_up()
        self.asker.hears_nothing()
        # The package manager may leave a part of it there, under the whole one's name.
        whole = self.repository.the_deb().stat().st_size
        self.assertNotIn(whole, [each.stat().st_size for each in ARCHIVE.glob("ferrin*")])
        self.still_works()

    def test_a_download_of_which_nothing_came_may_begin_again(self):
        self.offered()
        self.asker.say("download")
        self.asker.hear_progress(DOWNLOADING)
        self.asker.say("cancel")
        self.asker.hears_nothing()
        self.assertEqual(self.asker.ask("download")["event"], "downloaded")
        self.assertEqual(self.asker.ask("install")["event"], "installed")

    def test_an_installation_that_still_downloads_installs_nothing(self):
        self.downloads_a_part("install")
        self.asker.say("cancel")
        self.server.await_hanging_up()
        self.asker.hears_nothing(3)
        self.assertEqual(system.installed(), OLD)
        self.still_works()

    def test_an_installation_that_writes_ends_as_it_should(self):
        self.repository.publish(package("1.3-1", "sleep 3"))
        self.offered()
        self.asker.say("install")
        self.assertFalse(self.asker.hear_progress(INSTALLING)["canCancel"])
        self.asker.say("cancel")
        self.asker.hears_nothing(6)
        self.assertEqual(system.installed(), "1.3-1")


class Refused(WithARepository):
    def is_refused(self, failure):
        self.fails("check", failure)
        self.assertEqual(system.installed(), OLD)
        self.still_works()

    def test_unsigned(self):
        self.repository.unsign()
        self.is_refused("notTrusted")

    def test_signed_by_another_key(self):
        self.repository.publish(package(NEW), by="other@example.org")
        self.is_refused("notTrusted")

    def test_a_changed_list(self):
        self.repository.change("InRelease", b"Label: Ferrin", b"Label: Xerrin")
        self.is_refused("notTrusted")

    def test_a_changed_list_of_packages(self):
        for name in ("Packages", "Packages.gz"):
            path = self.repository.lists / "main/binary-amd64" / name
            path.write_bytes(path.read_bytes()[:-9] + b"x" * 9)
        self.is_refused("tampered")

    def test_an_expired_list(self):
        self.repository.sign_anew(fields={"Date": "Thu, 01 Jan 2026 00:00:00 UTC",
                                          "Valid-Until": "Fri, 02 Jan 2026 00:00:00 UTC"})
        self.is_refused("notCurrent")

    def test_a_list_of_the_future(self):
        self.repository.sign_anew(fields={"Date": "Fri, 01 Jan 2100 00:00:00 UTC",
                                          "Valid-Until": "Sat, 02 Jan 2100 00:00:00 UTC"})
        self.is_refused("notCurrent")

    def test_a_changed_package(self):
        self.offered()
        deb = self.repository.the_deb()
        data = bytearray(deb.read_bytes())
        data[1_000_000] ^= 1
        deb.write_bytes(data)
        self.fails("download", "tampered")
        self.fails("install", "tampered")
        self.assertEqual(system.installed(), OLD)
        self.still_works()

    def test_an_older_list_after_a_newer_one(self):
        kept = self.repository.path.with_name("older")
        shutil.rmtree(kept, ignore_errors=True)
        self.repository.publish(package("1.05-1"))
        shutil.copytree(self.repository.path, kept)
        time.sleep(1.1)
        self.repository.publish(package(NEW))
        self.assertEqual(self.offered()["version"], "1.1")
        shutil.rmtree(self.repository.path)
        shutil.copytree(kept, self.repository.path)
        self.assertEqual(self.offered()["version"], "1.1")


class ABadServer(WithARepository):
    def test_that_is_gone(self):
        self.server.stop()
        self.fails("check", "unreachable")
        self.still_works()

    def test_without_the_package(self):
        self.offered()
        self.server.missing.add("pool")
        self.fails("download", "packageMissing")
        self.still_works()

    def test_without_lists(self):
        self.server.missing.add("dists")
        self.assertIn(self.asker.ask("check").get("failure"), ("sourceError", "notTrusted"))
        self.still_works()

    def test_that_stalls_on_the_lists(self):
        self.asker = self.new_asker(timeout=3)
        self.server.limits["InRelease"] = 0
        self.fails("check", "tooSlow")
        self.still_works()

    def test_that_stalls_on_the_package(self):
        self.asker = self.new_asker(timeout=3)
        self.offered()
        self.server.limits["pool"] = 0
        self.fails("download", "tooSlow")
        self.still_works()

    def test_of_somebody_else_does_not_matter(self):
        # By another name: apt asks a host for one file after the other.
        pathlib.Path(system.OTHER_SOURCE).write_text("deb http://127.0.0.2/ other main\n",
                                                     encoding="utf-8")
        self.assertEqual(self.offered()["version"], "1.1")
        self.assertEqual(self.asker.ask("install")["event"], "installed")
        self.assertIsNone(self.offered().get("version"))


class TheSystem(WithARepository):
    def change_service(self, change):
        kept = pathlib.Path(system.SERVICE).read_text(encoding="utf-8")

        def restore():
            pathlib.Path(system.SERVICE).write_text(kept, encoding="utf-8")
            self.reload()
        self.addCleanup(restore)
        change(pathlib.Path(system.SERVICE), kept)
        self.reload()

    def reload(self):
        system.run("dbus-send", "--system", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                   "org.freedesktop.DBus.ReloadConfig")

    def test_without_packagekit_says_so(self):
        self.change_service(lambda path, _: path.unlink())
        self.asker.say("support")
        self.fails("check", "noService")
        self.assertEqual(self.asker.support, 2)
        self.doCleanups()
        self.asker = self.new_asker()
        self.still_works()

    def test_without_its_program_says_so(self):
        self.change_service(lambda path, text: path.write_text(
            text.replace("/usr/libexec/packagekitd", "/usr/libexec/missing"), encoding="utf-8"))
        self.fails("check", "serviceBroken")
        self.doCleanups()
        self.asker = self.new_asker()
        self.still_works()

    def test_whose_packagekit_is_killed_says_so(self):
        self.server.limits["InRelease"] = 0
        self.asker.say("check")
        self.server.await_request()
        os.kill(system.packagekit(), 9)
        self.assertEqual(self.asker.hear()["failure"], "serviceBroken")
        self.still_works()

    def test_whose_packagekit_is_killed_in_a_download_says_so(self):
        self.offered()
        self.server.limits["pool"] = 1_000_000
        self.asker.say("download")
        self.asker.hear_progress(DOWNLOADING)
        os.kill(system.packagekit(), 9)
        self.assertEqual(self.asker.hear()["failure"], "serviceBroken")
        self.still_works()

    def test_that_refuses_the_password_says_so(self):
        self.offered()
        system.grant(system.REFUSED)
        time.sleep(0.5)
        self.fails("install", "notAuthorized")
        self.assertEqual(system.installed(), OLD)
        system.grant()
        time.sleep(0.5)
        self.assertEqual(self.asker.ask("install")["event"], "installed")

    def test_downloads_without_a_password(self):
        self.offered()
        system.grant(system.REFUSED)
        time.sleep(0.5)
        self.assertEqual(self.asker.ask("download")["event"], "downloaded")

    def test_whose_dpkg_is_locked_says_so(self):
        self.offered()
        lock = Lock("/var/lib/dpkg/lock-frontend")
        self.fails("install", "busy")
        self.assertEqual(system.installed(), OLD)
        lock.release()
        self.still_works()

    def test_whose_dpkg_is_locked_for_a_while_waits(self):
        self.offered()
        lock = Lock("/var/lib/dpkg/lock-frontend")
        self.asker.say("install")
        time.sleep(3)
        lock.release()
        self.assertEqual(self.asker.hear()["event"], "installed")

    def test_whose_lists_are_locked_says_so(self):
        lock = Lock("/var/lib/apt/lists/lock")
        self.fails("check", "busy")
        lock.release()
        self.still_works()

    def test_in_which_the_packages_own_script_fails_says_so(self):
        self.repository.publish(package("1.4-1", "exit 1"))
        self.offered()
        self.fails("install", "setupFailed")
        # The version is the new one by now, and that is not all that counts.
        self.fails("install", "setupFailed")
        self.fails("check", "setupFailed")
        pathlib.Path("/var/lib/dpkg/info/ferrin.postinst").write_text("#!/bin/sh\n", encoding="utf-8")
        system.run("dpkg", "--configure", "-a")
        self.assertIsNone(self.offered().get("version"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
