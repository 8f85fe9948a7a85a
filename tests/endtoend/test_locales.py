# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The program in locales that write other digits or other decimals, or from right to left. The toolkit
knows them by itself: the system need not have them installed."""

import re

from harness.case import WithSettings, main
from harness.processes import eventually
from harness.program import stored_settings
from harness.readwindow import TAB
from harness.settings import CHOICE


class InALocale:
    """One way through the item and the windows."""

    # An empty variable counts as none.
    environment = {"LC_ALL": "", "LANG": "C.UTF-8"}
    digits = "0123456789"
    thousands = ""
    is_mirrored = False
    says = "37%, .* to full"

    def prepare(self):
        self.laptop.send("set", "BAT0", "cycle_count", 1471)
        self.laptop.send("plug")
        self.laptop.send("adapter-details")

    def written(self, text):
        return re.sub("[0-9]", lambda digit: self.digits[int(digit[0])], text)

    def leads_on(self, one, other):
        """Whether reading leads from the one to the other."""
        return (one.box.left > other.box.left) == self.is_mirrored and one.box.left != other.box.left

    def test_windows_and_item(self):
        # The item is written alike everywhere.
        self.assertRegex(self.dashboard.program.item().says(), r"(?a)^37%, \d+:\d\d to full$")
        self.check_settings()
        self.window.close()
        self.dashboard.open()
        self.check_figures()
        self.check_places()

    def check_settings(self):
        self.window.select("General")
        entry, switch = self.window.find("General", TAB), self.window.find("Launch at login")
        self.assertTrue(self.leads_on(entry, switch))
        self.window.click("System", CHOICE)
        self.assertTrue(self.leads_on(self.window.find("System", CHOICE),
                                      self.window.find("Light", CHOICE)))
        self.window.press("Left" if self.is_mirrored else "Right")
        self.window.becomes("Light", True, CHOICE)
        self.assertGreater(stored_settings(self.session)["statusItemWidth"], 20)

    def check_figures(self):
        self.shows("Charge now", self.written("37%"))
        self.dashboard.select("HEALTH")
        self.shows("Charge cycles", self.written(f"1{self.thousands}471 of 300"))
        self.dashboard.select("POWER ADAPTER")
        self.shows("Power", self.written("65 watts"))
        self.shows("Volts & amps", "20 volts, 3.25 amps")

    def check_places(self):
        power, data = self.dashboard.find("Power: .*"), self.dashboard.find("Volts & amps: .*")
        self.assertTrue(self.leads_on(self.dashboard.find("STATUS", TAB), power))
        self.assertTrue(self.leads_on(power, data))

    def shows(self, title, value):
        eventually(lambda: self.dashboard.cards().get(title) == value,
                   f"{title} is {value} among {self.dashboard.cards()}")


class NoLocale(InALocale, WithSettings):
    pass


class German(InALocale, WithSettings):
    environment = InALocale.environment | {"LANG": "de_DE.UTF-8"}
    thousands = "."


class Arabic(InALocale, WithSettings):
    environment = InALocale.environment | {"LANG": "ar_EG.UTF-8"}
    digits = "٠١٢٣٤٥٦٧٨٩"
    thousands = "٬"
    is_mirrored = True


class Persian(InALocale, WithSettings):
    environment = {"LC_ALL": "fa_IR.UTF-8"}
    digits = "۰۱۲۳۴۵۶۷۸۹"
    thousands = "٬"
    is_mirrored = True


class ArabicWithGermanFigures(InALocale, WithSettings):
    environment = InALocale.environment | {"LANG": "ar_EG.UTF-8", "LC_NUMERIC": "de_DE.UTF-8"}
    thousands = "."
    is_mirrored = True


if __name__ == "__main__":
    main()
