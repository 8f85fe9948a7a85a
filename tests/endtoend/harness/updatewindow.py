# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The window of updates, and a program that may open it because a package seems to own it."""

import os
import unittest.mock

from harness.packagekit import PackageKit
from harness.processes import eventually
from harness.program import binary
from harness.readwindow import BUTTON, ReadWindow

CHECK = "Check for Updates…"
# Only a program below /usr is taken for one that a package owns. The mount goes with the program,
# which stays the process and the user that was started.
AS_INSTALLED = """#!/bin/sh -e
[ -n "$APART" ] || APART=1 exec unshare --user --map-root-user --mount "$0"
mount --bind {tree} /usr/games
exec unshare --user --map-user={user} --map-group={group} -- /usr/games/bin/ferrin
"""


class UpdateWindow(ReadWindow):
    def __init__(self, session, dashboard):
        super().__init__(session)
        self._dashboard = dashboard

    def root(self):
        tree = self._dashboard.reader.read()
        return next((window for window in tree.children if window.name == "Software Update"
                     and "showing" in window.states), None) if tree else None

    def shows(self, heading, *texts, buttons):
        """Waits until it is at this stage, with these texts and just these buttons."""
        def matches():
            shown = self.texts()
            return heading in shown and all(text in shown for text in texts) \
                and self.buttons() == buttons
        try:
            eventually(matches, heading)
        except AssertionError as error:
            raise AssertionError(f"{self.texts()} with {self.buttons()}, not {heading}, {texts} with "
                                 f"{buttons}") from error


class WithUpdates:
    """Mixed into a test with settings: the program is one that a package owns, and PackageKit is the
    test's. The settings stand at their page General."""

    page = "General"

    def prepare(self):
        super().prepare()
        tree = os.path.dirname(os.path.dirname(os.path.abspath(binary())))
        launcher = self.session.write("as-installed", AS_INSTALLED.format(
            tree=tree, user=os.getuid(), group=os.getgid()))
        os.chmod(launcher, 0o755)
        self.enterContext(unittest.mock.patch.dict(os.environ, FERRIN_BINARY=launcher))
        self.packagekit = PackageKit(self.session, self.laptop)
        self.addCleanup(self.packagekit.close)

    def setUp(self):
        super().setUp()
        self.updates = UpdateWindow(self.session, self.dashboard)

    def check(self):
        # What rests says why.
        eventually(lambda: self.window.find(CHECK, BUTTON).description == "", "it can check")
        self.window.click(CHECK, BUTTON)
