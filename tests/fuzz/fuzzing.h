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

/// An empty folder among the temporary files. libFuzzer ends without destructors: what starts a
/// fuzzer gives it a TMPDIR of its own, and removes that.
inline QString newFolder()
{
    static const QTemporaryDir parent;
    static int count = 0;
    const QString path = parent.filePath(QString::number(++count));
    if (!QDir().mkpath(path))
        std::abort();
    return path;
}

} // namespace ferrin::fuzz
