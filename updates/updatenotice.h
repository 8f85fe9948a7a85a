// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <functional>

namespace ferrin {

/// A message at the edge of the screen that takes no focus. The platform implements it.
class UpdateNotice
{
public:
    virtual ~UpdateNotice() = default;

    /// Takes the place of an earlier one. `pressed` is called when the user chooses it, and never
    /// after this is destroyed.
    virtual void show(const QString &title, const QString &text, std::function<void()> pressed) = 0;
    virtual void withdraw() = 0;
};

} // namespace ferrin
