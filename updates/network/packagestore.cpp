// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/packagestore.h"

#include "updates/packagefile.h"

#include <QDir>

#include <unistd.h>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {
const QString lockName = u".lock"_s;
// A helper that was killed a moment ago may not be gone yet.
constexpr int lockPatience = 2000;
} // namespace

PackageStore::PackageStore(const QString &folder, Package package)
    : m_package(std::move(package))
    , m_folder(folder)
    , m_path(folder + u'/' + m_package.file)
    , m_part(m_path + u".part"_s)
    , m_lock(folder + u'/' + lockName)
{
    // Held as long as its process lives, however long that takes.
    m_lock.setStaleLockTime(0);
}

std::optional<UpdateTrouble> PackageStore::open()
{
    constexpr auto mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!QDir().mkpath(m_folder) || !QFile::setPermissions(m_folder, mine))
        return UpdateTrouble { UpdateFailure::cannotWrite,
                               u"the folder %1 cannot be made"_s.arg(m_folder) };
    if (!m_lock.tryLock(lockPatience)) {
        if (m_lock.error() == QLockFile::LockFailedError)
            return UpdateTrouble { UpdateFailure::alreadyAtWork,
                                   u"another process downloads into %1"_s.arg(m_folder) };
        return UpdateTrouble { UpdateFailure::cannotWrite,
                               u"the folder %1 cannot be written to"_s.arg(m_folder) };
    }
    removeOthers(m_folder);
    // Unbuffered: a full disk shows where it is met, and nothing waits that a kill would lose.
    if (!m_part.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return writeTrouble();
    return std::nullopt;
}

bool PackageStore::isWholeAt(const QString &path) const
{
    return isWholePackage(path, m_package);
}

void PackageStore::removeOthers(const QString &folder)
{
    const QDir dir(folder);
    const QStringList names = dir.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        if (name != m_package.file && name != m_package.file + u".part"_s && name != lockName)
            QFile::remove(dir.filePath(name));
    }
}

std::optional<UpdateTrouble> PackageStore::beginAt(qint64 position)
{
    if (!m_part.resize(position) || !m_part.seek(position))
        return writeTrouble();
    return std::nullopt;
}

std::optional<UpdateTrouble> PackageStore::append(const QByteArray &piece)
{
    if (m_part.size() + piece.size() > m_package.length)
        return UpdateTrouble { UpdateFailure::badPackage,
                               u"%1 is longer than the feed tells"_s.arg(m_package.file) };
    // A disk that fills up takes a little first, and only then says why it takes no more.
    for (qsizetype written = 0; written < piece.size();) {
        const qint64 count = m_part.write(piece.constData() + written, piece.size() - written);
        if (count <= 0)
            return writeTrouble();
        written += count;
    }
    return std::nullopt;
}

std::optional<UpdateTrouble> PackageStore::complete()
{
    if (!isWholeAt(m_part.fileName()))
        return UpdateTrouble { UpdateFailure::badPackage,
                               u"%1 is not what the feed describes"_s.arg(m_package.file) };
    QFile::remove(m_path);
    if (fsync(m_part.handle()) != 0 || !m_part.rename(m_path))
        return writeTrouble();
    return std::nullopt;
}

void PackageStore::close()
{
    m_part.close();
    m_lock.unlock();
}

void PackageStore::throwAway()
{
    m_part.remove();
}

UpdateTrouble PackageStore::writeTrouble()
{
    const bool isFull = m_part.error() == QFileDevice::ResourceError;
    return { isFull ? UpdateFailure::diskFull : UpdateFailure::cannotWrite,
             u"%1: %2"_s.arg(m_part.fileName(), m_part.errorString()) };
}

} // namespace ferrin
