// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>

namespace ferrin {

/// The state of the application's own login item. Only `enabled` counts as on.
enum class LoginItemStatus {
    notRegistered,
    enabled,
    /// It exists, but the user or the desktop has disabled it elsewhere.
    requiresApproval,
    /// It exists, but the program that it would start does not.
    notFound,
};

/// The entry by which the session starts the application when the user logs in. The platform
/// implements it. Nothing is cached: each call reads or changes the session's entry.
class LoginItem
{
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual LoginItemStatus status() const = 0;

    /// Both return the error message; absent on success.
    [[nodiscard]] virtual std::optional<QString> registerItem() = 0;
    [[nodiscard]] virtual std::optional<QString> unregisterItem() = 0;
};

} // namespace ferrin
