// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/packagefile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace ferrin {

using namespace Qt::StringLiterals;

bool isWholePackage(const QString &path, const Package &package)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.open(QIODevice::ReadOnly) && file.size() == package.length && hash.addData(&file)
        && hash.result() == package.sha256;
}

QString downloadFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + u"/ferrin/updates"_s;
}

void removeDownloads(const QString &folder)
{
    const QDir dir(folder);
    const QStringList names = dir.entryList({ u"*.deb"_s, u"*.deb.part"_s }, QDir::Files);
    for (const QString &name : names)
        QFile::remove(dir.filePath(name));
}

} // namespace ferrin
