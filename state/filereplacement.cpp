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

// A suffix that no user would give to a copy. That of QSaveFile has six random letters, which may
// spell "backup".
const QString unfinished = u".unfinished-"_s;

/// The target, if the path is a symbolic link. The target may be missing.
QString realPath(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    return info.isSymLink() ? info.symLinkTarget() : path;
}

/// Returns null, or why the content could not be written to a new file.
QString writeNew(QFile &file, const QByteArray &content)
{
    // When the disk is nearly full, write(2) first writes a part, which QFileDevice::flush()
    // reports as success. Flushing again writes the rest or returns the error.
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
    // A write-protected file is not replaced, although rename(2) would allow it.
    QFile before(real);
    if (before.exists() && !before.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return before.errorString();
    QFile file(real + unfinished + QString::number(QRandomGenerator::global()->generate(), 36));
    QString problem = writeNew(file, content);
    if (problem.isNull()) {
        if (before.isOpen())
            file.setPermissions(before.permissions());
        std::error_code error;
        std::filesystem::rename(native(file.fileName()), native(real), error);
        if (error)
            problem = qt_error_string(error.value());
    }
    // A file that existed before belongs to another process. QFile::remove() would flush first.
    if (!problem.isNull() && file.isOpen())
        QFile::remove(file.fileName());
    return problem;
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
