// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <functional>
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
/// implements it.
class LoginItem
{
public:
    /// Told once how a change ended: the error message, absent on success. It may be told at once,
    /// or later, after the desktop has asked the user.
    using Done = std::function<void(const std::optional<QString> &error)>;

    virtual ~LoginItem() = default;

    [[nodiscard]] virtual LoginItemStatus status() const = 0;

    virtual void registerItem(Done done) = 0;
    virtual void unregisterItem(Done done) = 0;
};

} // namespace ferrin
