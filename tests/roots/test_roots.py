#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Roots: what may be done in them, and that the machine does not notice."""

import os
import sys
import tempfile
import unittest
from unittest import mock

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from roots import NoNamespaces, RootCommandFailed, cached  # noqa: E402
from roots.ordinaryuser import NUMBER, TREE, run_as_ordinary_user  # noqa: E402


class ARoot(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = cached("bookworm")

    def test_is_made_once(self):
        self.assertEqual(cached("bookworm").path, self.root.path)

    def test_is_a_system_of_its_own_release(self):
        self.assertIn("VERSION_CODENAME=bookworm", self.root.run("cat", "/etc/os-release"))

    def test_cannot_be_changed_by_anybody(self):
        for user in ("root", "person"):
            with self.assertRaisesRegex(RootCommandFailed, "Read-only"):
                self.root.run("touch", "/usr/changed", user=user)

    def test_has_an_ordinary_user_with_a_home_and_a_place_for_temporary_files(self):
        output = self.root.run("sh", "-ec", "touch ~/a /tmp/b /var/tmp/c; id -un", user="person")
        self.assertEqual(output, "person\n")

    def test_has_loopback_and_no_other_network(self):
        self.assertEqual(self.root.run("sh", "-c", "tail -n +3 /proc/net/dev | cut -d: -f1").split(),
                         ["lo"])
        self.assertIn("127.0.0.1", self.root.run("cat", "/proc/net/fib_trie"))

    def test_sees_no_process_of_the_machine(self):
        output = self.root.run("sh", "-c", "echo /proc/[0-9]*").split()
        self.assertLess(len(output), 5)

    def test_writes_where_it_is_let_as_the_one_who_let_it(self):
        with tempfile.TemporaryDirectory() as folder:
            for user in ("root", "person"):
                name = os.path.join(folder, user)
                self.root.run("touch", name, user=user, binds=[folder])
                self.assertEqual(os.stat(name).st_uid, os.geteuid())
            self.root.run("touch", "/mnt/there/by-another-name", binds=[f"{folder}:/mnt/there"])
            self.assertIn("by-another-name", os.listdir(folder))

    def test_tells_how_a_command_ended(self):
        with self.assertRaisesRegex(RootCommandFailed, "ended with 7:\nalas"):
            self.root.run("sh", "-c", "echo alas; exit 7")

    def test_ends_all_that_was_started_in_it_with_the_command(self):
        with tempfile.TemporaryDirectory() as folder:
            pipe = os.path.join(folder, "pipe")
            os.mkfifo(pipe)
            self.root.run("sh", "-c", f"exec 3<>{pipe}; setsid sleep 1000 >/dev/null 2>&1 &",
                          binds=[folder])
            # Nobody is left who reads.
            with self.assertRaises(OSError):
                os.close(os.open(pipe, os.O_WRONLY | os.O_NONBLOCK))

    def test_says_what_is_missing_where_there_are_no_namespaces(self):
        with mock.patch.dict(os.environ, PATH="/nowhere"), \
                self.assertRaisesRegex(NoNamespaces, "unshare is not installed"):
            cached("bookworm")


class ACopy(unittest.TestCase):
    def test_takes_packages_and_leaves_the_root_as_it_was(self):
        root = cached("bookworm")
        with root.copy() as copy:
            copy.install("hello")
            self.assertEqual(copy.run("hello"), "Hello, world!\n")
            # A package's files belong to whom it says.
            copy.run("sh", "-c", "touch /usr/theirs && chown nobody /usr/theirs")
            self.assertEqual(copy.run("stat", "--format=%U", "/usr/theirs"), "nobody\n")
            path = copy.path
        self.assertFalse(os.path.exists(path))
        self.assertFalse(os.path.exists(os.path.join(root.path, "usr/bin/hello")))


@unittest.skipIf(os.geteuid() != 0, "an ordinary user runs all of these tests already")
class AnOrdinaryUser(unittest.TestCase):
    def test_makes_roots_and_does_in_them_all_that_root_does(self):
        # Not the cache's: roots of one user's ids are nothing to another.
        with tempfile.TemporaryDirectory(prefix="ferrin-home-") as home:
            done = run_as_ordinary_user(home, "python3", "-B", f"{TREE}/tests/roots/test_roots.py")
            self.assertEqual(done.returncode, 0, done.stdout)
            made = os.path.join(home, ".cache/ferrin/roots")
            self.assertIn(NUMBER, {os.stat(os.path.join(made, each)).st_uid
                                   for each in os.listdir(made)})


if __name__ == "__main__":
    unittest.main(verbosity=2)
