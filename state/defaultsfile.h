// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>
#include <QString>

namespace ferrin {

/// The file of a defaults store: a JSON object with one entry per line, so that of a damaged file
/// only the damaged lines are lost. It is read and replaced as a whole. What the entries mean is
/// not known here, and nothing is logged.
class DefaultsFile
{
public:
    enum class State {
        /// Every entry was read.
        Whole,
        Missing,
        /// Not a JSON object; `entries` holds what could be read line by line.
        Damaged,
        /// There is a file, but it cannot be read; `error` says why.
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

    /// Creates the folder when it is missing. A failure shows when the file is written.
    void makeFolder() const;

    /// Replaces the file atomically. Returns null, or why it failed; the file is then unchanged.
    [[nodiscard]] QString write(const QJsonObject &entries) const;

    /// Removes temporary files of processes that ended while they wrote. The caller must hold the
    /// file's lock.
    void removeLeftovers() const;

    /// Gives the file a second, unused name, under which it remains when it is replaced: should the
    /// process end at any moment, the next one finds the same content. Returns that name, or null
    /// when it failed.
    [[nodiscard]] QString setAside() const;
    /// Removes the second name again: the file was not replaced.
    void forgetSetAside(const QString &name) const;

private:
    QString m_path;
};

} // namespace ferrin
