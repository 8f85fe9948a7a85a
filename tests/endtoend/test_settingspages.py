# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The support and about pages of the settings window: their links, and their sheet."""

import re
import urllib.parse

from harness.case import WithSettings, main
from harness.processes import eventually
from harness.settings import LINK
from harness.standins import StandIns


class TheLinks(WithSettings):
    page = "Support"

    def prepare(self):
        self.stand_ins = StandIns(self.session, "xdg-open")
        self.environment = self.stand_ins.alone()

    def opened_by(self, link):
        before = len(self.stand_ins.started())
        self.window.click(link, LINK)
        started = eventually(lambda: self.stand_ins.started()[before:], f"{link} opens something")
        self.assertEqual(len(started), 1)
        program, _, address = started[0].partition(" ")
        self.assertEqual(program, "xdg-open")
        return address

    def test_the_questions_open_as_the_page_that_came_with_the_program(self):
        address = urllib.parse.urlsplit(self.opened_by("Ferrin FAQ"))
        self.assertEqual(address.scheme, "file")
        with open(urllib.parse.unquote(address.path), encoding="utf-8") as file:
            self.assertIn("<title>Ferrin FAQ</title>", file.read())
        self.assertTrue(self.window.root())

    def test_a_build_without_an_address_says_so_instead_of_offering_a_mail(self):
        texts = self.window.texts()
        self.assertNotIn("Send Mail", texts)
        self.assertIn("This build of Ferrin has no support address. Please ask whoever you got it "
                      "from.", texts)

    def test_they_open_by_keys(self):
        eventually(lambda: self.window.focused_name() == "Ferrin FAQ" or self.window.press("Tab"),
                   "the link has the focus")
        self.window.press("Return")
        eventually(lambda: len(self.stand_ins.started()) == 1, "the page opens")


class TheLinksWithNobodyToOpenThem(WithSettings):
    page = "Support"

    def prepare(self):
        self.environment = StandIns(self.session).alone()

    def test_a_link_costs_one_line_in_the_log(self):
        self.window.click("Ferrin FAQ", LINK)
        eventually(lambda: "Unable to open file:" in self.dashboard.program.log(), "the line")
        self.assertTrue(self.window.root())


class TheSheet(WithSettings):
    page = "About"

    def test_it_shows_the_texts_and_leaves_the_page_as_it_was(self):
        before, picture = self.window.texts(), self.session.picture()
        self.window.click("Acknowledgements", "push button")
        self.window.find("Done")
        texts = "\n".join(self.window.texts())
        for heading in ("SOFTWARE UPDATES", "LAUNCH AT LOGIN", "THE ITEM IN THE STATUS AREA"):
            self.assertIn(heading, texts)
        self.window.click("Done")
        eventually(lambda: self.window.texts() == before, "the page is as it was")
        self.session.point((5, 590))
        eventually(lambda: not picture.difference(self.session.picture()), "it looks as it did")

    def test_its_texts_are_scrolled_by_their_bar(self):
        self.window.click("Acknowledgements", "push button")
        done = self.window.find("Done").box
        first = "(?s)SOFTWARE UPDATES.*"
        before = self.window.find(first).box.top
        # In the corner of the sheet, which is 400 pixels high.
        knob = done.right + 10, done.bottom + 13 - 380
        self.session.drag(knob, (knob[0], knob[1] + 100))
        eventually(lambda: self.window.find(first).box.top < before - 100,
                   "the texts have gone up by more than the pointer has come down")

    def test_it_keeps_the_pages_from_being_turned(self):
        box = self.window.find("General", "page tab").box
        self.window.click("Acknowledgements", "push button")
        self.window.find("Done")
        self.session.click((box.left + 12, box.centre[1]))
        self.window.find("Done")
        self.assertEqual(self.window.selected(), ["About"])
        self.window.press("Escape")
        eventually(lambda: "Done" not in self.window.texts(), "the sheet has closed")
        self.assertEqual(self.window.selected(), ["About"])

    def test_it_goes_with_its_window(self):
        self.window.click("Acknowledgements", "push button")
        self.window.find("Done")
        self.window.close()
        self.window.open()
        self.assertNotIn("Done", self.window.texts())
        self.assertTrue(self.window.find("Acknowledgements", "push button"))

    def test_the_page_tells_the_version_and_the_build(self):
        self.assertTrue(any(re.fullmatch(r"Version \d+\.\d+\.\d+ \(\d+\)", name)
                            for name in self.window.texts()))


if __name__ == "__main__":
    main()
