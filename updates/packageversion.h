// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <compare>

namespace ferrin {

/// Whose rules put versions in order.
enum class VersionOrder {
    debian,
    rpm,
    /// Of a package system whose rules we do not know.
    unknown,
};

/// Compares two versions, "[epoch:]upstream[-revision]", as the package system does. By an unknown
/// order versions on which Debian and rpm disagree are unordered.
[[nodiscard]] std::partial_ordering compareVersions(const QString &left, const QString &right,
                                                    VersionOrder order);

/// The upstream part alone, the version that people know.
[[nodiscard]] QString upstreamVersion(const QString &version);

} // namespace ferrin
