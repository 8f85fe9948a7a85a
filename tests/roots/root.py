# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Makes roots with mmdebstrap, keeps them for the next run, and runs commands in them."""

import contextlib
import fcntl
import hashlib
import os
import shlex
import shutil
import subprocess
import tempfile
import time

from . import namespaces

MIRROR = "http://deb.debian.org/debian"
LISTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts")
# Raised when roots are made in another way.
RECIPE = 2
# What no test reads. The licences stay: they are beside the changelogs.
LEFT_OUT = ("/usr/share/man/*", "/usr/share/info/*", "/usr/share/locale/*", "/usr/share/help/*",
            "/usr/share/gtk-doc/*", "/usr/share/doc/*/changelog*", "/usr/share/doc/*/NEWS*",
            "/usr/share/wallpapers/*", "/usr/share/backgrounds/*")
KEPT_SECONDS = 30 * 24 * 3600


class RootCommandFailed(AssertionError):
    """A command in a root ended with an error; tells what it said."""


class Root:
    """A Debian in a folder."""

    def __init__(self, path, writable=False):
        self.path = path
        self._writable = writable

    def command(self, *command, **options):
        """The command line that runs a command in it; see namespaces.entered for the options."""
        return namespaces.entered(self.path, command, writable=self._writable, **options)

    def run(self, *command, **options):
        """Runs a command in it and returns what it says."""
        done = subprocess.run(self.command(*command, **options), text=True, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
        if done.returncode != 0:
            raise RootCommandFailed(f"{shlex.join(command)} ended with {done.returncode}:\n"
                                    + done.stdout)
        return done.stdout

    @contextlib.contextmanager
    def copy(self):
        """A copy that may be changed, and goes when it is left."""
        folder = tempfile.mkdtemp(prefix="copy-", dir=cache_folder())
        try:
            path = os.path.join(folder, "root")
            _do("cp", "--archive", "--reflink=auto", self.path, path)
            yield Root(path, writable=True)
        finally:
            _do("rm", "--recursive", "--force", "--one-file-system", folder)

    def apt(self, *words, **options):
        """Runs apt-get with the machine's network."""
        return self.run("apt-get", "--yes", "--no-install-recommends", *words, network=True,
                        **{"environment": {"DEBIAN_FRONTEND": "noninteractive"}, **options})

    def install(self, *packages, **options):
        """Installs packages, by name or by a path inside."""
        self.apt("update")
        self.apt("install", *packages, **options)

    def take(self, file):
        """Puts a file into the root's top folder; returns its path there."""
        shutil.copy(file, self.path)
        return "/" + os.path.basename(file)


def packages_of(*lists):
    """The packages of scripts/packages.LIST."""
    found = set()
    for name in lists:
        with open(os.path.join(LISTS, f"packages.{name}"), encoding="utf-8") as file:
            found |= {line.partition("#")[0].strip() for line in file}
    return sorted(found - {""})


def cache_folder():
    folder = os.environ.get("FERRIN_ROOTS") or os.path.join(
        os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "ferrin", "roots")
    os.makedirs(folder, exist_ok=True)
    return folder


def cached(release, packages=(), foreign=None):
    """The root of a release, by its code name, with these packages and what they depend on; with a
    foreign architecture, packages may be of that ("NAME:arm64"). It is made by the first who asks, and
    used by all: nobody may change it."""
    namespaces.require()
    recipe = "\n".join([str(RECIPE), release, *LEFT_OUT, *filter(None, [foreign]), *sorted(packages)])
    key = hashlib.sha256(recipe.encode()).hexdigest()[:12]
    path = os.path.join(cache_folder(), f"{release}-{key}")
    with open(path + ".lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not os.path.isdir(path):
            _forget_old_ones()
            _make(path, release, packages, foreign)
    os.utime(path + ".lock")
    return Root(path)


def _make(*recipe):
    """With a second try: mirrors have their moments."""
    try:
        _try_to_make(*recipe)
    except RootCommandFailed:
        _try_to_make(*recipe)


def _try_to_make(path, release, packages, foreign):
    unfinished = path + ".unfinished"
    _do("rm", "--recursive", "--force", "--one-file-system", unfinished)
    left_out = "".join(f"path-exclude={each}\\n" for each in LEFT_OUT) \
        + "path-include=/usr/share/locale/locale.alias\\n"
    native = subprocess.run(["dpkg", "--print-architecture"], text=True, check=True,
                            stdout=subprocess.PIPE).stdout.strip()
    command = ["mmdebstrap", "--quiet", "--mode=root", "--variant=apt",
               "--architectures=" + ",".join(filter(None, [native, foreign])),
               "--dpkgopt=force-unsafe-io",
               "--aptopt=Acquire::Languages \"none\"", "--aptopt=Acquire::Retries \"5\"",
               # As an option it would take a program for each of the first packages.
               f"--extract-hook=printf '{left_out}' >\"$1/etc/dpkg/dpkg.cfg.d/left-out\"",
               "--include=" + ",".join(sorted({"passwd", "util-linux", *packages})),
               "--customize-hook=chroot \"$1\" useradd --uid 1000 --create-home person",
               "--customize-hook=touch \"$1/etc/resolv.conf\"",
               release, unfinished, MIRROR]
    # Apart from the processes of the machine, of which a package's script might end one.
    _do("unshare", "--mount", "--pid", "--ipc", "--fork", "--kill-child", "--mount-proc", "--",
        *command)
    os.rename(unfinished, path)


def _forget_old_ones():
    """Takes away what nobody has asked for in a long time. Of a root, its lock tells: the folder is as
    old as what was unpacked into it."""
    folder = cache_folder()
    for name in os.listdir(folder):
        path = os.path.join(folder, name)
        lock = path.removesuffix(".unfinished") + ".lock"
        used = os.path.getmtime(lock if os.path.exists(lock) else path)
        if not name.endswith(".lock") and time.time() - used > KEPT_SECONDS:
            _do("rm", "--recursive", "--force", "--one-file-system", path)


def _do(*command):
    """Runs a command of the machine's with power over the files of roots."""
    done = subprocess.run(namespaces.as_its_root(command), text=True, check=False,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT)
    if done.returncode != 0:
        raise RootCommandFailed(f"{shlex.join(command)} ended with {done.returncode}:\n{done.stdout}")
