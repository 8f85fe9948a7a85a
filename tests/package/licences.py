#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The package's copyright file says of every file of the tree what the file says of itself.

    licences.py SOURCE_TREE
"""

import fnmatch
import os
import re
import sys
import unittest

ROOT = sys.argv.pop()
HEADER = re.compile(r"SPDX-(License-Identifier|FileCopyrightText): ([^\"\n\\]*?)(?: -->)?[\"\n\\]")
NOT_OURS_TO_TELL = {".git", "build"}


def paragraphs():
    """The fields of each paragraph of the copyright file."""
    with open(os.path.join(ROOT, "debian", "copyright"), encoding="utf-8") as file:
        for text in file.read().strip().split("\n\n"):
            yield dict(re.findall(r"^([A-Za-z-]+): (.*(?:\n .*)*)", text, re.M))


def files():
    for folder, folders, names in os.walk(ROOT):
        folders[:] = [each for each in folders if each not in NOT_OURS_TO_TELL]
        for name in names:
            yield os.path.relpath(os.path.join(folder, name), ROOT)


class Licences(unittest.TestCase):
    def setUp(self):
        all_paragraphs = list(paragraphs())
        self.rules = [each for each in all_paragraphs if "Files" in each]
        self.texts = {each["License"].split("\n")[0] for each in all_paragraphs if "Files" not in each
                      and "License" in each}

    def rule_of(self, file):
        """The last that fits decides."""
        return [rule for rule in self.rules
                if any(fnmatch.fnmatch(file, pattern) for pattern in rule["Files"].split())][-1]

    def test_every_licence_is_given_in_words(self):
        self.assertEqual({rule["License"] for rule in self.rules}, self.texts)

    def test_every_file_is_described_as_it_describes_itself(self):
        described = 0
        for path in files():
            with open(os.path.join(ROOT, path), encoding="utf-8", errors="replace") as file:
                head = dict(HEADER.findall("".join(file.readline() for _ in range(4))))
            if not head:
                continue
            rule = self.rule_of(path)
            with self.subTest(path):
                self.assertEqual(head, {"License-Identifier": rule["License"],
                                        "FileCopyrightText": rule["Copyright"]})
            described += 1
        self.assertGreater(described, 500)

    def test_no_fonts_are_in_the_tree(self):
        self.assertEqual([path for path in files()
                          if re.search(r"\.(ttf|otf|woff2?|pcf|pfb)$", path)], [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
