// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/batterydatafromioservice.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/logcapture.h"

#include <optional>

namespace ferrin::test {

/// A reader and its registry; the log line of the constructor is already taken.
struct RegistryBench
{
    explicit RegistryBench(const QVariantMap &properties)
    {
        registry.properties = properties;
        LogCapture log;
        reader.emplace(registry);
        std::ignore = log.take();
        registry.lookups.clear();
    }

    [[nodiscard]] QVariant value(SmartBatteryKey key) const { return reader->value(key); }

    FakeRegistry registry;
    std::optional<BatteryDataFromIOService> reader;
};

} // namespace ferrin::test
