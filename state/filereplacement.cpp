// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filereplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// No suffix that a person would give a copy. QSaveFile gives six letters, such as "backup".
const QString unfinished = u".unfinished-"_s;

/// The file itself, where the path is a link. What a link points to may be missing for now.
QString realPath(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    return info.isSymLink() ? info.symLinkTarget() : path;
}

/// Null, or why the content is not on the disk in a new file.
QString writeNew(QFile &file, const QByteArray &content)
{
    // On a disk that fills up the system writes a part first and fails at the rest, which the
    // toolkit takes for the whole; flushing again writes the rest or learns the reason.
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
        && file.write(content) == content.size() && (file.flush() || file.flush());
    if (!written)
        return file.errorString();
    return ::fsync(file.handle()) == 0 ? QString() : qt_error_string(errno);
}

std::filesystem::path native(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace

QString replaceFile(const QString &path, const QByteArray &content)
{
    const QString real = realPath(path);
    // A file that its owner protects from writing is meant to stay.
    QFile before(real);
    if (before.exists() && !before.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return before.errorString();
    QFile file(real + unfinished + QString::number(QRandomGenerator::global()->generate(), 36));
    QString trouble = writeNew(file, content);
    if (trouble.isNull()) {
        if (before.isOpen())
            file.setPermissions(before.permissions());
        std::error_code error;
        std::filesystem::rename(native(file.fileName()), native(real), error);
        if (error)
            trouble = qt_error_string(error.value());
    }
    // One that was there before is another's. QFile itself would first insist on writing the rest.
    if (!trouble.isNull() && file.isOpen())
        QFile::remove(file.fileName());
    return trouble;
}

void removeUnfinishedReplacements(const QString &path)
{
    const QFileInfo info(realPath(path));
    QDir folder(info.path());
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (name.startsWith(info.fileName() + unfinished))
            folder.remove(name);
    }
}

} // namespace ferrin
