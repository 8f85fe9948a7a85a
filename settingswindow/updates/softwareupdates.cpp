// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/updates/softwareupdates.h"

#include "quick/quickengine.h"
#include "updates/updater.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

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
    // In one line, wherever the sentence around it breaks.
    return english()
        .formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat)
        .replace(u' ', QChar::Nbsp);
}

} // namespace

SoftwareUpdates::SoftwareUpdates(Updater &updater, QObject *parent)
    : QObject(parent)
    , m_updater(updater)
    , m_session(updater.session())
    , m_canCheckFollower(updater.bindableCanCheckForUpdates().addNotifier(
          [this] { Q_EMIT canCheckForUpdatesChanged(); }))
    , m_supportFollower(updater.bindableSupport().addNotifier([this] {
        Q_EMIT isSupportedChanged();
        Q_EMIT noteChanged();
    }))
{
    follow();
}

void SoftwareUpdates::follow()
{
    using Session = UpdateSession;
    connect(&m_session, &Session::stageChanged, this, &SoftwareUpdates::stageChanged);
    connect(&m_session, &Session::releaseChanged, this, &SoftwareUpdates::releaseChanged);
    connect(&m_session, &Session::progressChanged, this, &SoftwareUpdates::progressChanged);
    // What there is to say of the progress depends on what it is of.
    connect(&m_session, &Session::stageChanged, this, &SoftwareUpdates::progressChanged);
    connect(&m_session, &Session::failureChanged, this, &SoftwareUpdates::failureChanged);
    for (const auto signal :
         { &Session::stageChanged, &Session::troubleChanged, &Session::isBackgroundChanged })
        connect(&m_session, signal, this, &SoftwareUpdates::noteChanged);
}

SoftwareUpdates *SoftwareUpdates::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<SoftwareUpdates>(*engine);
}

bool SoftwareUpdates::isSupported() const
{
    return m_updater.support() == UpdateSupport::full;
}

QString SoftwareUpdates::note() const
{
    switch (m_updater.support()) {
    case UpdateSupport::notPackaged:
        return u"This copy of Ferrin was not installed as a package. It stays current when you "
               "build or install a newer one."_s;
    case UpdateSupport::sandboxed:
        return u"This copy of Ferrin is a Flatpak. Flatpak, or your software centre, keeps it current."_s;
    case UpdateSupport::noService:
        return u"PackageKit is not installed, so Ferrin cannot ask for updates. The system's "
               "package manager keeps it current."_s;
    case UpdateSupport::full:
        break;
    }
    return backgroundNote();
}

QString SoftwareUpdates::backgroundNote() const
{
    if (m_session.isBackground() && m_session.stage() == UpdateSession::Stage::available)
        return u"Ferrin %1 is available."_s.arg(version());
    if (m_session.isBackground() && m_session.stage() == UpdateSession::Stage::readyToInstall)
        return u"Ferrin %1 is downloaded and can be installed."_s.arg(version());
    if (m_session.trouble().isEmpty())
        return QString();
    return u"The last update in the background did not succeed. "_s + m_session.trouble();
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
    const auto release = m_session.release();
    return release ? release->version : QString();
}

QString SoftwareUpdates::offer() const
{
    const auto release = m_session.release();
    if (!release)
        return QString();
    QStringList sentences;
    if (release->date)
        sentences << u"It was released on %1."_s.arg(
            english().toString(*release->date, u"d MMMM yyyy"));
    if (release->size)
        sentences << u"The download is %1."_s.arg(sizeInWords(*release->size));
    sentences << u"You have version %1."_s.arg(installedVersion());
    return sentences.join(u' ');
}

QString SoftwareUpdates::notes() const
{
    const auto release = m_session.release();
    return release ? release->notes : QString();
}

double SoftwareUpdates::progress() const
{
    return m_session.progress().done.value_or(-1);
}

QString SoftwareUpdates::progressText() const
{
    switch (m_session.progress().activity) {
    case UpdateActivity::waiting:
        return u"Waiting for another installation to finish."_s;
    case UpdateActivity::authorizing:
        return u"Waiting for your password."_s;
    case UpdateActivity::installing:
        return u"The system is installing the package."_s;
    case UpdateActivity::downloading:
        return downloadedText();
    case UpdateActivity::working:
        break;
    }
    return m_session.stage() == UpdateSession::Stage::checking ? u"Asking the package sources."_s
                                                               : u"Preparing."_s;
}

QString SoftwareUpdates::downloadedText() const
{
    const auto release = m_session.release();
    const auto done = m_session.progress().done;
    if (!release || !release->size || !done)
        return u"Downloading."_s;
    return u"%1 of %2"_s.arg(sizeInWords(std::llround(*done * double(*release->size))),
                             sizeInWords(*release->size));
}

bool SoftwareUpdates::canCancel() const
{
    return m_session.stage() != UpdateSession::Stage::installing || m_session.progress().canCancel;
}

QString SoftwareUpdates::failure() const
{
    return m_session.failure();
}

void SoftwareUpdates::refreshSupport()
{
    m_updater.refreshSupport();
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
    m_session.dismiss();
}

} // namespace ferrin
