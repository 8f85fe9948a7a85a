// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/updates/fakeengine.h"
#include "tests/updates/fakeinstaller.h"
#include "tests/updates/fakenetwork.h"
#include "updates/updater.h"

#include <utility>

namespace ferrin::test {

inline UpdateFeed someFeed()
{
    return { QUrl(QStringLiteral("https://example.org/feed")), QByteArray(32, 'k'),
             QStringLiteral("amd64") };
}

/// What an updater is made of when the test decides everything.
struct FakeUpdatePlatform
{
    explicit FakeUpdatePlatform(UpdateFeed source = someFeed())
        : feed(std::move(source))
    {
    }

    [[nodiscard]] Updater::Parts parts(DefaultsStore &store)
    {
        return { .feed = feed,
                 .installedVersion = QStringLiteral("1.2.9"),
                 .folder = QStringLiteral("/nowhere"),
                 .store = store,
                 .engine = engine,
                 .installer = installer,
                 .network = network,
                 .battery = [] { return BatteryReserve(); } };
    }

    UpdateFeed feed;
    FakeEngine engine;
    FakeInstaller installer;
    FakeNetwork network;
};

} // namespace ferrin::test
