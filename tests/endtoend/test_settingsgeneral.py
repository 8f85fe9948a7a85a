# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The general settings on a real session: launch at login, the theme, and the battery's own page."""

import os

from harness import desktop, login
from harness.case import AT_START, OnADesktop, WithSettings, main
from harness.portal import Desktop
from harness.processes import a_moment, eventually
from harness.program import binary
from harness.settings import CHOICE
from harness.standins import StandIns

SWITCH = "Launch at login"
ROW = "Open System Settings battery section"
NO_SETTINGS = "This desktop has no battery settings that Ferrin can open."

INSTALLED = """[Desktop Entry]
Type=Application
Name=Some settings
Exec=some-settings --battery %U
TryExec=some-settings
Categories=GTK;Settings;HardwareSettings;
Keywords=sleep;battery;
"""


class LaunchAtLogin(WithSettings):
    page = "General"

    def flip(self, becomes):
        self.window.click(SWITCH)
        self.window.becomes(SWITCH, becomes)

    def starts_at_login(self):
        """Logs in anew, and meets the item in the panel."""
        command = login.command_at_login(self.session)
        self.assertEqual(command, [os.path.realpath(binary()), "--background"])
        self.assertEqual(self.dashboard.program.terminate(), 0)
        self.session.point((5, 590))
        eventually(lambda: not self.session.windows_of(self.dashboard.program.pid),
                   "all windows have gone")
        a_moment()
        before = self.session.picture()
        program = self.start(command)
        program.item()
        program.says(AT_START)
        eventually(lambda: self.session.item_box(before), "the item is on the screen")

    def test_the_switch_makes_an_entry_with_which_the_next_session_starts_the_item(self):
        self.assertIsNone(login.read_entry(self.session))
        self.assertFalse(self.window.is_on(SWITCH))
        self.flip(True)
        entry = login.read_entry(self.session)
        self.assertEqual((entry["Type"], entry["Name"], entry["Icon"]),
                         ("Application", "Ferrin", "org.ferrin.Ferrin"))
        self.starts_at_login()

    def test_the_switch_takes_the_entry_away(self):
        self.flip(True)
        self.flip(False)
        self.assertIsNone(login.command_at_login(self.session))

    def changed_elsewhere(self, shows, **keys):
        """What another program makes of the entry is seen when the window is in front again."""
        self.session.open_another_program()
        self.session.focus_another_program()
        eventually(lambda: not self.window.is_in_front(), "the other program is in front")
        login.write_entry(self.session, **keys)
        self.window.open()
        self.window.becomes(SWITCH, shows)

    def test_an_entry_that_is_present_shows_as_on(self):
        self.changed_elsewhere(True, Exec=binary())
        self.flip(False)
        self.assertIsNone(login.read_entry(self.session))

    def test_an_entry_that_is_hidden_shows_as_off_and_is_brought_back(self):
        self.changed_elsewhere(False, Exec=binary(), Hidden="true", Comment="mine")
        self.flip(True)
        self.assertEqual(login.read_entry(self.session)["Comment"], "mine")
        self.starts_at_login()

    def test_an_entry_that_the_desktop_disabled_shows_as_off_and_is_enabled_again(self):
        self.flip(True)
        self.changed_elsewhere(False, Exec=binary(), X_GNOME_Autostart_enabled="false")
        self.assertIsNone(login.command_at_login(self.session))
        self.flip(True)
        self.starts_at_login()

    def test_an_entry_of_another_program_shows_as_off_and_is_replaced_only_by_a_flip(self):
        self.changed_elsewhere(False, Exec="/usr/bin/true")
        self.assertEqual(login.command_at_login(self.session), ["/usr/bin/true"])
        self.flip(True)
        self.starts_at_login()

    def test_a_folder_that_cannot_be_written_leaves_it_off_with_one_line_in_the_log(self):
        self.session.write("config/autostart", "no folder")
        self.window.click(SWITCH)
        line = (f"Failed to enable launch at login: {os.path.dirname(login.entry_path(self.session))}"
                ": the folder cannot be made")
        eventually(lambda: line in self.dashboard.program.log(), "the failure is in the log")
        a_moment()
        self.assertFalse(self.window.is_on(SWITCH))
        self.assertEqual(self.dashboard.program.log().count("launch at login"), 1)


class TheTheme(WithSettings):
    page = "General"

    def prepare(self):
        self.desktop = Desktop(self.session, "light")
        self.addCleanup(self.desktop.close)

    def looks(self):
        """The window's ground, and the item."""
        picture, box = self.session.picture(), self.window.box()
        return picture.pixel(box.right - 10, box.bottom - 10), picture.pixels(self.dashboard.item_box)

    def pick(self, scheme):
        before = self.looks()
        self.window.click(scheme, CHOICE)
        self.window.becomes(scheme, True, CHOICE)
        self.session.point((5, 590))
        a_moment()
        return before, self.looks()

    def test_a_theme_is_worn_at_once_by_the_open_window_and_never_by_the_item(self):
        _, light = self.pick("Light")
        _, dark = self.pick("Dark")
        self.assertLess(sum(dark[0]), sum(light[0]))
        self.assertEqual(dark[1], light[1])
        self.assertEqual(self.pick("Light")[1], light)

    def test_system_follows_the_desktop_live(self):
        at_first = self.looks()
        _, dark = self.pick("Dark")
        # The item then wears what its panel does, whatever windows wear.
        self.assertEqual(self.pick("System")[1], at_first)
        self.desktop.prefers("dark")
        eventually(lambda: self.looks() == (dark[0], at_first[1]), "the window is dark")
        self.desktop.prefers("light")
        eventually(lambda: self.looks() == at_first, "the window is light")

    def test_the_window_manager_is_told_whether_the_window_is_dark(self):
        def hint():
            return b'"dark"' in self.session.run("xprop", "-id", self.window.window(),
                                                 "_GTK_THEME_VARIANT")
        self.assertFalse(hint())
        self.pick("Dark")
        eventually(hint, "the title bar may be dark")
        self.begin_anew()
        self.assertTrue(hint())
        self.window.select("General")
        self.pick("Light")
        eventually(lambda: not hint(), "the title bar may be light")

    def test_a_theme_that_is_forced_stays_when_the_desktop_changes(self):
        _, dark = self.pick("Dark")
        self.desktop.prefers("dark")
        self.desktop.prefers("light")
        a_moment()
        self.assertEqual(self.looks(), dark)

    def test_the_choice_is_worn_by_the_next_start(self):
        _, dark = self.pick("Dark")
        self.begin_anew()
        self.assertTrue(self.window.is_on("Dark", CHOICE))
        self.assertEqual(self.looks(), dark)


class TheThemeWithoutAPanel(OnADesktop):
    """The bar of its own is the desktop's, as far as colours go."""

    def make_session(self):
        return desktop.XfceScreen(panel=False)

    def test_system_follows_the_desktop_live(self):
        settings = Desktop(self.session, "light")
        self.addCleanup(settings.close)
        before = self.session.picture()
        program = self.start()
        program.says(AT_START)
        bar = eventually(lambda: self.session.item_box(before), "the bar is on the screen")
        eventually(lambda: self.is_light(bar), "the bar is light")
        settings.prefers("dark")
        eventually(lambda: not self.is_light(bar), "the bar is dark")
        settings.prefers("light")
        eventually(lambda: self.is_light(bar), "the bar is light again")

    def is_light(self, box):
        pixels = self.session.picture().pixels(box)
        return sum(map(sum, pixels)) / len(pixels) > 3 * 128


class TheBatterysOwnPage(WithSettings):
    page = "General"
    pages = {"GNOME": "gnome-control-center power",
             "KDE": "systemsettings kcm_powerdevilprofilesconfig",
             "XFCE": "xfce4-power-manager-settings", "MATE": "mate-power-preferences",
             "X-Cinnamon": "cinnamon-settings power", "LXQt": "lxqt-config-powermanagement",
             "COSMIC": "cosmic-settings power", "Pantheon": "io.elementary.settings settings://power",
             "Deepin": "dde-control-center -s -p power"}

    def prepare(self):
        programs = [page.split()[0] for page in self.pages.values()]
        self.stand_ins = StandIns(self.session, *programs, "some-settings")
        self.environment = self.on("GNOME")

    def on(self, name):
        return {"XDG_CURRENT_DESKTOP": name} | self.stand_ins.alone()

    def test_each_desktop_opens_its_own_and_the_window_closes(self):
        for number, (name, page) in enumerate(self.pages.items()):
            with self.subTest(name):
                if number:
                    self.begin_anew(self.on(name))
                self.window.click(ROW)
                self.window.has_closed()
                eventually(lambda: self.stand_ins.started()[number:] == [page], page)
                self.assertTrue(self.dashboard.program.is_running())

    def test_on_other_desktops_an_installed_program_for_it_opens(self):
        self.session.write("data/applications/org.example.Some.desktop", INSTALLED)
        nowhere = os.path.join(self.session.folder, "nowhere")
        for number, names in enumerate(("sway:wlroots", "Hyprland", "Somewhere else")):
            with self.subTest(names):
                self.begin_anew(self.on(names) | {"XDG_DATA_DIRS": nowhere})
                self.window.click(ROW)
                self.window.has_closed()
                eventually(lambda: self.stand_ins.started()[number:] == ["some-settings --battery"],
                           "the program opens")

    def test_where_there_is_none_the_window_stays_and_says_so(self):
        lines = {"sway:wlroots": "Unable to open the battery settings: no power page is known for "
                                 '"sway:wlroots"',
                 "Unity": "Unable to open the battery settings: cannot start unity-control-center"}
        for names, line in lines.items():
            with self.subTest(names):
                nowhere = os.path.join(self.session.folder, "nowhere")
                self.begin_anew({"XDG_CURRENT_DESKTOP": names, "PATH": nowhere,
                                 "XDG_DATA_DIRS": nowhere})
                self.window.click(ROW)
                eventually(lambda: NO_SETTINGS in self.window.texts(), "the window says so")
                eventually(lambda: line in self.dashboard.program.log(), line)
                self.assertEqual(self.dashboard.program.log().count("Unable to open"), 1)
                self.assertEqual(self.stand_ins.started(), [])
                self.assertTrue(self.dashboard.program.is_running())


if __name__ == "__main__":
    main()
