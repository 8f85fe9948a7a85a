// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filelock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ferrin {

namespace {

constexpr std::chrono::milliseconds betweenAttempts { 5 };

/// Whether the path still refers to the open file; the previous owner may have removed it.
bool isAt(int descriptor, const char *path)
{
    struct stat open
    {
    };
    struct stat there
    {
    };
    return ::fstat(descriptor, &open) == 0 && ::stat(path, &there) == 0
        && open.st_dev == there.st_dev && open.st_ino == there.st_ino;
}

} // namespace

FileLock::FileLock(const QString &path, std::chrono::milliseconds timeout)
    : m_path(QFile::encodeName(path))
{
    const QDeadlineTimer deadline(timeout);
    while (attempt() == Attempt::Busy && !deadline.hasExpired())
        QThread::msleep(betweenAttempts.count());
}

FileLock::~FileLock()
{
    if (!isHeld())
        return;
    ::unlink(m_path.constData());
    ::close(m_descriptor);
}

FileLock::Attempt FileLock::attempt()
{
    const int descriptor = ::open(m_path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return Attempt::Impossible;
    const bool isLocked = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    if (isLocked && isAt(descriptor, m_path.constData())) {
        m_descriptor = descriptor;
        return Attempt::Held;
    }
    const bool isBusy = isLocked || errno == EWOULDBLOCK;
    ::close(descriptor);
    return isBusy ? Attempt::Busy : Attempt::Impossible;
}

} // namespace ferrin
