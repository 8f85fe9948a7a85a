// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <optional>

namespace ferrin {

/// The group [Desktop Entry] of a desktop entry, read and edited line by line: what is not asked
/// for, other groups, comments and garbage among it, stays as it is. It never touches a file.
class DesktopEntry
{
public:
    DesktopEntry() = default;
    explicit DesktopEntry(const QByteArray &content);

    /// Unescaped; absent when the key is missing. Of a key that stands twice the last one holds.
    [[nodiscard]] std::optional<QString> value(const QString &key) const;
    /// Absent when the key is missing or says neither yes nor no.
    [[nodiscard]] std::optional<bool> flag(const QString &key) const;
    /// Empty when the key is missing.
    [[nodiscard]] QStringList list(const QString &key) const;

    /// In the key's own line, else at the end of the group, which is made where it is missing.
    void setValue(const QString &key, const QString &value);
    void remove(const QString &key);

    [[nodiscard]] QByteArray content() const;

private:
    /// The lines between the group's header and the next header.
    struct Range
    {
        qsizetype begin;
        qsizetype end;
    };
    [[nodiscard]] std::optional<Range> group() const;
    [[nodiscard]] std::optional<qsizetype> lineOf(const QString &key) const;

    QByteArrayList m_lines;
};

/// The value of the key Exec that starts this program without arguments.
[[nodiscard]] QString execOfProgram(const QString &path);

/// The program that a value of the key Exec starts, as it is written there, and its arguments, for
/// a start without files: the field codes stand for nothing. Empty when there is none.
[[nodiscard]] QStringList wordsOfExec(const QString &exec);

/// The first of these words; empty when there is none.
[[nodiscard]] QString programOfExec(const QString &exec);

} // namespace ferrin
