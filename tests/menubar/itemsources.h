// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "ink.h"
#include "state/displayswitches.h"
#include "state/settingsdata.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"

namespace ferrin::test {

/// Everything that the item's content is read from. The snapshot is written by the test itself; the
/// readers below it have nothing to say.
struct ItemSources
{
    explicit ItemSources(bool connected = true)
    {
        if (!connected)
            registry.serviceName.reset();
        battery = std::make_unique<BatteryDataProvider>(BatteryDataProvider::Platform {
            registry, powerSources, processLauncher,
            []() -> StoredData & { qFatal("No adapter was ever connected"); } });
        settings = std::make_unique<SettingsData>(
            store,
            Bundle({ { QStringLiteral("CFBundleIdentifier"), QStringLiteral("org.ferrin.Test") },
                     { QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.0") } }));
        switches = std::make_unique<DisplaySwitches>(store);
        std::ignore = log.take();
        store.writes.clear();
    }

    [[nodiscard]] BatteryData &data() const { return *battery->data(); }

    void show(BatteryChargingStatus status, std::optional<qint64> charge, BatteryTime time = {})
    {
        data().setChargingStatus(status);
        data().setCharge(charge);
        data().setTimeRemaining(time);
    }

    /// The three switches of every state at once.
    void switchAll(bool icon, bool charge, bool time)
    {
        using enum DisplaySwitch;
        for (const DisplaySwitch which :
             { showIconWhenDischarging, showIconWhenCharging, showIconWhenCharged })
            switches->set(which, icon);
        for (const DisplaySwitch which :
             { showChargeWhenDischarging, showChargeWhenCharging, showChargeWhenCharged })
            switches->set(which, charge);
        for (const DisplaySwitch which :
             { showTimeWhenDischarging, showTimeWhenCharging, showTimeWhenCharged })
            switches->set(which, time);
    }

    LogCapture log;
    MemoryDefaultsStore store;
    FakeRegistry registry;
    FakePowerSources powerSources;
    FakeProcessLauncher processLauncher;
    std::unique_ptr<BatteryDataProvider> battery;
    std::unique_ptr<SettingsData> settings;
    std::unique_ptr<DisplaySwitches> switches;
};

} // namespace ferrin::test
