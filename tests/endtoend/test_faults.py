# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What breaks in the field: services, files, batteries and settings. The item stays and answers."""

import json
import os

from harness import desktop
from harness.case import AT_START, OnADesktop, main
from harness.processes import eventually
from harness.program import store_path

SWITCHES = [f"show{element}When{state}" for element in ("Icon", "Charge", "Time")
            for state in ("Discharging", "Charging", "Charged")]
NUMBERS = ["statusItemWidth", "adapterWattsStored", "adapterVoltageStored",
           "adapterCurrentStored"]
TEXTS = ["dischargingIconSelected", "chargingIconSelected", "chargedIconSelected",
         "releaseVersionNumber", "adapterNameStored", "adapterManufacturerStored", "appColor"]
OF_ANOTHER_TYPE = dict.fromkeys(SWITCHES + NUMBERS, "no") | dict.fromkeys(TEXTS, 7.5)


class WithoutUPower(OnADesktop):
    upower = False

    def test_the_time_is_the_kernels_with_it_and_without_it(self):
        program = self.start()
        program.says(AT_START)
        self.laptop.send("drain", "BAT0", 33)
        program.says("33%, 2:29 to empty")
        self.laptop.send("upower", "start")
        self.laptop.send("drain", "BAT0", 20)
        program.says(r"20%, 1:[23]\d to empty")
        self.laptop.send("upower", "stop")
        self.laptop.send("drain", "BAT0", 15)
        program.says(r"15%, 1:\d\d to empty")
        lines = program.log().splitlines()
        self.assertEqual(sum("UPower" in line and "error" in line for line in lines), 2, lines)
        self.assertEqual(sum("Connection to UPower" in line for line in lines), 1, lines)
        self.assertFalse([line for line in lines if "IOPSCopy" in line])


class WithAnUnreliableUPower(OnADesktop):
    def test_a_restart_goes_by_unnoticed(self):
        program = self.start()
        program.says(AT_START)
        self.laptop.send("upower", "restart")
        self.laptop.send("drain", "BAT0", 33)
        program.says("33%, 2:29 to empty")
        self.laptop.send("upower", "stop")
        self.laptop.send("drain", "BAT0", 20)
        program.says(r"20%, \d+:\d\d to empty")

    def test_a_hung_daemon_does_not_hang_the_item(self):
        program = self.start()
        program.says(AT_START)
        self.laptop.send("upower", "hang")
        self.laptop.send("drain", "BAT0", 33)
        program.says(r"33%, \d+:\d\d to empty")
        self.laptop.send("plug")
        program.says(r"33%, \d+:\d\d to full")
        self.laptop.send("upower", "resume")
        self.laptop.send("charge", "BAT0", 78)
        program.says(r"78%, 1:0\d to full")

    def test_a_daemon_that_hangs_from_the_start_is_not_waited_for(self):
        self.laptop.send("upower", "hang")
        program = self.start()
        program.says(r"37%, \d+:\d\d to empty")
        self.laptop.send("upower", "resume")
        program.says(AT_START)


class BrokenAttributes(OnADesktop):
    def test_one_broken_file_is_made_up_for_by_the_others(self):
        program = self.start()
        for percent, kind in ((60, "eio"), (50, "enxio"), (40, "directory"), (30, "garbage"),
                              (20, "huge"), (70, "gone"), (80, "empty")):
            with self.subTest(kind):
                self.laptop.send("fault", "BAT0", "capacity", kind)
                self.laptop.send("set", "BAT0", "energy_now", percent * 460000)
                program.says(rf"{percent}%, \d+:\d\d to empty")
                self.laptop.send("heal", "BAT0", "capacity")

    def test_a_battery_of_which_nothing_can_be_read_does_no_harm(self):
        program = self.start()
        program.says(AT_START)
        for kind in ("eio", "directory", "garbage", "huge"):
            for attribute in self.laptop.supply("BAT0"):
                self.laptop.send("fault", "BAT0", attribute, kind)
            self.laptop.send("uevent", "BAT0")
            eventually(lambda: program.unseen_item().says() != AT_START, "the fault has been seen")
            for attribute in self.laptop.supply("BAT0"):
                self.laptop.send("heal", "BAT0", attribute)
            self.laptop.send("uevent", "BAT0")
            program.says(AT_START)

    def test_absurd_numbers_are_not_shown(self):
        program = self.start()
        program.says(AT_START)
        self.laptop.send("set", "BAT0", "capacity", 106)
        program.says(r"100%, 7:\d\d to empty")
        self.laptop.send("set", "BAT0", "capacity", 37, "power_now", -6100000)
        program.says(AT_START)
        self.laptop.send("set", "BAT0", "power_now", "99999999999999999999999999",
                         "energy_now", "-17020000", "capacity", 35)
        program.says(r"35%, \S+ to empty")
        self.laptop.send("drain", "BAT0", 33)
        self.laptop.send("set", "BAT0", "power_now", 6100000)
        program.says(r"33%, 2:[23]\d to empty")


class BatteriesComeAndGo(OnADesktop):
    def test_a_battery_that_was_taken_out_is_back_when_it_is_back(self):
        program = self.start()
        program.says(AT_START)
        for _ in range(3):
            self.laptop.send("remove", "BAT0")
            eventually(lambda: program.unseen_item().says() != AT_START, "the battery is missed")
            self.laptop.send("add", "BAT0")
            program.says(AT_START)

    def test_a_mouse_is_not_the_laptops_battery(self):
        program = self.start()
        program.says(AT_START)
        self.laptop.send("add", "hidpp_battery_0", json.dumps(
            {"type": "Battery", "scope": "Device", "status": "Discharging", "capacity": "65",
             "model_name": "Mouse"}))
        self.laptop.send("drain", "BAT0", 33)
        program.says("33%, 2:29 to empty")

    def test_two_packs_are_one_battery(self):
        program = self.start()
        program.says(AT_START)
        battery = self.laptop.supply("BAT0")
        self.laptop.send("add", "BAT1", json.dumps(battery | {
            "energy_now": "45000000", "capacity": "97", "status": "Not charging",
            "power_now": "0"}))
        program.says("67%, 10:10 to empty")


class TheStore(OnADesktop):
    def make_session(self):
        # Permissions mean nothing to root.
        return desktop.XfceScreen(user="nobody" if os.geteuid() == 0 else None)

    def put(self, text):
        path = store_path(self.session)
        self.session.write(os.path.relpath(path, self.session.folder), text)
        return path

    def still_works(self, said=AT_START):
        program = self.start()
        program.says(said)
        self.laptop.send("plug")
        program.says(r"37%, \d+:\d\d to full|37%")
        self.laptop.send("unplug")
        self.assertEqual(program.terminate(), 0)
        return program.log()

    def test_a_damaged_store_is_set_aside(self):
        damaged = '{"showTimeWhenCharging": fal'
        path = self.put(damaged)
        self.still_works()
        folder = os.path.dirname(path)
        kept = []
        for name in os.listdir(folder):
            with open(os.path.join(folder, name), encoding="utf-8") as file:
                kept.append(file.read())
        self.assertIn(damaged, kept)
        with open(path, encoding="utf-8") as file:
            self.assertIsInstance(json.load(file), dict)

    def test_values_of_another_type_count_as_missing(self):
        self.put(json.dumps(OF_ANOTHER_TYPE))
        self.still_works()

    def test_nested_values_count_as_missing(self):
        self.put(json.dumps(dict.fromkeys(OF_ANOTHER_TYPE, [{"a": None}])))
        self.still_works()

    def test_a_folder_in_the_place_of_the_store_does_no_harm(self):
        path = os.path.relpath(store_path(self.session), self.session.folder)
        self.session.write(os.path.join(path, "inside"), "")
        self.still_works()

    def test_a_store_that_cannot_be_written_is_still_read(self):
        text = json.dumps({"showTimeWhenDischarging": False, "showTimeWhenCharging": False})
        path = self.put(text)
        os.chmod(path, 0o444)
        os.chmod(os.path.dirname(path), 0o555)
        self.still_works("37%")
        with open(path, encoding="utf-8") as file:
            self.assertEqual(file.read(), text)

    def test_a_store_that_cannot_be_read_does_no_harm(self):
        text = json.dumps({"showTimeWhenDischarging": False})
        path = self.put(text)
        os.chmod(path, 0o000)
        os.chmod(os.path.dirname(path), 0o555)
        self.still_works()
        os.chmod(path, 0o444)
        with open(path, encoding="utf-8") as file:
            self.assertEqual(file.read(), text)


if __name__ == "__main__":
    main()
