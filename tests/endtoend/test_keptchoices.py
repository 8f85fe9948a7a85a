# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What the user chose in the settings window is kept: whatever ends the program in the middle of a
click, and whatever keeps the store from being written."""

import json
import os
import random
import re
import signal
import subprocess
import sys
import time

from harness.case import WithSettings, main
from harness.processes import a_moment, eventually
from harness.program import store_path
from harness.settings import CHOICE, SWITCH

ROUNDS = 12
CLICKS = 30
SECONDS_BETWEEN_CLICKS = 0.012
# The same kills again: FERRIN_TEST_SEED=...
SEED = int(os.environ.get("FERRIN_TEST_SEED", "20260101"))

SECTIONS = {"When discharging": ("Discharging", "Show time to empty"),
            "When charging": ("Charging", "Show time to full"),
            "When fully charged": ("Charged", None)}
THEMES = ("System", "Light", "Dark")
TROUBLE = "Unable to save the defaults store"


def switches():
    """Section, label and key of every switch in the window."""
    for section, (state, time_label) in SECTIONS.items():
        yield section, "Show icon", f"showIconWhen{state}"
        yield section, "Show charge %", f"showChargeWhen{state}"
        if time_label:
            yield section, time_label, f"showTimeWhen{state}"


def flipped(choices, key):
    """What a click on a switch makes of the choices: of those that are seen with the section, the
    last one stays on."""
    state = key.partition("When")[2]
    others = [f"show{element}When{state}" for element in ("Icon", "Charge", "Time")]
    after = choices | {key: not choices[key]}
    return after if any(after[each] for each in others) else choices


class KeptChoices(WithSettings):
    # Which parts the item says is what the user chose.
    says = ".+"
    # Nothing here is a default, so that a default is seen to be none of the user's choices.
    settings = {"appColor": "Dark", "showIconWhenDischarging": True,
                "showChargeWhenDischarging": False, "showTimeWhenDischarging": False,
                "showIconWhenCharging": True, "showChargeWhenCharging": False,
                "showTimeWhenCharging": False, "showIconWhenCharged": True,
                "showChargeWhenCharged": False, "showTimeWhenCharged": True}

    def choices(self):
        """What the store holds of that which can be chosen."""
        with open(store_path(self.session), encoding="utf-8") as file:
            stored = json.load(file)
        return {key: value for key, value in stored.items()
                if key in self.settings or key.endswith("IconSelected")}

    def section(self, title):
        return self.window.find(title, "panel")

    def place(self, section, name, role=SWITCH):
        return self.section(section).find(name, role).box.centre

    def shown(self):
        """What the switches on the page say."""
        root = self.window.root()
        return {key: "checked" in root.find(section, "panel").find(label, SWITCH).states
                for section, label, key in switches()}

    def shows(self, choices):
        expected = {key: choices[key] for _, _, key in switches()}
        eventually(lambda: self.shown() == expected, f"the page shows {expected}")


class KilledAmidClicks(KeptChoices):
    def setUp(self):
        super().setUp()
        self.random = random.Random(SEED)
        self.icons = {}

    # Each of these gives the places of clicks, and what each makes of the choices.

    def clicks_on_switches(self):
        places = [(self.place(section, label), key) for section, label, key in switches()]
        return [(place, lambda choices, key=key: flipped(choices, key))
                for place, key in self.random.choices(places, k=CLICKS)]

    def clicks_on_themes(self):
        self.window.select("General")
        places = {theme: self.window.find(theme, CHOICE).box.centre for theme in THEMES}
        return [(places[theme], lambda choices, theme=theme: choices | {"appColor": theme})
                for theme in self.random.choices(THEMES, k=CLICKS)]

    def clicks_on_icons(self):
        choices = self.choices()
        section, (state, _) = self.random.choice(
            [each for each in SECTIONS.items() if choices[f"showIconWhen{each[1][0]}"]]
            or [("When fully charged", SECTIONS["When fully charged"])])
        if not choices[f"showIconWhen{state}"]:
            self.session.click(self.place(section, "Show icon"))
            eventually(lambda: self.choices()[f"showIconWhen{state}"], "the icon is shown")
        self.session.click(self.place(section, "Choose icon", "push button"))
        popover = self.window.find(f"Icons {section.lower()}")
        places = [each.box.centre for each in popover.everything() if each.role == CHOICE][2:8]
        key = f"{state.lower()}IconSelected"
        values = self.icons.get(section) or self.learn(places, key)
        self.icons[section] = values
        chosen = self.random.choices(list(zip(places, values)), k=CLICKS)
        return [(place, lambda choices, value=value: choices | {key: value})
                for place, value in chosen]

    def learn(self, places, key):
        """What is stored when the icons at these places are clicked, one after the other."""
        values = []
        for place in places:
            self.session.click(place)
            values.append(eventually(
                lambda: self.choices()[key] not in values and self.choices()[key],
                "another icon is stored"))
        return values

    def kill_amid(self, clicks):
        """All that the store may hold after a kill amid the clicks: what it held after one of
        them."""
        possible = [self.choices()]
        command = ["xdotool"]
        for place, effect in clicks:
            command += ["mousemove", *map(str, place), "click", "1",
                        "sleep", str(SECONDS_BETWEEN_CLICKS)]
            possible.append(effect(possible[-1]))
        pointer = self.session.start(command)
        time.sleep(self.random.uniform(0, CLICKS * SECONDS_BETWEEN_CLICKS * 1.2))
        os.kill(self.dashboard.program.pid, signal.SIGKILL)
        self.assertEqual(self.dashboard.program.exit_code(), -signal.SIGKILL)
        pointer.wait()
        return possible

    def is_whole(self):
        log = self.dashboard.program.log()
        self.assertNotRegex(log, f"{TROUBLE}|damaged|Unable to decode")
        # One write was under way at most.
        left = set(os.listdir(os.path.dirname(store_path(self.session))))
        self.assertLessEqual(len(left - {"defaults.json", "defaults.json.lock"}), 1, left)

    def begin_anew(self, environment=None):
        self.session.point((5, 590))
        a_moment()
        self.dashboard = self.start_dashboard(environment)

    def test_the_old_or_the_new_choices_are_there_at_the_next_start(self):
        kinds = (self.clicks_on_switches, self.clicks_on_icons, self.clicks_on_themes)
        states = 0
        for number in range(ROUNDS):
            possible = self.kill_amid(kinds[number % len(kinds)]())
            after = self.choices()
            self.assertIn(after, possible, f"seed {SEED}, round {number}")
            self.is_whole()
            states += after not in (possible[0], possible[-1])
            self.begin_anew()
            self.shows(after)
            self.assertEqual(self.choices(), after)
        print(f"\n{states} of {ROUNDS} kills hit amid the clicks")
        # Otherwise the kills came before or after the clicks.
        self.assertGreater(states, 0)


class TheStoreCannotBeWritten:
    """Mounts that only root can make stand for disks that are full or read-only."""

    def setUp(self):
        if os.geteuid() != 0:
            self.skipTest("this system lets nobody but root mount")
        super().setUp()

    def start_dashboard(self, environment=None):
        # Before the program has the store open.
        self.folder = os.path.dirname(store_path(self.session))
        self.mount()
        return super().start_dashboard(environment)

    def mount(self):
        raise NotImplementedError

    def run_mount(self, *arguments):
        ran = subprocess.run(["mount", *arguments], capture_output=True, text=True, check=False)
        if ran.returncode != 0:
            self.skipTest(ran.stderr)
        self.addCleanup(subprocess.run, ["umount", "--lazy", self.folder], check=False)

    def text(self):
        with open(store_path(self.session), encoding="utf-8") as file:
            return file.read()

    def test_choices_hold_and_are_stored_when_it_can(self):
        before = self.choices()
        text = self.text()
        self.begin_trouble()
        wanted = before
        for section, label, key in list(switches())[:4]:
            self.session.click(self.place(section, label))
            wanted = flipped(wanted, key)
            self.shows(wanted)
        self.dashboard.program.says("37%, .*")
        self.assertEqual(self.text(), text)
        self.assertEqual(len(re.findall(TROUBLE, self.dashboard.program.log())), 1)
        self.assertEqual(os.listdir(self.folder), self.listed)
        self.end_trouble()
        eventually(lambda: self.choices() == wanted, f"the store holds {wanted}")
        self.assertEqual(len(re.findall(TROUBLE, self.dashboard.program.log())), 1)

    def begin_trouble(self):
        self.listed = os.listdir(self.folder)

    def end_trouble(self):
        raise NotImplementedError


class AFullDisk(TheStoreCannotBeWritten, KeptChoices):
    def mount(self):
        with open(store_path(self.session), encoding="utf-8") as file:
            text = file.read()
        self.run_mount("-t", "tmpfs", "-o", "size=64k", "ferrin-test", self.folder)
        with open(store_path(self.session), "w", encoding="utf-8") as file:
            file.write(text)

    def begin_trouble(self):
        self.filler = os.path.join(self.folder, "filler")
        with self.assertRaises(OSError), open(self.filler, "wb", buffering=0) as file:
            while file.write(b"0" * 4096):
                pass
        super().begin_trouble()

    def end_trouble(self):
        os.remove(self.filler)


class AReadOnlyDisk(TheStoreCannotBeWritten, KeptChoices):
    def mount(self):
        self.run_mount("--bind", self.folder, self.folder)

    def remount(self, how):
        subprocess.run(["mount", "-o", f"remount,bind,{how}", self.folder], check=True)

    def begin_trouble(self):
        self.remount("ro")
        super().begin_trouble()

    def end_trouble(self):
        self.remount("rw")


def go_where_one_may_mount():
    """Goes on as the root of a namespace of its own, where users may have one."""
    apart = ["unshare", "--user", "--map-root-user", "--mount", "--"]
    if os.geteuid() != 0 and subprocess.run([*apart, "true"], check=False).returncode == 0:
        os.execvp(apart[0], [*apart, sys.executable, "-B", *sys.argv])


if __name__ == "__main__":
    go_where_one_may_mount()
    main()
