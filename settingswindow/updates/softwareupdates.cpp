// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/updates/softwareupdates.h"

#include "quick/quickengine.h"
#include "settingswindow/updates/releasenotes.h"
#include "updates/updater.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// The language of all other words.
const QLocale &english()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

QString sizeInWords(qint64 bytes)
{
    return english().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace

SoftwareUpdates::SoftwareUpdates(Updater &updater, QObject *parent)
    : QObject(parent)
    , m_updater(updater)
    , m_session(updater.session())
    , m_follower(updater.bindableCanCheckForUpdates().addNotifier(
          [this] { Q_EMIT canCheckForUpdatesChanged(); }))
{
    // Compiled QML looks the type's enumerations up by its name before it asks for the singleton.
    qRegisterMetaType<SoftwareUpdates *>();
    connect(&m_session, &UpdateSession::stageChanged, this, &SoftwareUpdates::stageChanged);
    connect(&m_session, &UpdateSession::versionChanged, this, &SoftwareUpdates::versionChanged);
    connect(&m_session, &UpdateSession::notesChanged, this, &SoftwareUpdates::notesChanged);
    connect(&m_session, &UpdateSession::receivedChanged, this, &SoftwareUpdates::progressChanged);
    connect(&m_session, &UpdateSession::totalChanged, this, &SoftwareUpdates::progressChanged);
    connect(&m_session, &UpdateSession::failureChanged, this, &SoftwareUpdates::failureChanged);
}

SoftwareUpdates *SoftwareUpdates::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<SoftwareUpdates>(*engine);
}

bool SoftwareUpdates::hasFeed() const
{
    return m_updater.hasFeed();
}

bool SoftwareUpdates::canCheckForUpdates() const
{
    return m_updater.canCheckForUpdates();
}

bool SoftwareUpdates::automaticallyChecksForUpdates() const
{
    return m_updater.automaticallyChecksForUpdates();
}

void SoftwareUpdates::setAutomaticallyChecksForUpdates(bool checks)
{
    m_updater.setAutomaticallyChecksForUpdates(checks);
}

bool SoftwareUpdates::automaticallyDownloadsUpdates() const
{
    return m_updater.automaticallyDownloadsUpdates();
}

void SoftwareUpdates::setAutomaticallyDownloadsUpdates(bool downloads)
{
    m_updater.setAutomaticallyDownloadsUpdates(downloads);
}

SoftwareUpdates::Stage SoftwareUpdates::stage() const
{
    return Stage(m_session.stage());
}

QString SoftwareUpdates::installedVersion() const
{
    return QCoreApplication::applicationVersion();
}

QString SoftwareUpdates::version() const
{
    return m_session.version();
}

QString SoftwareUpdates::offer() const
{
    const auto &release = m_session.release();
    if (!release)
        return QString();
    return u"It was released on %1 and is %2 large. You have version %3."_s.arg(
        english().toString(release->date, u"d MMMM yyyy"), sizeInWords(release->package.length),
        installedVersion());
}

QString SoftwareUpdates::notes() const
{
    return evenMarkdown(harmlessMarkdown(m_session.notes()));
}

double SoftwareUpdates::progress() const
{
    if (m_session.total() <= 0)
        return 0;
    return std::clamp(double(m_session.received()) / double(m_session.total()), 0.0, 1.0);
}

QString SoftwareUpdates::progressText() const
{
    return u"%1 of %2"_s.arg(sizeInWords(m_session.received()), sizeInWords(m_session.total()));
}

QString SoftwareUpdates::failure() const
{
    return m_session.failure();
}

void SoftwareUpdates::checkForUpdates()
{
    m_updater.checkForUpdates();
}

void SoftwareUpdates::cancel()
{
    m_session.cancel();
}

void SoftwareUpdates::tryAgain()
{
    m_session.tryAgain();
}

void SoftwareUpdates::download()
{
    m_session.download();
}

void SoftwareUpdates::install()
{
    m_session.install();
}

void SoftwareUpdates::skipThisVersion()
{
    m_session.skipThisVersion();
}

void SoftwareUpdates::later()
{
    m_session.later();
}

void SoftwareUpdates::dismiss()
{
    m_session.cancel();
    m_session.later();
}

} // namespace ferrin
