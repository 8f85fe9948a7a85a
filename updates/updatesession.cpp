// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatesession.h"

#include "base/logging.h"
#include "updates/updaterecords.h"

#include <algorithm>

namespace ferrin {

UpdateSession::UpdateSession(UpdateEngine &engine, UpdateRecords &records)
    : m_engine(engine)
    , m_records(records)
{
    connect(&m_engine, &UpdateEngine::checked, this, &UpdateSession::takeAnswer);
    connect(&m_engine, &UpdateEngine::progressed, this,
            [this](const UpdateProgress &progress) { m_progress = progress; });
    connect(&m_engine, &UpdateEngine::downloaded, this, &UpdateSession::takeDownload);
    connect(&m_engine, &UpdateEngine::installed, this, &UpdateSession::takeInstallation);
    connect(&m_engine, &UpdateEngine::failed, this, &UpdateSession::fail);
}

void UpdateSession::begin()
{
    m_downloadsByItself = false;
    m_isBackground = false;
    if (!isAnyOf({ Stage::checking, Stage::downloading, Stage::installing }))
        check();
    present();
}

void UpdateSession::beginInBackground(bool downloads)
{
    if (!canBeginInBackground())
        return;
    m_isBackground = true;
    m_downloadsByItself = downloads;
    check();
}

bool UpdateSession::canBeginInBackground() const
{
    return stage() == Stage::idle
        || (isBackground() && isAnyOf({ Stage::available, Stage::readyToInstall }));
}

void UpdateSession::present()
{
    if (stage() == Stage::idle) {
        begin();
        return;
    }
    m_isBackground = false;
    Q_EMIT presentationRequested();
}

void UpdateSession::cancel()
{
    if (stage() == Stage::installing && !progress().canCancel)
        return;
    if (!isAnyOf({ Stage::checking, Stage::downloading, Stage::installing }))
        return;
    m_engine.cancel();
    if (stage() == Stage::downloading)
        m_stage = Stage::available;
    else if (stage() == Stage::installing)
        m_stage = Stage::readyToInstall;
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
    startStep(Step::download, Stage::downloading);
    m_engine.download(*release(), manner());
}

void UpdateSession::install()
{
    if (stage() != Stage::readyToInstall)
        return;
    startStep(Step::install, Stage::installing);
    m_engine.install(*release());
}

void UpdateSession::skipThisVersion()
{
    if (!isAnyOf({ Stage::available, Stage::readyToInstall }))
        return;
    m_records.setSkippedVersion(release()->version);
    end();
}

void UpdateSession::later()
{
    if (!isAnyOf({ Stage::checking, Stage::downloading, Stage::installing }))
        end();
}

void UpdateSession::dismiss()
{
    if (stage() == Stage::installing) {
        m_isBackground = true;
        return;
    }
    if (isAnyOf({ Stage::checking, Stage::downloading }))
        m_engine.cancel();
    end();
}

void UpdateSession::check()
{
    m_release = std::nullopt;
    startStep(Step::check, Stage::checking);
    m_engine.check(manner());
}

void UpdateSession::startStep(Step step, Stage stage)
{
    m_step = step;
    m_progress = UpdateProgress();
    m_failure = QString();
    m_stage = stage;
}

void UpdateSession::takeAnswer(const std::optional<Release> &release)
{
    m_trouble = QString();
    if (release) {
        takeOffer(*release);
        return;
    }
    qCInfo(logger, "Ferrin is up to date");
    if (isBackground())
        end();
    else
        m_stage = Stage::upToDate;
}

void UpdateSession::takeOffer(const Release &release)
{
    qCInfo(logger, "Version %s is available", qUtf8Printable(release.version));
    if (isBackground() && release.version == m_records.skippedVersion()) {
        end();
        return;
    }
    m_release = release;
    m_stage = Stage::available;
    if (m_downloadsByItself)
        download();
    else
        offer();
}

void UpdateSession::takeDownload()
{
    qCInfo(logger, "Version %s is downloaded", qUtf8Printable(release()->version));
    m_stage = Stage::readyToInstall;
    offer();
}

void UpdateSession::takeInstallation()
{
    qCInfo(logger, "Version %s is installed", qUtf8Printable(release()->version));
    m_trouble = QString();
    if (isBackground())
        end();
    else
        m_stage = Stage::installed;
}

void UpdateSession::fail(const UpdateTrouble &trouble)
{
    qCCritical(logger, "The update failed (%s): %s", qUtf8Printable(logName(trouble.failure)),
               qUtf8Printable(trouble.detail));
    if (isBackground()) {
        end();
        m_trouble = plainWords(trouble.failure);
        return;
    }
    // The service may know another version by now.
    if (trouble.failure == UpdateFailure::nothingDone
        || trouble.failure == UpdateFailure::packageMissing)
        m_step = Step::check;
    m_failure = plainWords(trouble.failure);
    m_stage = Stage::failed;
}

void UpdateSession::offer()
{
    if (isBackground())
        Q_EMIT offered();
}

void UpdateSession::end()
{
    m_isBackground = false;
    m_downloadsByItself = false;
    m_failure = QString();
    m_stage = Stage::idle;
}

UpdateManner UpdateSession::manner() const
{
    return isBackground() ? UpdateManner::background : UpdateManner::interactive;
}

bool UpdateSession::isAnyOf(std::initializer_list<Stage> stages) const
{
    return std::ranges::find(stages, stage()) != stages.end();
}

} // namespace ferrin
