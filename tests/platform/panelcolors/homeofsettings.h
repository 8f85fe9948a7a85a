// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace ferrin::test {

/// A home, and a system, in which there are no settings but those that are written here: in config/
/// and data/ the user's, in system/ and shared/ the system's.
class HomeOfSettings
{
public:
    HomeOfSettings()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(filePath(QStringLiteral("config"))));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(filePath(QStringLiteral("system"))));
        qputenv("XDG_DATA_HOME", QFile::encodeName(filePath(QStringLiteral("data"))));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(filePath(QStringLiteral("shared"))));
    }

    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name, const QByteArray &text) const
    {
        const QString path = filePath(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace ferrin::test
