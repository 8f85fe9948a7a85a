// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QJsonValue>
#include <QVariant>

namespace ferrin {

/// A stored value as JSON: a bool, a number and a string as such, bytes as an object with the
/// single entry "data" in base64. Undefined for any other type and for a number that JSON cannot
/// express (an infinity or "not a number").
[[nodiscard]] QJsonValue jsonFromProperty(const QVariant &value);

/// The reverse: a bool, a whole number (qlonglong), another number (double), a string or bytes.
/// Invalid for anything that `jsonFromProperty` does not produce.
[[nodiscard]] QVariant propertyFromJson(const QJsonValue &json);

} // namespace ferrin
