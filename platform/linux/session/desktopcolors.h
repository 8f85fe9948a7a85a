// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/applicationappearance.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace ferrin {

/// What a desktop's settings say of its colours; each absent where it says nothing that is valid.
struct DesktopColors
{
    std::optional<AccentColor> portalAccent {};
    /// KDE's accent where the user chose one, and the ground of its selections.
    std::optional<AccentColor> kdeAccent {};
    std::optional<AccentColor> kdeSelection {};
    std::optional<AccentColor> gnomeAccent {};
    std::optional<bool> portalHighContrast {};
    std::optional<bool> gnomeHighContrast {};

    /// The first that there is, the portal's before the desktops' own.
    [[nodiscard]] std::optional<AccentColor> accent() const;
    [[nodiscard]] bool isHighContrast() const;
};

// Parts that are beyond red, green and blue are logged.

/// The portal's: a structure of three numbers, 0 to 1 each.
[[nodiscard]] std::optional<AccentColor> accentOfPortal(const QVariant &value);

/// As KDE writes colours: "61,174,233", with the opacity behind it or without.
[[nodiscard]] std::optional<AccentColor> accentOfKde(const QString &text);

/// One of the names that GNOME gives its accents.
[[nodiscard]] std::optional<AccentColor> accentOfGnome(const QString &name);

/// The portal's contrast: 1 for a higher one, 0 for none in particular.
[[nodiscard]] std::optional<bool> highContrastOfPortal(const QVariant &value);

} // namespace ferrin
