// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonObject>

namespace ferrin::test {

/// The supplies of a machine's record (tests/machines/README.md) as a kernel shows them: one object
/// of attributes a supply, all texts, each with a type. Where a record holds only what UPower said,
/// its figures are put back into the attributes that they came from.
[[nodiscard]] QJsonObject suppliesOf(const QJsonObject &record);

} // namespace ferrin::test
