// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonValue>
#include <QVariant>

namespace ferrin {

/// A stored value as JSON: a bool, a number and a text as themselves, data as an object whose one
/// entry "data" is its base64. Undefined for a value of any other type and for a number that JSON
/// has no text for.
[[nodiscard]] QJsonValue jsonFromProperty(const QVariant &value);

/// The reverse: a bool, a whole number (qlonglong) or another (double), a text or data. Invalid for
/// what `jsonFromProperty` never makes.
[[nodiscard]] QVariant propertyFromJson(const QJsonValue &json);

} // namespace ferrin
