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

/// A sysfs tree of plain files in a temporary directory, for readers that take the root as a
/// parameter. Attributes end with a line feed, as in the kernel.
class FakeSysfs
{
public:
    using Attributes = std::initializer_list<std::pair<const char *, QByteArray>>;

    FakeSysfs();

    /// The path of the tree, in place of "/sys".
    [[nodiscard]] std::string root() const;
    [[nodiscard]] QString path(const QString &relative) const;

    /// Writes any file below the root, by its relative path; parent directories are created.
    void write(const QString &relative, const QByteArray &value);
    /// Removes any file, directory or link below the root; does nothing when it does not exist.
    void remove(const QString &relative);
    /// Creates a directory in place of a file.
    void writeDirectory(const QString &relative);
    /// Creates a link to a target, which need not exist.
    void writeLink(const QString &relative, const QByteArray &target);
    /// Creates a pipe that nobody writes to.
    void writePipe(const QString &relative);

    /// Sets attributes of one supply; the others are kept.
    void supply(const QString &name, Attributes attributes);
    void set(const QString &supply, const QString &attribute, const QByteArray &value);
    void removeSupply(const QString &name);

    /// Adds the supplies, ports and offers of a machine's record (tests/machines/README.md). A
    /// missing type is guessed; "<read error ...>" becomes a file that cannot be read.
    void load(const QJsonObject &record);

    /// The record of this name in tests/machines, or an empty object.
    [[nodiscard]] static QJsonObject record(const QString &name);
    /// The names of all records.
    [[nodiscard]] static QStringList recordNames();

private:
    void loadTree(const QString &base, const QJsonObject &tree);

    QTemporaryDir m_directory;
};

} // namespace ferrin::test
