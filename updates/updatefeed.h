// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace ferrin {

/// Where releases are told of, and by whom. A fact of the build: the settings and the environment
/// cannot change it.
struct UpdateFeed
{
    /// HTTPS; empty in a build that the system's package manager keeps current.
    QUrl address;
    /// Ed25519, 32 bytes.
    QByteArray publicKey;
    /// Debian's name of the architecture that this build is for.
    QString architecture;

    [[nodiscard]] static UpdateFeed ofThisBuild();

    [[nodiscard]] bool exists() const { return !address.isEmpty(); }
};

} // namespace ferrin
