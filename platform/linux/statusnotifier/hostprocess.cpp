// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostprocess.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

constexpr qint64 longestFile = 4096;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestFile) : QByteArray();
}

} // namespace

HostProcess hostProcessFromKernel(uint processId)
{
    const QString folder = u"/proc/%1/"_s.arg(processId);
    return { .id = processId,
             .name = QString::fromUtf8(contentOf(folder + u"comm"_s)).trimmed(),
             .arguments = QString::fromLocal8Bit(contentOf(folder + u"cmdline"_s))
                              .split(QChar::Null, Qt::SkipEmptyParts) };
}

} // namespace ferrin
