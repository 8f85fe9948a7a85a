// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/programfile.h"

#include "base/logging.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace ferrin {

ProgramFile::ProgramFile(QString path, std::chrono::milliseconds rest)
    : m_path(std::move(path))
    , m_identity(identityOf(m_path))
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(rest);
    m_rest.callOnTimeout(this, &ProgramFile::tellIfReplaced);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_rest, qOverload<>(&QTimer::start));
    m_watcher.addPath(m_path);
}

bool ProgramFile::isReplaced() const
{
    const Identity now = identityOf(m_path);
    return now != Identity() && now != m_identity;
}

void ProgramFile::tellIfReplaced()
{
    if (!isReplaced())
        return;
    m_rest.start();
    Q_EMIT replaced();
}

void ProgramFile::startAnew(const QString &path, char **arguments)
{
    qCInfo(logger, "Starting anew: another version was installed");
    execv(QFile::encodeName(path).constData(), arguments);
    qCCritical(logger, "Unable to start %s: %s", qUtf8Printable(path), std::strerror(errno));
}

/// Of a program that can be run; else nobody's.
ProgramFile::Identity ProgramFile::identityOf(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat file
    {
    };
    if (stat(name.constData(), &file) != 0 || access(name.constData(), X_OK) != 0)
        return {};
    return { file.st_dev, file.st_ino };
}

} // namespace ferrin
