// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/loginitem.h"

#include <QString>

#include <optional>

namespace ferrin::test {

/// What came of a change of an item that is done at once; a text of its own where it was not.
inline std::optional<QString> outcomeOf(LoginItem &item, void (LoginItem::*change)(LoginItem::Done))
{
    std::optional<QString> outcome = QStringLiteral("not done at once");
    (item.*change)([&](const std::optional<QString> &error) { outcome = error; });
    return outcome;
}

inline std::optional<QString> turnOn(LoginItem &item)
{
    return outcomeOf(item, &LoginItem::registerItem);
}

inline std::optional<QString> turnOff(LoginItem &item)
{
    return outcomeOf(item, &LoginItem::unregisterItem);
}

} // namespace ferrin::test
