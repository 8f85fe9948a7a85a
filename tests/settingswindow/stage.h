// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydata.h"
#include "settingswindow/general/colortheme.h"
#include "settingswindow/general/launchatlogin.h"
#include "settingswindow/menubaricon/menubaricon.h"
#include "settingswindow/settings.h"
#include "settingswindow/support/links.h"
#include "settingswindow/updates/softwareupdates.h"
#include "state/appcolorscheme.h"
#include "state/appstatus.h"
#include "state/displayswitches.h"
#include "state/settingsdata.h"
#include "tests/quick/stage.h"
#include "tests/settingswindow/fakelinkopener.h"
#include "tests/settingswindow/fakeloginitem.h"
#include "tests/settingswindow/fakepanelappearance.h"
#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeplatform.h"

FERRIN_USE_QML_TYPES(Ferrin_Settings)
FERRIN_USE_QML_FILES(ferrin_settingswindow)

namespace ferrin::test {

/// The settings of a first run, which log no release.
inline std::unique_ptr<SettingsData> newSettings(DefaultsStore &store)
{
    LogCapture log;
    log.ignoreRest();
    return std::make_unique<SettingsData>(
        store,
        Bundle({ { QStringLiteral("CFBundleIdentifier"), QStringLiteral("org.ferrin.Test") },
                 { QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.0") } }));
}

inline Vendor someVendor()
{
    return { .faq = QUrl(QStringLiteral("file:///faq.html")),
             .supportMail = QUrl(QStringLiteral("mailto:support@example.org")) };
}

/// The settings window's views in a window, on settings that the test decides.
class SettingsStage : public SceneStage
{
public:
    explicit SettingsStage(PopoverDesktop &popovers = plainDesktop, Vendor addresses = someVendor())
        : SceneStage({ "Ferrin.Settings" }, popovers)
        , vendor(std::move(addresses))
    {
    }
    ~SettingsStage() { item.reset(); }

    AppStatus status;
    BatteryData battery;
    MemoryDefaultsStore store;
    std::unique_ptr<SettingsData> settingsData = newSettings(store);
    DisplaySwitches switches { store };
    FakePanelAppearance panel;
    MenuBarIcon menuBarIcon { { battery, *settingsData, switches, &panel }, &engine };
    Settings settings { status, &engine };

    AppColor color { store };
    ColorTheme colorTheme { color, &engine };

    FakeLoginItem loginItem;
    LaunchAtLogin launchAtLogin { loginItem, LaunchAtLoginObservable::shared(), &engine };

    Vendor vendor;
    FakeLinkOpener opener;
    Links links { opener, vendor, &engine };

    FakeUpdatePlatform updatePlatform;
    Updater updater { updatePlatform.parts(store) };
    SoftwareUpdates updates { updater, &engine };
};

} // namespace ferrin::test
