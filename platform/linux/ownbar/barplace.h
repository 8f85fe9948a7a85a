// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QRect>
#include <QString>

#include <optional>

namespace ferrin {

/// The side of the screen that the own bar lies at.
enum class BarEdge { Top, Bottom, Left, Right };

/// Where the user keeps the own bar: in words that hold when the screen has another size tomorrow.
struct BarPlace
{
    BarEdge edge = BarEdge::Top;
    /// Along the edge, from its left or top end, 0 to 1 of the room that the bar leaves.
    qreal along = 1;
    /// The screen's name; empty for the primary one, whichever that is.
    QString screen {};

    bool operator==(const BarPlace &) const = default;
};

/// A bar of this size at that place of the area that panels leave.
[[nodiscard]] QRect frameAt(const BarPlace &place, QSize size, const QRect &available);

/// The place on the nearest edge for a bar that was dropped here. The screen is left empty.
[[nodiscard]] BarPlace nearestPlace(const QRect &dropped, const QRect &available);

/// As it is stored: "bottom 0.25 HDMI-1".
[[nodiscard]] QString toText(const BarPlace &place);
/// Absent for what is no place.
[[nodiscard]] std::optional<BarPlace> barPlaceIn(const QString &text);

} // namespace ferrin
