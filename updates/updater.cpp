// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updater.h"

#include "base/logging.h"
#include "updates/updateschedule.h"

#include <QPointer>

namespace ferrin {

Updater::Updater(const Parts &parts)
    : m_parts(parts)
    , m_records(parts.store)
    , m_session({ .feed = parts.feed,
                  .installedVersion = parts.installedVersion,
                  .folder = parts.folder,
                  .engine = parts.engine,
                  .records = m_records,
                  .installer = parts.installer })
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    m_timer.callOnTimeout(this, &Updater::look);
    if (!hasFeed())
        return;
    m_automaticallyChecks = m_records.automaticallyChecksForUpdates();
    m_automaticallyDownloads = m_records.automaticallyDownloadsUpdates();
    m_canCheck.setBinding(
        [this] { return m_session.bindableStage().value() != UpdateSession::Stage::checking; });
}

void Updater::start()
{
    waitForNextLook();
}

void Updater::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    m_records.setLastCheck(m_parts.now());
    m_session.begin();
}

void Updater::setAutomaticallyChecksForUpdates(bool checks)
{
    if (!hasFeed() || checks == automaticallyChecksForUpdates())
        return;
    m_automaticallyChecks = checks;
    m_records.setAutomaticallyChecksForUpdates(checks);
    waitForNextLook();
}

void Updater::setAutomaticallyDownloadsUpdates(bool downloads)
{
    if (!hasFeed() || downloads == automaticallyDownloadsUpdates())
        return;
    m_automaticallyDownloads = downloads;
    m_records.setAutomaticallyDownloadsUpdates(downloads);
}

void Updater::look()
{
    waitForNextLook();
    // Whatever stands against it now is not over in a minute.
    if (m_timer.isActive() && updateschedule::isDue(m_records.lastCheck(), m_parts.now()))
        m_timer.start(updateschedule::betweenLooks);
    if (!mayLook())
        return;
    m_parts.network.ask([updater = QPointer(this)](NetworkReach reach) {
        // By now the user may have asked, or changed a switch.
        if (updater && reach == NetworkReach::free && updater->mayLook())
            updater->beginQuietCheck();
    });
}

bool Updater::mayLook() const
{
    return hasFeed() && automaticallyChecksForUpdates()
        && m_session.stage() == UpdateSession::Stage::idle
        && updateschedule::isDue(m_records.lastCheck(), m_parts.now())
        && !m_parts.battery().isLow();
}

void Updater::beginQuietCheck()
{
    m_records.setLastCheck(m_parts.now());
    m_session.beginQuietly(automaticallyDownloadsUpdates());
}

void Updater::waitForNextLook()
{
    if (hasFeed() && automaticallyChecksForUpdates())
        m_timer.start(updateschedule::untilNextLook(m_records.lastCheck(), m_parts.now()));
    else
        m_timer.stop();
}

} // namespace ferrin
