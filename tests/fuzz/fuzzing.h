// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace ferrin::fuzz {

/// Ends the process, which libFuzzer reports together with the input, unless the condition holds.
inline void require(bool holds, const char *sentence)
{
    if (holds)
        return;
    std::fprintf(stderr, "It does not hold that %s\n", sentence);
    std::abort();
}

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return { reinterpret_cast<const char *>(data), qsizetype(size) };
}

inline void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        std::abort();
}

/// An empty folder that ends with the process, in memory where the system has such a place.
inline QString newFolder()
{
    const bool hasMemory = QFile::exists(QStringLiteral("/dev/shm"));
    static QTemporaryDir parent(hasMemory ? QStringLiteral("/dev/shm/ferrin-fuzz-XXXXXX")
                                          : QString());
    static int count = 0;
    const QString path = parent.filePath(QString::number(++count));
    if (!QDir().mkpath(path))
        std::abort();
    return path;
}

} // namespace ferrin::fuzz
