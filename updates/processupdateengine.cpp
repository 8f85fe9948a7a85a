// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/processupdateengine.h"

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

ProcessUpdateEngine::ProcessUpdateEngine(QString helper, QStringList arguments)
    : m_helper(std::move(helper))
    , m_arguments(std::move(arguments))
{
}

ProcessUpdateEngine::~ProcessUpdateEngine()
{
    cancel();
    for (QProcess *const process : findChildren<QProcess *>()) {
        process->kill();
        process->waitForFinished();
    }
}

void ProcessUpdateEngine::check(const UpdateCheck &check)
{
    perform(check);
}

void ProcessUpdateEngine::download(const PackageRequest &request)
{
    perform(request);
}

void ProcessUpdateEngine::cancel()
{
    if (m_process)
        m_process->kill();
    letGo();
}

void ProcessUpdateEngine::letGo()
{
    if (!m_process)
        return;
    // It may be telling something right now, and its end is not to be waited for.
    QProcess *const process = m_process.release();
    process->setParent(this);
    process->disconnect(this);
    if (process->state() == QProcess::NotRunning)
        process->deleteLater();
    else
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
}

void ProcessUpdateEngine::perform(const UpdateTask &task)
{
    cancel();
    m_process = std::make_unique<QProcess>();
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this,
            &ProcessUpdateEngine::readAnswers);
    connect(m_process.get(), &QProcess::finished, this,
            [this] { breakOff(u"the update helper ended early"_s); });
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            breakOff(m_process->errorString());
    });
    // The helper takes the end of its input for the end of this process, so it stays open.
    m_process->start(m_helper, m_arguments);
    if (m_process)
        m_process->write(lineFrom(task));
}

void ProcessUpdateEngine::readAnswers()
{
    while (m_process && m_process->canReadLine()) {
        if (const auto answer = answerFromLine(m_process->readLine()))
            tell(*answer);
        else
            breakOff(u"the update helper cannot be understood"_s);
    }
}

void ProcessUpdateEngine::tell(const UpdateAnswer &answer)
{
    if (const auto *const progress = std::get_if<UpdateProgress>(&answer)) {
        Q_EMIT progressed(progress->received, progress->total);
        return;
    }
    // The last answer: the helper ends, and whoever hears it may begin the next task.
    letGo();
    if (const auto *const offer = std::get_if<UpdateOffer>(&answer))
        Q_EMIT checked(*offer);
    else if (const auto *const package = std::get_if<DownloadedPackage>(&answer))
        Q_EMIT downloaded(package->path);
    else
        Q_EMIT failed(std::get<UpdateTrouble>(answer));
}

void ProcessUpdateEngine::breakOff(const QString &detail)
{
    cancel();
    Q_EMIT failed({ UpdateFailure::brokenOff, detail });
}

} // namespace ferrin
