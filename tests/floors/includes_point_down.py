# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Proves that includes only point down the floors, and that no file has outgrown 400 lines."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop(1)).resolve()

# Each room with the rooms that it may include from, itself aside.
FLOORS = {
    "base": set(),
    "sources": {"base"},
    "state": {"base"},
    "updates": {"state", "base"},
    "core": {"state", "sources", "base"},
    "popover": {"base"},
    "menubar": {"popover", "core", "state", "base"},
    "quick": {"menubar", "popover", "core", "state", "base"},
    "dashboard": {"quick", "menubar", "popover", "core", "state", "base"},
    "settingswindow": {"quick", "menubar", "popover", "core", "updates", "state", "base"},
    "platform": {"menubar", "popover", "core", "updates", "state", "sources", "base"},
    "tools": {"platform", "menubar", "core", "updates", "state", "base"},
    "app": {"platform", "dashboard", "settingswindow", "quick", "menubar", "popover", "core", "updates",
            "state", "sources", "base"},
}
INCLUDE = re.compile(r'^\s*#include "([^"/]+)/', re.MULTILINE)


def source_files(room):
    return [p for p in (ROOT / room).rglob("*") if p.suffix in {".h", ".cpp"}]


class Floors(unittest.TestCase):
    def test_includes_only_point_down(self):
        for room, below in FLOORS.items():
            for path in source_files(room):
                for target in INCLUDE.findall(path.read_text()):
                    with self.subTest(file=str(path.relative_to(ROOT)), includes=target):
                        self.assertIn(target, below | {room})

    def test_every_room_has_source_files(self):
        for room in FLOORS:
            self.assertTrue(source_files(room), room)

    def test_the_data_rooms_know_no_window(self):
        for room in ("base", "sources", "state", "updates", "core"):
            for path in source_files(room):
                text = path.read_text()
                for header in ("QGuiApplication", "QWindow", "QImage", "QPainter", "QDBus", "QQuick"):
                    with self.subTest(file=path.name, header=header):
                        self.assertNotIn(f"#include <{header}", text)

    def test_no_file_has_outgrown_400_lines(self):
        for room in [*FLOORS, "tests", "bench"]:
            for path in [*source_files(room), *(ROOT / room).rglob("*.qml")]:
                with self.subTest(file=str(path.relative_to(ROOT))):
                    self.assertLessEqual(len(path.read_text().splitlines()), 400)


if __name__ == "__main__":
    unittest.main()
