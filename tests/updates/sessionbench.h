// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeengine.h"
#include "updates/updaterecords.h"
#include "updates/updatesession.h"

#include <QTest>

namespace ferrin::test {

/// A session on a fake engine.
struct SessionBench
{
    SessionBench()
    {
        QObject::connect(&session, &UpdateSession::presentationRequested, [this] { ++shown; });
        QObject::connect(&session, &UpdateSession::offered, [this] { ++offers; });
    }

    void offer() { Q_EMIT engine.checked(release); }
    void findNothing() { Q_EMIT engine.checked(std::nullopt); }
    void fail(UpdateFailure failure)
    {
        Q_EMIT engine.failed({ failure, QStringLiteral("for a reason") });
    }
    void becomeReady()
    {
        session.begin();
        offer();
        session.download();
        Q_EMIT engine.downloaded();
    }
    void beginInstalling()
    {
        becomeReady();
        session.install();
    }

    LogCapture log;
    const Release release { QStringLiteral("1.3.0"), QStringLiteral("ferrin;1.3.0-1;amd64;main"),
                            QDate(2026, 4, 30), 4'200'000, QStringLiteral("Quieter.") };
    MemoryDefaultsStore store;
    UpdateRecords records { store };
    FakeEngine engine;
    UpdateSession session { engine, records };
    int shown = 0;
    int offers = 0;
};

} // namespace ferrin::test
