// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/loginitem.h"

#include <QStringList>

namespace ferrin::test {

/// A login item that keeps its status in memory, writes down what was asked of it, and fails where
/// a test wants it to.
class FakeLoginItem final : public LoginItem
{
public:
    [[nodiscard]] LoginItemStatus status() const override { return current; }

    [[nodiscard]] std::optional<QString> registerItem() override
    {
        calls.append(QStringLiteral("register"));
        if (!registerError)
            current = LoginItemStatus::enabled;
        return registerError;
    }

    [[nodiscard]] std::optional<QString> unregisterItem() override
    {
        calls.append(QStringLiteral("unregister"));
        if (!unregisterError)
            current = LoginItemStatus::notRegistered;
        return unregisterError;
    }

    LoginItemStatus current = LoginItemStatus::notRegistered;
    std::optional<QString> registerError;
    std::optional<QString> unregisterError;
    QStringList calls;
};

} // namespace ferrin::test
