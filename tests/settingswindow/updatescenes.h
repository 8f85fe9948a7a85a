// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/settingswindow/stage.h"
#include "updates/updaterecords.h"

namespace ferrin::test {

/// The view of the updater's session, brought to any of its stages.
struct UpdateScenes
{
    UpdateScenes() { log.ignoreRest(); }

    void show() { view = stage.show("UpdateView { width: 460; height: 400 }"); }

    void check() { stage.updates.checkForUpdates(); }
    void becomeUpToDate()
    {
        check();
        Q_EMIT engine().checked({ QDateTime::currentDateTimeUtc(), std::nullopt });
    }
    void offer()
    {
        check();
        answerWithOffer();
    }
    void answerWithOffer()
    {
        Q_EMIT engine().checked({ QDateTime::currentDateTimeUtc(), release });
    }
    void receive(qint64 bytes) { Q_EMIT engine().progressed(bytes, release.package.length); }
    void becomeReady()
    {
        offer();
        stage.updates.download();
        Q_EMIT engine().downloaded(QStringLiteral("/nowhere/ferrin_1.3.0_amd64.deb"));
    }
    void fail()
    {
        if (stage.updater.session().stage() != UpdateSession::Stage::checking)
            check();
        Q_EMIT engine().failed({ UpdateFailure::noConnection, QStringLiteral("for a reason") });
    }
    [[nodiscard]] FakeEngine &engine() { return stage.updatePlatform.engine; }

    SettingsStage stage;
    // Heard once the stage stands.
    LogCapture log;
    QQuickItem *view = nullptr;
    Release release {
        QStringLiteral("1.3.0"),
        QDate(2026, 4, 30),
        QStringLiteral("## New\n\n- **Quieter**, and _prettier_: the icon is drawn sharply on "
                       "screens of any scale.\n- The health of the battery tells the cycles.\n"
                       "- See [the page](https://example.org) for more.\n\n## Mended\n\n"
                       "- The time that remains no longer jumps after a pause.\n- A second "
                       "battery is counted.\n- The window stays on its screen.\n- `ferrin` says "
                       "its version.\n"),
        { QStringLiteral("ferrin_1.3.0_amd64.deb"), 4'200'000, QByteArray(32, 'h') }
    };
};

} // namespace ferrin::test
