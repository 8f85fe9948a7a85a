// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/release.h"
#include "updates/updatefailure.h"

#include <QByteArray>
#include <QFile>
#include <QLockFile>
#include <QString>

#include <optional>

namespace ferrin {

/// The package on the disk while it comes: a file whose name ends with ".part" until all of it is
/// there and was found to be what the feed describes, and only then the package under its own name.
/// A part that is left behind, by whatever end, is continued the next time. The folder belongs to
/// the downloads alone: anything else in it is removed.
class PackageStore
{
public:
    PackageStore(const QString &folder, Package package);

    /// Makes the folder and takes it for this process; to be called first.
    [[nodiscard]] std::optional<UpdateTrouble> open();

    /// Where the package lies when it is whole.
    [[nodiscard]] const QString &path() const noexcept { return m_path; }
    [[nodiscard]] bool isWhole() const { return isWholeAt(m_path); }

    /// Bytes that are there and may be continued.
    [[nodiscard]] qint64 have() const { return m_part.size(); }

    /// From here on the file is written; what lies behind is thrown away.
    [[nodiscard]] std::optional<UpdateTrouble> beginAt(qint64 position);
    [[nodiscard]] std::optional<UpdateTrouble> append(const QByteArray &piece);
    /// Looks at all that came and gives it its name if it is the package.
    [[nodiscard]] std::optional<UpdateTrouble> complete();

    void throwAway();
    /// Lets others have the folder.
    void close();

private:
    [[nodiscard]] bool isWholeAt(const QString &path) const;
    void removeOthers(const QString &folder);
    [[nodiscard]] UpdateTrouble writeTrouble();

    Package m_package;
    QString m_folder;
    QString m_path;
    QFile m_part;
    QLockFile m_lock;
};

} // namespace ferrin
