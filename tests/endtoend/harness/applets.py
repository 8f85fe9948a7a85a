# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Panels whose status area is an applet that another process feeds: Ayatana's indicators, as Ubuntu's
flavours have them, and XApp's, as Linux Mint has it."""

import contextlib

from harness.desktop import BareScreen, PanelScreen, XfceScreen
from harness.picture import Box
from harness.processes import TIMEOUT_SECONDS, eventually
from harness.shells import Shell, xapp_watcher
from harness.traybars import TrayBar

AYATANA = "/usr/libexec/ayatana-indicator-application/ayatana-indicator-application-service"
AYATANA_NAME = "org.ayatana.indicator.application"
MATE_INDICATORS = "IndicatorAppletFactory::IndicatorApplet"
MATE_INDICATOR_APPLET = "/usr/lib/mate-indicator-applet/mate-indicator-applet"
MATE_INDICATOR_FACTORY = "org.mate.panel.applet.IndicatorAppletFactory"
MATE_XAPP = "MateXAppStatusAppletFactory::MateXAppStatusApplet"
BUDGIE_TRAY, BUDGIE_INDICATORS = "System Tray", "AppIndicator Applet"
BUDGIE_HEIGHT = 36
BUDGIE_STARTS = 4
# For what a second start mends.
PATIENCE_SECONDS = 15
# Identifiers of a panel and of an applet in it; Budgie wants them in this form.
PANEL, APPLET = "22345678-1234-11ee-8888-0123456789ab", "12345678-1234-11ee-8888-0123456789ab"


def start_indicator_service(screen):
    """An applet that comes before it may never find it."""
    screen.start_shell([AYATANA])
    eventually(lambda: screen.bus.owner(AYATANA_NAME), "the service of the indicators is there")


def await_indicators(screen, applet, timeout=TIMEOUT_SECONDS):
    """An applet tells that it has no indicators until it has found the service that it asks for them;
    then it is a pixel wide."""
    def has_found_service():
        windows = screen.run("xdotool", "search", "--onlyvisible", "--classname", applet).split()
        return any(box.width == 1 and box.height > 20 for box in map(screen.box_of, windows))
    eventually(has_found_service, "the applet has found the service of the indicators", timeout)


class BudgieScreen(Shell, BareScreen):
    """The desktop is its own window manager and its panel."""

    size = (1024, 600)
    desktop = "Budgie:GNOME"
    applet = BUDGIE_TRAY
    bar = None

    def boot(self):
        base = "com/solus-project/budgie-panel"
        self.store_gsettings({
            base: {"panels": f"['{PANEL}']", "migration-level": "2"},
            f"{base}/panels/{{{PANEL}}}": {
                "location": "'top'", "size": f"{BUDGIE_HEIGHT}", "applets": f"['{APPLET}']"},
            f"{base}/applets/{{{APPLET}}}": {
                "name": f"'{self.applet}'", "alignment": "'end'", "position": "0"}})
        BareScreen.boot(self)
        self.start_status_area()
        self.start_bar()

    def start_bar(self):
        """Now and then, where there is much else to do, the panel never shows its window."""
        for _ in range(BUDGIE_STARTS):
            self.bar = self.start_shell(["budgie-panel"])
            with contextlib.suppress(AssertionError):
                eventually(self._is_drawn, "the panel is drawn", PATIENCE_SECONDS)
                break
            self.end_process(self.bar)
        eventually(self.has_area, "the panel offers a status area")

    def _is_drawn(self):
        return any(self.picture().row(BUDGIE_HEIGHT // 2))

    def has_area(self):
        return self.bus.has_host()

    def start_status_area(self):
        self.start_shell(["budgie-daemon"])


class BudgieTrayScreen(BudgieScreen, TrayBar):
    """That of Debian 12 has the older tray alone."""

    size = (800, 600)

    def has_area(self):
        return self.has_tray()

    def bar_box(self):
        return Box(0, 0, self.size[0], BUDGIE_HEIGHT)


class BudgieIndicatorScreen(BudgieScreen):
    applet = BUDGIE_INDICATORS

    def start_status_area(self):
        start_indicator_service(self)


class MateAppletScreen(Shell, PanelScreen):
    """MATE's panel with one applet."""

    desktop = "MATE"
    applet = MATE_INDICATORS
    more_settings = {}

    def __init__(self, dark=False, **options):
        super().__init__(**options)
        self.environment["GTK_THEME"] = "Adwaita:dark" if dark else "Adwaita"
        # Its applets are processes that the bus starts.
        self.environment["GSETTINGS_BACKEND"] = "keyfile"

    def boot(self):
        base = "org/mate/panel"
        self.store_gsettings(self.more_settings | {
            f"{base}/general": {"toplevel-id-list": "['top']", "object-id-list": "['area']"},
            f"{base}/toplevels/top": {"orientation": "'top'", "size": "28", "expand": "true"},
            f"{base}/objects/area": {
                "object-type": "'applet'", "applet-iid": f"'{self.applet}'",
                "toplevel-id": "'top'", "position": "0", "panel-right-stick": "true"}})
        super().boot()

    def start_panel(self):
        self.start_status_area()
        super().start_panel()

    def start_status_area(self):
        start_indicator_service(self)
        # Started by the bus it stays empty.
        self.start_shell([MATE_INDICATOR_APPLET])
        eventually(lambda: self.bus.owner(MATE_INDICATOR_FACTORY), "the applet is there")

    def command(self):
        return ["mate-panel"]


class MateIndicatorScreen(MateAppletScreen):
    def start_panel(self):
        super().start_panel()
        await_indicators(self, "mate-indicator-applet")


class MateXappScreen(MateAppletScreen):
    applet = MATE_XAPP
    # As Linux Mint has it; as it comes, it is for Cinnamon alone.
    more_settings = {
        "org/x/apps/statusicon": {"status-notifier-enabled-desktops": "['X-Cinnamon', 'MATE']"}}

    def start_status_area(self):
        self.start_shell([xapp_watcher()])


class XfceIndicatorScreen(Shell, XfceScreen):
    plugin = "indicator"

    def start_panel(self):
        start_indicator_service(self)
        # Now and then a panel of Debian 12 that comes after it does not find it either.
        super().start_panel()
        try:
            await_indicators(self, "wrapper-2.0", PATIENCE_SECONDS)
        except AssertionError:
            self.kill_panel()
            super().start_panel()
            await_indicators(self, "wrapper-2.0")
