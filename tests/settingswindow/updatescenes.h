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
        Q_EMIT engine().checked(std::nullopt);
    }
    void offer()
    {
        check();
        answerWithOffer();
    }
    void answerWithOffer() { Q_EMIT engine().checked(release); }
    void offerInBackground()
    {
        stage.updater.session().beginInBackground(false);
        answerWithOffer();
    }
    void receive(double share)
    {
        Q_EMIT engine().progressed({ UpdateActivity::downloading, share, true });
    }
    void becomeReady()
    {
        offer();
        stage.updates.download();
        Q_EMIT engine().downloaded();
    }
    void install(const UpdateProgress &progress)
    {
        becomeReady();
        stage.updates.install();
        Q_EMIT engine().progressed(progress);
    }
    void fail()
    {
        if (stage.updater.session().stage() != UpdateSession::Stage::checking)
            check();
        Q_EMIT engine().failed({ UpdateFailure::unreachable, QStringLiteral("for a reason") });
    }
    [[nodiscard]] FakeEngine &engine() { return stage.updatePlatform.engine; }

    SettingsStage stage;
    // Heard once the stage stands.
    LogCapture log;
    QQuickItem *view = nullptr;
    Release release { QStringLiteral("1.3.0"), QStringLiteral("ferrin;1.3.0-1;amd64;main"),
                      QDate(2026, 4, 30), 4'200'000,
                      QStringLiteral(
                          "A quieter item, and <b>words</b> as they are written.\n\n"
                          "• The icon is drawn sharply on screens of any scale.\n"
                          "• The health of the battery tells the cycles.\n"
                          "• The time that remains no longer jumps after a pause.\n"
                          "• A second battery is counted.\n"
                          "• The window stays on its screen.\n\n"
                          "Mended: a second battery whose figures are in another unit.") };
};

} // namespace ferrin::test
