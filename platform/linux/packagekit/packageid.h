// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>

namespace ferrin {

/// One version of a package, as PackageKit writes it: "ferrin;1.0-1;amd64;installed:debian".
struct PackageId
{
    /// Absent unless there are all four parts, and a name and a version among them.
    [[nodiscard]] static std::optional<PackageId> fromText(const QString &text);
    [[nodiscard]] QString text() const;

    /// The same package in another version.
    [[nodiscard]] bool isSibling(const PackageId &other) const
    {
        return name == other.name && architecture == other.architecture;
    }

    QString name;
    /// "[epoch:]upstream[-revision]".
    QString version;
    QString architecture;
    /// Where it comes from, in words of the package system's own.
    QString source;

    friend bool operator==(const PackageId &, const PackageId &) = default;
};

} // namespace ferrin
