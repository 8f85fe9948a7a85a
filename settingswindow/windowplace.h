// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

namespace ferrin {

/// Where a user has put a window.
struct WindowPlace
{
    /// The screen's name; some platforms have none.
    QString screen;
    /// The corner of the window with its frame, from that of the screen; logical pixels.
    QPoint corner;

    bool operator==(const WindowPlace &) const = default;
};

/// The form in which a place is stored, and back; absent for any other text.
[[nodiscard]] QString toText(const WindowPlace &place);
[[nodiscard]] std::optional<WindowPlace> windowPlaceIn(const QString &text);

/// The corner for a window of this size that was last at the corner `kept`, moved as little as
/// needed to lie in what the screen has available; a window that is larger begins at its corner.
[[nodiscard]] QPoint keptWithin(QPoint kept, const QSize &window, const QRect &available);

/// The corner for a window of this size in the middle.
[[nodiscard]] QPoint centredIn(const QRect &available, const QSize &window);

} // namespace ferrin
