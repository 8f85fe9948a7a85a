// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/updatehelper.h"

#include "updates/updatemessages.h"

#include <QCoreApplication>

#include <array>
#include <unistd.h>

namespace ferrin {

namespace {

void write(const UpdateAnswer &answer)
{
    const QByteArray line = lineFrom(answer);
    qsizetype written = 0;
    while (written < line.size()) {
        const auto count = ::write(STDOUT_FILENO, line.constData() + written,
                                   static_cast<size_t>(line.size() - written));
        if (count < 0)
            _exit(EXIT_FAILURE);
        written += count;
    }
}

void writeLast(const UpdateAnswer &answer)
{
    write(answer);
    QCoreApplication::quit();
}

} // namespace

UpdateHelper::UpdateHelper(UpdateEngine &engine)
    : m_engine(engine)
    , m_input(STDIN_FILENO, QSocketNotifier::Read)
{
    connect(&m_input, &QSocketNotifier::activated, this, &UpdateHelper::readTask);
    connect(&engine, &UpdateEngine::checked, this, &writeLast);
    connect(&engine, &UpdateEngine::progressed, this, [](qint64 received, qint64 total) {
        write(UpdateProgress { received, total });
    });
    connect(&engine, &UpdateEngine::downloaded, this,
            [](const QString &path) { writeLast(DownloadedPackage { path }); });
    connect(&engine, &UpdateEngine::failed, this, &writeLast);
}

void UpdateHelper::readTask()
{
    std::array<char, 4096> buffer {};
    const auto count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0) {
        QCoreApplication::quit();
        return;
    }
    const bool isWaiting = !m_line.endsWith('\n');
    m_line.append(buffer.data(), count);
    if (isWaiting && m_line.endsWith('\n'))
        perform(m_line);
}

void UpdateHelper::perform(const QByteArray &line)
{
    const auto task = taskFromLine(line);
    if (!task)
        writeLast(UpdateTrouble { UpdateFailure::brokenOff, QStringLiteral("no such task") });
    else if (const auto *const check = std::get_if<UpdateCheck>(&*task))
        m_engine.check(*check);
    else
        m_engine.download(std::get<PackageRequest>(*task));
}

} // namespace ferrin
