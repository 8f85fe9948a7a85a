// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QFileInfo>
#include <QString>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace ferrin::test {

/// While it lives the process is an ordinary user that owns the folder: permissions bind root's
/// tests too.
class AsOrdinaryUser
{
public:
    explicit AsOrdinaryUser(const QString &folder)
    {
        constexpr uid_t nobody = 65534;
        m_isRoot = geteuid() == 0;
        if (m_isRoot
            && (chown(folder.toLocal8Bit().constData(), nobody, 0) != 0 || seteuid(nobody) != 0))
            qFatal("The test cannot become an ordinary user");
    }

    ~AsOrdinaryUser()
    {
        if (m_isRoot && seteuid(0) != 0)
            qFatal("The test cannot become root again");
    }

    Q_DISABLE_COPY_MOVE(AsOrdinaryUser)

private:
    bool m_isRoot = false;
};

/// While it lives no file can grow beyond some bytes, as on a full disk.
class DiskIsFull
{
public:
    DiskIsFull()
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit little { 8, m_before.rlim_max };
        setrlimit(RLIMIT_FSIZE, &little);
    }

    ~DiskIsFull()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

    Q_DISABLE_COPY_MOVE(DiskIsFull)

private:
    rlimit m_before {};
    void (*m_handler)(int) = nullptr;
};

} // namespace ferrin::test
