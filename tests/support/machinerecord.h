// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>

namespace ferrin::test {

/// The supplies of a machine's record (tests/machines/README.md) as the kernel shows them: for each
/// supply an object of attributes, all strings, with a type. Where a record has only UPower's
/// values, they are converted back to the attributes that they came from.
[[nodiscard]] QJsonObject suppliesOf(const QJsonObject &record);

} // namespace ferrin::test
