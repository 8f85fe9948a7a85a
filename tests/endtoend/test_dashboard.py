# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The dashboard in a real panel, worked with a real pointer: its menu, and its sections while the
battery's life goes on."""

from harness.case import AT_START, WithADashboard, main
from harness.dashboard import SECTIONS, TAB
from harness.processes import a_moment, eventually
from harness.program import store_settings

# All that is left of a laptop without its battery is the adapter, if that is plugged in.
WITHOUT_A_BATTERY = {"Charge now": "Unknown", "Time": "Unknown", "Battery is": "Unknown",
                     "Power source": "AC Power"}
ADAPTER_CARDS = ("Power", "Volts & amps", "Description", "Manufacturer")
TALKATIVE_ADAPTER = {
    "Power": "65 watts", "Volts & amps": r"20 volts, 3\.25 amps", "Description": "65W USB-C",
    "Manufacturer": "Acme"}


class TheMenu(WithADashboard):
    def ground_of(self, section):
        """The colour behind an entry, beside its symbol."""
        box = self.dashboard.find(section, TAB).box
        return self.session.picture().pixel(box.left + 4, box.centre[1])

    def grounds(self):
        picture, root = self.session.picture(), self.dashboard.root()
        boxes = [root.find(section, TAB).box for section in SECTIONS]
        return [picture.pixel(box.left + 4, box.centre[1]) for box in boxes]

    def test_it_offers_the_four_sections_and_begins_with_the_status(self):
        self.dashboard.open()
        self.assertEqual(self.dashboard.root().named(TAB), SECTIONS)
        self.assertEqual(self.dashboard.selected(), ["STATUS"])
        self.dashboard.shows(Charge_now="37%", Time_to_empty="2 hours 47 minutes",
                             Battery_is="Discharging", Power_source="Battery")

    def test_the_selected_section_survives_closing_and_reopening(self):
        self.dashboard.open()
        self.dashboard.select("HEALTH")
        self.dashboard.close()
        self.dashboard.open()
        self.assertEqual(self.dashboard.selected(), ["HEALTH"])
        self.assertIn("Max capacity", self.dashboard.cards())
        self.session.point((5, 500))
        selected = self.ground_of("HEALTH")
        others = {self.ground_of(section) for section in SECTIONS if section != "HEALTH"}
        self.assertEqual(len(others), 1)
        self.assertNotIn(selected, others)

    def test_hovering_marks_an_entry_unless_it_is_the_selected_one(self):
        self.dashboard.open()
        self.session.point((5, 500))
        at_rest = self.grounds()
        place = {section: self.dashboard.find(section, TAB).box.centre for section in SECTIONS}
        self.session.point(place["HEALTH"])
        hovered = eventually(lambda: self.grounds() != at_rest and self.grounds(), "HEALTH is lit")
        self.assertEqual([at_rest[0], at_rest[2], at_rest[3]], [hovered[0], hovered[2], hovered[3]])
        self.assertNotEqual(hovered[1], at_rest[0])
        self.session.point(place["STATUS"])
        eventually(lambda: self.grounds() == at_rest, "only STATUS is marked, and as before")
        self.session.point((5, 500))
        a_moment()
        self.assertEqual(self.grounds(), at_rest)

    def test_the_settings_close_it_and_open_a_window_of_their_own(self):
        self.dashboard.open()
        self.dashboard.select("POWER ADAPTER")
        self.dashboard.click("SETTINGS", TAB)
        eventually(self.dashboard.settings_window, "the settings are open")
        eventually(lambda: not self.dashboard.root(), "the dashboard has closed")
        self.assertEqual(len(self.dashboard.windows()), 1)
        a_moment()
        self.dashboard.open()
        self.assertEqual(self.dashboard.selected(), ["POWER ADAPTER"])

        eventually(lambda: not self.is_active(self.dashboard.settings_window()),
                   "the dashboard has the focus")
        self.dashboard.click("SETTINGS", TAB)
        eventually(lambda: self.is_active(self.dashboard.settings_window()),
                   "the settings are in front again")
        self.assertEqual(len(self.dashboard.windows()), 1)

    @staticmethod
    def is_active(window):
        return window is not None and "active" in window.states

    def test_a_click_on_the_item_closes_an_explanation_with_the_dashboard(self):
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 100)
        self.dashboard.open()
        self.dashboard.explain("Time available")
        self.dashboard.close()
        self.assertIsNone(self.dashboard.popover())
        self.dashboard.open()
        self.assertEqual(len(self.dashboard.windows()), 1)


class TheStatus(WithADashboard):
    def test_it_follows_the_battery_through_a_day(self):
        self.dashboard.open()
        self.assertEqual(self.dashboard.buttons(), [])
        self.laptop.send("plug")
        self.dashboard.shows(Charge_now="37%", Time_to_full=r"\d+ hours? \d+ minutes?",
                             Battery_is="Charging", Power_source="AC Power")
        self.assertEqual(self.dashboard.buttons(), [])
        self.laptop.send("set", "BAT0", "capacity", 100, "energy_now", 46000000)
        self.dashboard.shows(Charge_now="100%", Time_available=r"\d+ hours? \d+ minutes?",
                             Battery_is="Finishing charge", Power_source="AC Power")
        self.laptop.send("charge", "BAT0", 100)
        self.dashboard.shows(Charge_now="100%", Time_available=r"\d+ hours? \d+ minutes?",
                             Battery_is="Charged", Power_source="AC Power")
        self.assertEqual(self.dashboard.buttons(), ["More about Time available"])
        self.assertEqual(self.dashboard.explain("Time available"),
                         ["Time you can use your laptop approximately if the power adapter is "
                          "unplugged."])
        self.laptop.send("unplug")
        self.dashboard.shows(Charge_now="100%", Time_to_empty=r"\d+ hours? \d+ minutes?",
                             Battery_is="Discharging", Power_source="Battery")
        eventually(lambda: not self.dashboard.popover(),
                   "the explanation has gone with what it explains")

    def test_cards_of_unknown_values_do_nothing(self):
        self.laptop.send("plug")
        self.dashboard.open()
        self.laptop.send("remove", "BAT0")
        self.dashboard.shows_all(WITHOUT_A_BATTERY)
        self.assertEqual(self.dashboard.buttons(), [])
        for title in WITHOUT_A_BATTERY:
            self.dashboard.click(f"{title}: .*")
        a_moment()
        self.assertIsNone(self.dashboard.popover())

    def test_a_battery_that_disappears_is_shown_again_when_it_is_back(self):
        self.laptop.send("plug")
        self.laptop.send("charge", "BAT0", 100)
        self.dashboard.open()
        for _ in range(3):
            self.laptop.send("remove", "BAT0")
            self.dashboard.shows_all(WITHOUT_A_BATTERY)
            self.laptop.send("add", "BAT0")
            self.dashboard.shows(Charge_now="100%", Time_available=r"\d+ hours? \d+ minutes?",
                                 Battery_is="Charged", Power_source="AC Power")

    def test_it_goes_on_without_upower(self):
        self.dashboard.open()
        self.laptop.send("upower", "stop")
        self.laptop.send("drain", "BAT0", 33)
        self.dashboard.shows(Charge_now="33%", Time_to_empty=r"\d+ hours? \d+ minutes?",
                             Battery_is="Discharging", Power_source="Battery")
        self.laptop.send("upower", "start")
        self.laptop.send("drain", "BAT0", 30)
        self.dashboard.shows(Charge_now="30%", Time_to_empty="2 hours 15 minutes",
                             Battery_is="Discharging", Power_source="Battery")

    def test_it_outlives_its_panel(self):
        self.dashboard.open()
        self.session.kill_panel()
        a_moment()
        self.session.start_panel()
        self.dashboard.program.item()
        self.dashboard.program.says(AT_START)
        if self.dashboard.windows():
            self.session.click((100, 500))
            self.dashboard.has_closed()
        # The panel has drawn itself anew, and the item is where it was.
        a_moment()
        self.dashboard.open()
        self.dashboard.shows(Charge_now="37%", Time_to_empty="2 hours 47 minutes",
                             Battery_is="Discharging", Power_source="Battery")


class TheAdapter(WithADashboard):
    def test_an_adapter_that_is_plugged_in_tells_of_itself_and_is_remembered(self):
        self.dashboard.open()
        self.dashboard.select("POWER ADAPTER")
        self.dashboard.shows_all(dict.fromkeys(ADAPTER_CARDS, "Not connected"))
        self.laptop.send("plug")
        self.dashboard.shows_all(dict.fromkeys(ADAPTER_CARDS, r"Getting info\.\.\."))
        self.laptop.send("adapter-details")
        self.dashboard.shows_all(TALKATIVE_ADAPTER)
        self.laptop.send("unplug")
        self.dashboard.program.says(r"37%, \d+:\d\d to empty")
        self.dashboard.shows_all(TALKATIVE_ADAPTER)
        self.assertEqual(self.dashboard.buttons(), [])
        self.dashboard.select("STATUS")
        self.dashboard.shows(Charge_now="37%", Time_to_empty=r"\d+ hours? \d+ minutes?",
                             Battery_is="Discharging", Power_source="Battery")

    def test_an_adapter_of_which_nothing_is_known_is_not_available(self):
        self.dashboard.open()
        self.dashboard.select("POWER ADAPTER")
        self.laptop.send("plug")
        self.dashboard.shows_all(dict.fromkeys(ADAPTER_CARDS, r"Getting info\.\.\."))
        self.dashboard.shows_all(dict.fromkeys(ADAPTER_CARDS, "Not available"))


class TheLastAdapter(WithADashboard):
    settings = {
        "adapterWattsStored": 0, "adapterVoltageStored": 20.0, "adapterCurrentStored": 2.999,
        "adapterNameStored": "", "adapterManufacturerStored": "apple inc."}

    def symbol_of_the_maker(self):
        box = self.dashboard.find("Manufacturer: .*").box
        centre = box.centre
        return self.session.picture().pixels(type(box)(centre[0] - 20, centre[1] - 16,
                                                       centre[0] + 20, centre[1] + 14))

    def begin_anew(self, **settings):
        self.assertEqual(self.dashboard.program.terminate(), 0)
        self.session.point((5, 500))
        store_settings(self.session, **(self.settings | settings))
        a_moment()
        self.dashboard = self.start_dashboard()
        self.dashboard.open()
        self.dashboard.select("POWER ADAPTER")

    def test_it_is_shown_with_its_figures_rounded_and_without_what_it_did_not_tell(self):
        self.dashboard.open()
        self.dashboard.select("POWER ADAPTER")
        self.dashboard.shows_all({
            "Power": "Not available", "Volts & amps": "20 volts, 3 amps",
            "Description": "Not available", "Manufacturer": r"apple inc\."})
        with_an_apple = self.symbol_of_the_maker()
        self.begin_anew(adapterManufacturerStored="Acme")
        self.assertNotEqual(self.symbol_of_the_maker(), with_an_apple)
        self.begin_anew(adapterManufacturerStored="APPLE INC.")
        self.assertEqual(self.symbol_of_the_maker(), with_an_apple)


class WithoutASupply(WithADashboard):
    machine = "desktop-no-battery.json"
    says = "No battery"

    def test_every_card_is_unknown(self):
        self.dashboard.open()
        self.dashboard.shows(Charge_now="Unknown", Time="Unknown", Battery_is="Unknown",
                             Power_source="Unknown")
        self.dashboard.select("HEALTH")
        self.dashboard.shows(Max_capacity="Unknown", Charge_cycles="Unknown", Health="Unknown",
                             Lifespan="Unknown")
        self.dashboard.select("POWER ADAPTER")
        self.dashboard.shows_all(dict.fromkeys(ADAPTER_CARDS, "Unknown"))
        self.assertEqual(self.dashboard.buttons(), [])


if __name__ == "__main__":
    main()
