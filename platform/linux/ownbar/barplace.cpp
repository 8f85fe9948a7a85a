// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownbar/barplace.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

constexpr std::array edges {
    std::pair(BarEdge::Top, "top"_L1),
    std::pair(BarEdge::Bottom, "bottom"_L1),
    std::pair(BarEdge::Left, "left"_L1),
    std::pair(BarEdge::Right, "right"_L1),
};

bool isUpright(BarEdge edge)
{
    return edge == BarEdge::Left || edge == BarEdge::Right;
}

qreal share(int of, int whole)
{
    return whole <= 0 ? 0 : std::clamp(qreal(of) / whole, 0.0, 1.0);
}

} // namespace

QRect frameAt(const BarPlace &place, QSize size, const QRect &available)
{
    const QSize room(std::max(0, available.width() - size.width()),
                     std::max(0, available.height() - size.height()));
    QPoint corner(int(std::lround(place.along * room.width())),
                  int(std::lround(place.along * room.height())));
    switch (place.edge) {
    case BarEdge::Top:
        corner.setY(0);
        break;
    case BarEdge::Bottom:
        corner.setY(room.height());
        break;
    case BarEdge::Left:
        corner.setX(0);
        break;
    case BarEdge::Right:
        corner.setX(room.width());
        break;
    }
    return { available.topLeft() + corner, size };
}

BarPlace nearestPlace(const QRect &dropped, const QRect &available)
{
    const std::array distances {
        std::pair(dropped.top() - available.top(), BarEdge::Top),
        std::pair(available.bottom() - dropped.bottom(), BarEdge::Bottom),
        std::pair(dropped.left() - available.left(), BarEdge::Left),
        std::pair(available.right() - dropped.right(), BarEdge::Right),
    };
    const BarEdge edge = std::ranges::min_element(distances, {}, [](const auto &distance) {
                             return distance.first;
                         })->second;
    const qreal along = isUpright(edge)
        ? share(dropped.top() - available.top(), available.height() - dropped.height())
        : share(dropped.left() - available.left(), available.width() - dropped.width());
    return { .edge = edge, .along = along };
}

QString toText(const BarPlace &place)
{
    const auto *edge = std::ranges::find(edges, place.edge, &decltype(edges)::value_type::first);
    return u"%1 %2 %3"_s.arg(edge->second).arg(place.along, 0, 'f', 4).arg(place.screen).trimmed();
}

std::optional<BarPlace> barPlaceIn(const QString &text)
{
    const QString first = text.section(u' ', 0, 0);
    const auto *edge = std::ranges::find_if(
        edges, [&first](const auto &known) { return first == known.second; });
    bool isNumber = false;
    const qreal along = text.section(u' ', 1, 1).toDouble(&isNumber);
    if (edge == edges.end() || !isNumber || !(along >= 0 && along <= 1))
        return {};
    return BarPlace { .edge = edge->first, .along = along, .screen = text.section(u' ', 2) };
}

} // namespace ferrin
