// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace ferrin {

/// What apt prints for `targetsFormat`, a line for each list of packages.
inline const QString targetsFormat = QStringLiteral(
    "$(ORIGIN)-$(SUITE)-$(COMPONENT) $(ORIGIN)-$(CODENAME)-$(COMPONENT) $(REPO_URI) $(RELEASE)");

/// The words by which apt's errors name the sources that offer packages of one of these origins
/// ("debian-stable-main", as in a package id). Empty when apt knows none.
[[nodiscard]] QStringList sourceNames(const QByteArray &targets, const QStringList &origins);

/// Whether each error is of one certain source, and none of them of these. With no names it cannot
/// be known and is false.
[[nodiscard]] bool isOfOtherSources(const QString &errors, const QStringList &names);

} // namespace ferrin
