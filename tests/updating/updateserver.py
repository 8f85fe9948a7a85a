# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Releases that are made by scripts/release, and an HTTPS server with an authority of its own that
serves them."""

import functools
import http.server
import os
import re
import ssl
import subprocess
import tempfile
import threading
import time

RELEASE = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", "..", "scripts", "release"))
NEW_KEY = ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
           "-nodes", "-days", "2"]
CONTROL = """Package: ferrin
Version: {version}
Architecture: amd64
Maintainer: Somebody <somebody@example.org>
Description: a test
"""


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, **options).stdout


class Authority:
    """A certificate authority that nobody knows, and a server's certificate for this machine."""

    def __init__(self, folder):
        self.certificate = os.path.join(folder, "authority.pem")
        self.server = os.path.join(folder, "server.pem")
        key = os.path.join(folder, "authority.key")
        run(*NEW_KEY, "-subj", "/CN=Test authority", "-keyout", key, "-out", self.certificate)
        server_key = os.path.join(folder, "server.key")
        run(*NEW_KEY, "-subj", "/CN=Test server", "-CA", self.certificate, "-CAkey", key, "-addext",
            "subjectAltName=IP:127.0.0.1", "-addext", "basicConstraints=critical,CA:FALSE",
            "-keyout", server_key, "-out", self.server)
        with open(server_key, encoding="ascii") as lines, \
                open(self.server, "a", encoding="ascii") as together:
            together.write(lines.read())


class Releases:
    """A folder of releases, as a release manager makes them, with a key of its own."""

    def __init__(self, folder):
        self._folder = folder
        self.key = os.path.join(folder, "release.key")
        self.public = os.path.join(folder, "public")
        self.public_key = self.release("--new-key", self.key).decode().strip()

    def release(self, *arguments):
        tree = [] if "--build-tree" in arguments else ["--build-tree", os.environ["FERRIN_BUILD"]]
        return run(RELEASE, *tree, *arguments)

    def publish(self, version, notes="- **Quieter**.\n", length=3_000_000):
        """Releases a package whose contents mean nothing; returns the package's path."""
        tree = tempfile.mkdtemp(dir=self._folder)
        os.mkdir(os.path.join(tree, "DEBIAN"))
        with open(os.path.join(tree, "DEBIAN", "control"), "w", encoding="utf-8") as file:
            file.write(CONTROL.format(version=version))
        with open(os.path.join(tree, "contents"), "wb") as file:
            file.write(os.urandom(length))
        package = os.path.join(self._folder, f"ferrin_{version}_amd64.deb")
        os.chmod(tree, 0o755)
        run("dpkg-deb", "--root-owner-group", "--build", tree, package)
        written = os.path.join(self._folder, "notes.md")
        with open(written, "w", encoding="utf-8") as file:
            file.write(notes)
        self.release("--key", self.key, "--out", self.public, "--notes", written, package)
        return package


class UpdateServer:
    """Serves a folder of releases over HTTPS on the loopback device."""

    def __init__(self, folder, public):
        self.authority = Authority(folder)
        self._public = public
        self._server = None
        self._address = ("127.0.0.1", 0)
        # While it is cleared, half of a package is sent and the rest is kept back.
        self.flows = threading.Event()
        self.flows.set()
        # The same for the answer to a question for the feed.
        self.answers = threading.Event()
        self.answers.set()
        # When what was asked for, with the part of it; by the monotonic clock.
        self.requests = []
        self.start()

    @property
    def feed(self):
        return f"https://127.0.0.1:{self._address[1]}/feed"

    def start(self):
        """Stands; after `stop` at the same address again."""
        handler = functools.partial(Handler, self, directory=self._public)
        self._server = http.server.ThreadingHTTPServer(self._address, handler)
        self._address = self._server.server_address
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(self.authority.server)
        self._server.socket = context.wrap_socket(self._server.socket, server_side=True)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def stop(self):
        self._server.shutdown()
        self._server.server_close()

    def close(self):
        self.flows.set()
        self.answers.set()
        self.stop()


class Handler(http.server.SimpleHTTPRequestHandler):
    def __init__(self, owner, *arguments, **options):
        self._owner = owner
        super().__init__(*arguments, **options)

    def do_GET(self):
        part = self.headers.get("Range")
        self._owner.requests.append((time.monotonic(), self.path, part))
        try:
            if self.path == "/feed":
                self._owner.answers.wait()
                super().do_GET()
            elif os.path.isfile(self.translate_path(self.path)):
                self._send_package(part)
            else:
                self.send_error(404)
        except OSError:
            # The client has heard enough.
            self.close_connection = True

    def _send_package(self, part):
        with open(self.translate_path(self.path), "rb") as file:
            data = file.read()
        begin = int(re.fullmatch(r"bytes=(\d+)-", part)[1]) if part else 0
        self.send_response(206 if part else 200)
        if part:
            self.send_header("Content-Range", f"bytes {begin}-{len(data) - 1}/{len(data)}")
        self.send_header("Content-Length", str(len(data) - begin))
        self.end_headers()
        middle = max(begin, len(data) // 2)
        self.wfile.write(data[begin:middle])
        self.wfile.flush()
        self._owner.flows.wait()
        self.wfile.write(data[middle:])

    def log_message(self, *_):
        pass
