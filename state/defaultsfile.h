// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>
#include <QString>

namespace ferrin {

/// The file behind a defaults store: a JSON object with one entry a line, so that a damaged file
/// gives up only its damaged lines. It is read and replaced as a whole and knows nothing of what
/// the entries mean. Nothing here logs.
class DefaultsFile
{
public:
    enum class State {
        /// Every entry was read.
        Whole,
        Missing,
        /// Not a JSON object; `entries` holds what the lines still give.
        Damaged,
        /// Something stands there that cannot be read, or not now; `error` says why.
        Unreadable,
    };

    struct Contents
    {
        State state = State::Missing;
        QJsonObject entries;
        QString error;
    };

    explicit DefaultsFile(QString path);

    [[nodiscard]] const QString &path() const noexcept { return m_path; }

    [[nodiscard]] Contents read() const;

    /// Makes the folder when it is missing. Whether it could shows when the file is written.
    void makeFolder() const;

    /// Replaces the file in one step. Null, or why it failed; the file is then what it was.
    [[nodiscard]] QString write(const QJsonObject &entries) const;

    /// Removes what processes left that ended while they wrote. Only for who holds the file's lock.
    void removeLeftovers() const;

    /// Gives the file a second name, which stays when it is replaced: at no time is it missing, so
    /// that whatever ends the process, the next one finds what this one found. That name, which
    /// nothing else has, or null when it failed.
    [[nodiscard]] QString setAside() const;
    /// Takes the second name back: the file was not replaced.
    void forgetSetAside(const QString &name) const;

private:
    QString m_path;
};

} // namespace ferrin
