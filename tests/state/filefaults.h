// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/filedefaultsstore.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace ferrin::test {

using namespace Qt::StringLiterals;

/// During its lifetime the process is an ordinary user that owns the folder, so that permissions
/// also apply to tests that root runs.
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

/// During its lifetime no file can grow beyond a few bytes, as on a full disk.
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

/// A store's file in a temporary folder, and the log lines about it.
struct FaultyFile
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"defaults.json"_s);
    LogCapture log;

    void put(const QByteArray &text) const
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("The test cannot write its file");
    }

    [[nodiscard]] QByteArray text(const QString &name = u"defaults.json"_s) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    /// Creates another file beside the store's, with the same name and a suffix.
    void putBeside(const QString &suffix) const
    {
        QFile file(path + suffix);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("The test cannot write its file");
    }

    [[nodiscard]] QString trouble(const QString &why) const
    {
        return u"error: Unable to save the defaults store %1: %2"_s.arg(path, why);
    }

    [[nodiscard]] QString wasSetAside(int number) const
    {
        return u"error: The defaults store %1 is damaged and was set aside as %1.damaged-%2"_s
            .arg(path)
            .arg(number);
    }
};

/// Sets two values with one write each: the problem is logged once, and the values can be read.
inline void setTwo(FileDefaultsStore &store)
{
    store.setObject(u"a"_s, 7);
    store.flush();
    store.setObject(u"b"_s, u"x"_s);
    store.flush();
    QCOMPARE(store.integer(u"a"_s), 7);
    QCOMPARE(store.string(u"b"_s), u"x"_s);
}

} // namespace ferrin::test
