# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A laptop's day in steps."""

# What happens, the commands that make it happen, and what the item must come to say. The time to full is
# a forecast, which goes by what has been seen of the charge.
DAY = [
    ("discharging", [], "37%, 2:47 to empty"),
    ("plugged in", [["plug"]], r"37%, \d:\d\d to full"),
    ("adapter details", [["adapter-details"]], r"37%, \d:\d\d to full"),
    ("charging", [["charge", "BAT0", "78"]], r"78%, \d:\d\d to full"),
    ("charged", [["charge", "BAT0", "100"]], "100%"),
    ("unplugged", [["unplug"]], "100%, 7:32 to empty"),
    ("nearly empty", [["drain", "BAT0", "8"]], "8%, 0:36 to empty"),
]
