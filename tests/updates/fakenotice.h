// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updatenotice.h"

#include <QStringList>

#include <utility>

namespace ferrin::test {

/// A notification that the test may press.
class FakeNotice final : public UpdateNotice
{
public:
    void show(const QString &title, const QString &, std::function<void()> pressed) override
    {
        titles.append(title);
        press = std::move(pressed);
    }
    void withdraw() override { press = nullptr; }

    QStringList titles;
    /// Null while none is shown.
    std::function<void()> press;
};

} // namespace ferrin::test
