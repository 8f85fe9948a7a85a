// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <optional>

namespace ferrin {

enum class Appearance { light, dark };

/// The appearance of the whole running application. The platform implements it; while its object
/// lives it is the one that AppColorSchemeProvider reaches.
class ApplicationAppearance
{
public:
    /// Null before the application has started and after it has ended.
    [[nodiscard]] static ApplicationAppearance *shared() noexcept;

    ApplicationAppearance();
    virtual ~ApplicationAppearance();
    ApplicationAppearance(const ApplicationAppearance &) = delete;
    ApplicationAppearance &operator=(const ApplicationAppearance &) = delete;

    /// Forces an appearance; absent leaves it to the desktop, whose changes are then followed.
    virtual void setAppearance(std::optional<Appearance> appearance) = 0;
};

} // namespace ferrin
