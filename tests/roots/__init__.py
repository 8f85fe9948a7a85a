# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Roots: whole Debians in folders, in which tests install and run what must not touch the machine.

    root = cached("bookworm", ["xfce4-panel", "xvfb"])      made once, entered read-only
    root.run("xfce4-panel", "--version")

    with cached("bookworm").copy() as root:                 a copy that may be changed
        root.install("hello")

They are made and entered in namespaces: as root, and as an ordinary user who has subordinate ids.
Inside, the caller is either the root of the namespace or an ordinary user without any power.
"""

from .namespaces import NoNamespaces, entered, require
from .root import Root, RootCommandFailed, cached, packages_of

__all__ = ["NoNamespaces", "Root", "RootCommandFailed", "cached", "entered", "packages_of", "require"]
