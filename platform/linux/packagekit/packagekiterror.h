// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updatefailure.h"

#include <QDBusError>

namespace ferrin {

/// What an error of a transaction means. The text is English; where PackageKit has one code for
/// many causes, the package manager's words tell them apart.
[[nodiscard]] UpdateTrouble troubleFrom(uint code, const QString &text);

/// What it means that the service did not take a call.
[[nodiscard]] UpdateTrouble troubleFrom(const QDBusError &error);

} // namespace ferrin
