// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatesession.h"

#include "base/logging.h"
#include "updates/packagefile.h"
#include "updates/packageinstaller.h"
#include "updates/updaterecords.h"

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

UpdateSession::UpdateSession(const Parts &parts)
    : m_parts(parts)
{
    connect(&m_parts.engine, &UpdateEngine::checked, this, &UpdateSession::takeOffer);
    connect(&m_parts.engine, &UpdateEngine::progressed, this,
            [this](qint64 received, qint64 total) {
                m_received = received;
                m_total = total;
            });
    connect(&m_parts.engine, &UpdateEngine::downloaded, this, &UpdateSession::takePackage);
    connect(&m_parts.engine, &UpdateEngine::failed, this, &UpdateSession::fail);
}

void UpdateSession::begin()
{
    m_downloadsByItself = false;
    if (!isAnyOf({ Stage::checking, Stage::downloading }))
        check();
    present();
}

void UpdateSession::beginQuietly(bool downloads)
{
    if (stage() != Stage::idle)
        return;
    m_isQuiet = true;
    m_downloadsByItself = downloads;
    check();
}

void UpdateSession::cancel()
{
    if (!isAnyOf({ Stage::checking, Stage::downloading }))
        return;
    m_parts.engine.cancel();
    if (stage() == Stage::downloading)
        m_stage = Stage::available;
    else
        end();
}

void UpdateSession::tryAgain()
{
    if (stage() != Stage::failed)
        return;
    switch (m_step) {
    case Step::check:
        check();
        return;
    case Step::download:
        m_stage = Stage::available;
        download();
        return;
    case Step::install:
        m_stage = Stage::readyToInstall;
        install();
        return;
    }
}

void UpdateSession::download()
{
    if (stage() != Stage::available)
        return;
    m_step = Step::download;
    m_received = 0;
    m_total = m_release->package.length;
    m_failure = QString();
    m_stage = Stage::downloading;
    m_parts.engine.download({ m_parts.feed.address, m_release->package, m_parts.folder });
}

void UpdateSession::install()
{
    if (stage() != Stage::readyToInstall)
        return;
    // Hours may have passed since it was fetched.
    if (!isWholePackage(m_packagePath, m_release->package)) {
        m_step = Step::download;
        fail({ UpdateFailure::badPackage, u"%1 has changed on the disk"_s.arg(m_packagePath) });
        return;
    }
    m_step = Step::install;
    if (m_parts.installer.install(m_packagePath))
        end();
    else
        fail({ UpdateFailure::noInstaller, u"nothing installs %1"_s.arg(m_packagePath) });
}

void UpdateSession::skipThisVersion()
{
    if (!isAnyOf({ Stage::available, Stage::readyToInstall }))
        return;
    m_parts.records.setSkippedVersion(version());
    end();
}

void UpdateSession::later()
{
    if (!isAnyOf({ Stage::checking, Stage::downloading }))
        end();
}

void UpdateSession::check()
{
    m_step = Step::check;
    setRelease(std::nullopt);
    m_failure = QString();
    m_stage = Stage::checking;
    m_parts.engine.check({ .feed = m_parts.feed.address,
                           .publicKey = m_parts.feed.publicKey,
                           .installedVersion = m_parts.installedVersion,
                           .architecture = m_parts.feed.architecture,
                           .newestIssued = m_parts.records.newestIssued() });
}

void UpdateSession::takeOffer(const UpdateOffer &offer)
{
    m_parts.records.setNewestIssued(offer.issued);
    if (!offer.release) {
        qCInfo(logger, "Ferrin is up to date");
        // What was downloaded before is installed by now.
        removeDownloads(m_parts.folder);
        if (m_isQuiet)
            end();
        else
            m_stage = Stage::upToDate;
        return;
    }
    qCInfo(logger, "Version %s is available", qUtf8Printable(offer.release->version));
    if (m_isQuiet && offer.release->version == m_parts.records.skippedVersion()) {
        end();
        return;
    }
    setRelease(offer.release);
    m_stage = Stage::available;
    if (m_downloadsByItself)
        download();
    else
        present();
}

void UpdateSession::takePackage(const QString &path)
{
    qCInfo(logger, "Version %s is downloaded and verified", qUtf8Printable(version()));
    m_packagePath = path;
    m_received = m_total.value();
    m_stage = Stage::readyToInstall;
    present();
}

void UpdateSession::fail(const UpdateTrouble &trouble)
{
    qCCritical(logger, "The update failed (%s): %s", qUtf8Printable(rawValue(trouble.failure)),
               qUtf8Printable(trouble.detail));
    if (m_isQuiet) {
        end();
        return;
    }
    m_failure = plainWords(trouble.failure);
    m_stage = Stage::failed;
}

void UpdateSession::setRelease(const std::optional<Release> &release)
{
    m_release = release;
    m_packagePath.clear();
    m_version = release ? release->version : QString();
    m_notes = release ? release->notes : QString();
    m_received = 0;
    m_total = release ? release->package.length : 0;
}

void UpdateSession::present()
{
    m_isQuiet = false;
    Q_EMIT presentationRequested();
}

void UpdateSession::end()
{
    m_isQuiet = false;
    m_downloadsByItself = false;
    m_failure = QString();
    m_stage = Stage::idle;
}

bool UpdateSession::isAnyOf(std::initializer_list<Stage> stages) const
{
    return std::ranges::find(stages, stage()) != stages.end();
}

} // namespace ferrin
