// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/windowplace.h"

#include <QStringList>

#include <algorithm>

namespace ferrin {

QString toText(const WindowPlace &place)
{
    return QStringLiteral("%1 %2 %3").arg(place.corner.x()).arg(place.corner.y()).arg(place.screen);
}

std::optional<WindowPlace> windowPlaceIn(const QString &text)
{
    bool hasX = false;
    bool hasY = false;
    const QPoint corner(text.section(u' ', 0, 0).toInt(&hasX),
                        text.section(u' ', 1, 1).toInt(&hasY));
    if (!hasX || !hasY)
        return {};
    return WindowPlace { .screen = text.section(u' ', 2), .corner = corner };
}

QPoint keptWithin(QPoint kept, const QSize &window, const QRect &available)
{
    const auto within = [](int from, int length, int least, int room) {
        return std::max(least, std::min(from, least + room - length));
    };
    return { within(kept.x(), window.width(), available.x(), available.width()),
             within(kept.y(), window.height(), available.y(), available.height()) };
}

QPoint centredIn(const QRect &available, const QSize &window)
{
    QRect centred(QPoint(), window);
    centred.moveCenter(available.center());
    return centred.topLeft();
}

} // namespace ferrin
