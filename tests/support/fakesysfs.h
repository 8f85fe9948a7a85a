// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>
#include <string>
#include <utility>

namespace ferrin::test {

/// A sysfs tree of plain files in a temporary directory of its own, for readers that take the root
/// as a parameter. Attributes end with a line feed, as a kernel's do.
class FakeSysfs
{
public:
    using Attributes = std::initializer_list<std::pair<const char *, QByteArray>>;

    FakeSysfs();

    /// The tree's "/sys".
    [[nodiscard]] std::string root() const;
    [[nodiscard]] QString path(const QString &relative) const;

    /// Any file below the root, by its relative path; parents are made.
    void write(const QString &relative, const QByteArray &value);
    /// Any file, directory or link below the root; nothing when it is not there.
    void remove(const QString &relative);
    /// A directory in the place of a file.
    void writeDirectory(const QString &relative);
    /// A link to a target, which need not exist.
    void writeLink(const QString &relative, const QByteArray &target);
    /// A pipe that nobody writes to.
    void writePipe(const QString &relative);

    /// One supply's attributes; those that were there before stay.
    void supply(const QString &name, Attributes attributes);
    void set(const QString &supply, const QString &attribute, const QByteArray &value);
    void removeSupply(const QString &name);

    /// The supplies, ports and offers of a machine's record (tests/machines/README.md). A type that
    /// the record does not tell is guessed; "<read error ...>" becomes a file that cannot be read.
    void load(const QJsonObject &record);

    /// The record of this name among tests/machines, or an empty object.
    [[nodiscard]] static QJsonObject record(const QString &name);
    /// The names of all records.
    [[nodiscard]] static QStringList recordNames();

private:
    void loadTree(const QString &base, const QJsonObject &tree);

    QTemporaryDir m_directory;
};

} // namespace ferrin::test
