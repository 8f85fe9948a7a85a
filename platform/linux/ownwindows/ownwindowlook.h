// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/popoverplacement.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <optional>

namespace ferrin {

class PanelColors;

/// How the small windows of our own are painted.
struct OwnWindowLook
{
    bool isDark = false;
    /// The desktop's interface font; empty for the default one.
    QString fontFamily {};
    /// How many times larger than usual all of it is; 1 to 3.
    double textScale = 1;
    /// The desktop's accent; invalid where it has none.
    QColor accent {};
    bool isHighContrast = false;

    /// A length or a size of text, logical pixels.
    [[nodiscard]] int scaled(int usual) const;
    /// The interface font in this size.
    [[nodiscard]] QFont font(int usualPixelSize) const;

    bool operator==(const OwnWindowLook &) const = default;
};

struct OwnWindowColors
{
    QColor ground;
    QColor border;
    QColor text;
    /// Behind what is chosen, and the text on it.
    QColor highlight;
    QColor highlightedText;
};

[[nodiscard]] OwnWindowColors colorsFor(const OwnWindowLook &look);
/// The screen of an item, as `screenOf` finds it; absent where there is none.
[[nodiscard]] std::optional<ScreenArea> screenAreaOf(const ItemPlace &place);

[[nodiscard]] OwnWindowLook ownWindowLook(const PanelColors &colors);

} // namespace ferrin
