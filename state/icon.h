// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>
#include <span>

namespace ferrin {

/// Every icon that the status item can show, in the order of all lists. The first twelve are
/// glyphs, which are drawn with a fill that follows the charge; the others are symbols, which do
/// not change. Part of state/ because a selection is stored by its raw value.
enum class Icon {
    battery1V,
    battery1H,
    battery1HWithBolt,
    battery2V,
    battery2H,
    battery2HWithBolt,
    battery2VInverted,
    battery2HInverted,
    battery2HInvertedWithBolt,
    battery2VBlack,
    battery2HBlack,
    battery2HBlackWithBolt,
    arrowUpSquare,
    arrowUpSquareFill,
    arrowUpCircle,
    arrowUpCircleFill,
    arrowshapeUpCircle,
    arrowshapeUpCircleFill,
    arrowshapeUp,
    arrowshapeUpFill,
    arrowtriangleUpCircle,
    arrowtriangleUpCircleFill,
    arrowtriangleUpSquare,
    arrowtriangleUpSquareFill,
    arrowDownSquare,
    arrowDownSquareFill,
    arrowDownCircle,
    arrowDownCircleFill,
    arrowshapeDownCircle,
    arrowshapeDownCircleFill,
    arrowshapeDown,
    arrowshapeDownFill,
    arrowtriangleDownCircle,
    arrowtriangleDownCircleFill,
    arrowtriangleDownSquare,
    arrowtriangleDownSquareFill,
    arrowUpToLineCircle,
    arrowUpToLineCircleFill,
    arrowUpToLineSquare,
    arrowUpToLineSquareFill,
    bolt,
    boltFill,
    boltCircle,
    boltCircleFill,
    boltSquare,
    boltSquareFill,
    poweroutletTypeA,
    poweroutletTypeAFill,
    poweroutletTypeC,
    poweroutletTypeCFill,
    poweroutletTypeG,
    poweroutletTypeGFill,
};

/// How the body and the fill of a second-generation glyph are painted.
enum class BatteryStyle { normal, inverted, black };

/// The 52 icons in declaration order.
[[nodiscard]] std::span<const Icon> allIcons();

/// The text that an icon is stored as; for a symbol also the name of its image.
[[nodiscard]] QString rawValue(Icon icon);

/// Absent when the text is not the raw value of an icon.
[[nodiscard]] std::optional<Icon> iconFromRawValue(QStringView rawValue);

/// Whether the fill of the icon follows the charge.
[[nodiscard]] constexpr bool isGlyph(Icon icon) noexcept
{
    return icon <= Icon::battery2HBlackWithBolt;
}

} // namespace ferrin
