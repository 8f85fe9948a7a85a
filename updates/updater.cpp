// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updater.h"

#include "base/logging.h"
#include "updates/updateschedule.h"

#include <QPointer>

namespace ferrin {

using namespace Qt::StringLiterals;

Updater::Updater(const Parts &parts)
    : m_parts(parts)
    , m_records(parts.store)
    , m_session(parts.engine, m_records)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    m_timer.callOnTimeout(this, &Updater::look);
    m_support = m_parts.engine.support();
    connect(&m_parts.engine, &UpdateEngine::supportChanged, this, [this] {
        m_support = m_parts.engine.support();
        if (!isPackaged())
            m_timer.stop();
    });
    connect(&m_session, &UpdateSession::offered, this, &Updater::tellOfOffer);
    m_follower = m_session.bindableIsBackground().addNotifier([this] { withdrawSeenNotice(); });
    m_canCheck.setBinding([this] {
        return m_support == UpdateSupport::full
            && m_session.stage() != UpdateSession::Stage::checking;
    });
    if (!isPackaged())
        return;
    m_automaticallyChecks = m_records.automaticallyChecksForUpdates();
    m_automaticallyDownloads = m_records.automaticallyDownloadsUpdates();
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
    if (support() != UpdateSupport::full || checks == automaticallyChecksForUpdates())
        return;
    m_automaticallyChecks = checks;
    m_records.setAutomaticallyChecksForUpdates(checks);
    waitForNextLook();
}

void Updater::setAutomaticallyDownloadsUpdates(bool downloads)
{
    if (support() != UpdateSupport::full || downloads == automaticallyDownloadsUpdates())
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
    return isPackaged() && automaticallyChecksForUpdates() && m_session.canBeginInBackground()
        && updateschedule::isDue(m_records.lastCheck(), m_parts.now())
        && !m_parts.battery().isLow();
}

void Updater::beginQuietCheck()
{
    m_records.setLastCheck(m_parts.now());
    m_session.beginInBackground(automaticallyDownloadsUpdates());
}

void Updater::waitForNextLook()
{
    if (isPackaged() && automaticallyChecksForUpdates())
        m_timer.start(updateschedule::untilNextLook(m_records.lastCheck(), m_parts.now()));
    else
        m_timer.stop();
}

void Updater::tellOfOffer()
{
    const QString version = m_session.release()->version;
    const bool isReady = m_session.stage() == UpdateSession::Stage::readyToInstall;
    // Once: an offer that was not looked at is found again every day.
    if (version == m_told)
        return;
    m_told = version;
    m_parts.notice.show(u"Ferrin %1 is available"_s.arg(version),
                        isReady ? u"It is downloaded and ready to install."_s
                                : u"See what is new, and install it when it suits you."_s,
                        [this] { m_session.present(); });
}

void Updater::withdrawSeenNotice()
{
    if (m_session.isBackground())
        return;
    m_told.clear();
    m_parts.notice.withdraw();
}

} // namespace ferrin
