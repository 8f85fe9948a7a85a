// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

/// The names and numbers of PackageKit's bus interface that Ferrin uses.
/// https://www.freedesktop.org/software/PackageKit/gtk-doc/
namespace ferrin::packagekit {

inline const QString service = QStringLiteral("org.freedesktop.PackageKit");
inline const QString path = QStringLiteral("/org/freedesktop/PackageKit");
inline const QString interface = service;
inline const QString transactionInterface
    = QStringLiteral("org.freedesktop.PackageKit.Transaction");

/// What a transaction is at.
enum Status : uint {
    waitsForTurn = 1,
    downloads = 8,
    installs = 9,
    waitsForLock = 30,
    waitsForAuthorization = 31,
};

enum Exit : uint {
    success = 1,
};

inline constexpr quint64 installedOnly = 1U << 2U;
inline constexpr quint64 noFilter = 0;
inline constexpr quint64 onlyTrusted = 1U << 1U;

/// The lower half of the number that a package is reported with; the upper half holds the update's
/// severity.
inline constexpr uint infoMask = 0xffff;
/// An update that the system's administrator holds back.
inline constexpr uint blockedInfo = 9;

/// The largest number that is a percentage; above it the progress is unknown.
inline constexpr uint allPercent = 100;

} // namespace ferrin::packagekit
