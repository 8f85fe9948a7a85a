// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <variant>

namespace ferrin {

/// Says which of the application's status items is meant: by its position among them, or by its
/// identifier.
struct StatusItemIdentity
{
    std::variant<int, QString> value = 0;

    [[nodiscard]] static StatusItemIdentity index(int position) { return { position }; }
    [[nodiscard]] static StatusItemIdentity id(const QString &identifier) { return { identifier }; }

    /// `index 0` or `ID "main"`.
    [[nodiscard]] QString text() const;

    bool operator==(const StatusItemIdentity &) const = default;
};

} // namespace ferrin
