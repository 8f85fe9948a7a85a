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

    void registerItem(Done done) override
    {
        calls.append(QStringLiteral("register"));
        if (!registerError)
            current = LoginItemStatus::enabled;
        done(registerError);
    }

    void unregisterItem(Done done) override
    {
        calls.append(QStringLiteral("unregister"));
        if (!unregisterError)
            current = LoginItemStatus::notRegistered;
        done(unregisterError);
    }

    LoginItemStatus current = LoginItemStatus::notRegistered;
    std::optional<QString> registerError;
    std::optional<QString> unregisterError;
    QStringList calls;
};

} // namespace ferrin::test
