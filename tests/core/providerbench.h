// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"

#include <memory>

namespace ferrin::test {

/// Fakes of a laptop, and a provider that reads them after `start`. Initially it is on battery
/// power, discharging at 80 percent, and every source reports two hours and a quarter.
struct ProviderBench
{
    ProviderBench()
    {
        set("ExternalConnected", false);
        set("IsCharging", false);
        set("FullyCharged", false);
        set("CurrentCapacity", 80);
        set("MaxCapacity", 100);
        set("AppleRawMaxCapacity", 6000);
        set("TimeRemaining", 135);
        powerSources.descriptions = { FakePowerSources::battery(135, 0) };
    }

    void set(const char *property, const QVariant &value)
    {
        registry.properties.insert(QString::fromLatin1(property), value);
    }

    void remove(const char *property) { registry.properties.remove(QString::fromLatin1(property)); }

    void setEstimates(const QVariant &toEmpty, const QVariant &toFull)
    {
        powerSources.descriptions = { FakePowerSources::battery(toEmpty, toFull) };
    }

    void setAdapter(const QVariantMap &details) { set("AdapterDetails", details); }

    void plugIn()
    {
        set("ExternalConnected", true);
        set("IsCharging", true);
    }

    void unplug()
    {
        set("ExternalConnected", false);
        set("IsCharging", false);
    }

    void start()
    {
        provider = std::make_unique<BatteryDataProvider>(platform());
        data = provider->data();
    }

    void refresh() { provider->updatePeriodicData(); }

    [[nodiscard]] BatteryDataProvider::Platform platform()
    {
        return { registry, powerSources, launcher, [this]() -> StoredData & {
                    ++storedDataAccesses;
                    return storedData;
                } };
    }

    FakeRegistry registry;
    FakePowerSources powerSources;
    FakeProcessLauncher launcher;
    MemoryDefaultsStore store;
    StoredData storedData { store };
    int storedDataAccesses = 0;
    std::unique_ptr<BatteryDataProvider> provider;
    /// The provider's snapshot; null before the start.
    BatteryData *data = nullptr;
    /// A test takes the lines that it expects, or ignores them.
    LogCapture log;
};

} // namespace ferrin::test
