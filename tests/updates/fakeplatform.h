// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/updates/fakeengine.h"
#include "tests/updates/fakenetwork.h"
#include "tests/updates/fakenotice.h"
#include "updates/updater.h"

namespace ferrin::test {

/// What an updater is made of when the test decides everything.
struct FakeUpdatePlatform
{
    [[nodiscard]] Updater::Parts parts(DefaultsStore &store)
    {
        return { .store = store,
                 .engine = engine,
                 .notice = notice,
                 .network = network,
                 .battery = [] { return BatteryReserve(); } };
    }

    FakeEngine engine;
    FakeNotice notice;
    FakeNetwork network;
};

} // namespace ferrin::test
