// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>

namespace ferrin {

/// What the session knows of the application's own login item. `enabled` alone counts as on.
enum class LoginItemStatus {
    notRegistered,
    enabled,
    /// It stands, and the user or the desktop has switched it off elsewhere.
    requiresApproval,
    /// It stands, and the program that it would start is not there.
    notFound,
};

/// The entry by which the session starts the application when the user logs in. The platform
/// implements it. Nothing of it is remembered: each call asks or changes the session itself.
class LoginItem
{
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual LoginItemStatus status() const = 0;

    /// Both answer with the text of the error; absent when it worked.
    [[nodiscard]] virtual std::optional<QString> registerItem() = 0;
    [[nodiscard]] virtual std::optional<QString> unregisterItem() = 0;
};

} // namespace ferrin
