// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverplacement.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace ferrin {

namespace {

// Between the part and the frame: the arrow and a little air.
constexpr int partGap = 10;
// From the end of the frame's side: its round corner and half of the arrow.
constexpr int arrowInset = 20;

bool isBesides(PopoverSide side)
{
    return side == PopoverSide::Left || side == PopoverSide::Right;
}

int inside(int position, int length, int low, int high)
{
    return std::max(low, std::min(position, high - length));
}

QRect movedInside(QRect frame, const QRect &room)
{
    frame.moveTo(inside(frame.x(), frame.width(), room.left(), room.right() + 1),
                 inside(frame.y(), frame.height(), room.top(), room.bottom() + 1));
    return frame;
}

QRect beside(const QRect &thing, const QSize &size, PopoverSide side, int gap)
{
    QRect frame(QPoint(), size);
    frame.moveLeft(thing.x() + (thing.width() - size.width()) / 2);
    frame.moveTop(thing.y() + (thing.height() - size.height()) / 2);
    switch (side) {
    case PopoverSide::Below:
        frame.moveTop(thing.bottom() + 1 + gap);
        break;
    case PopoverSide::Above:
        frame.moveBottom(thing.top() - 1 - gap);
        break;
    case PopoverSide::Right:
        frame.moveLeft(thing.right() + 1 + gap);
        break;
    case PopoverSide::Left:
        frame.moveRight(thing.left() - 1 - gap);
        break;
    }
    return frame;
}

// What lies on that side of the thing.
int spaceBeside(const QRect &thing, const QRect &room, PopoverSide side)
{
    switch (side) {
    case PopoverSide::Below:
        return room.bottom() - thing.bottom();
    case PopoverSide::Above:
        return thing.top() - room.top();
    case PopoverSide::Right:
        return room.right() - thing.right();
    case PopoverSide::Left:
        break;
    }
    return thing.left() - room.left();
}

QRect cutAt(QRect room, const QRect &thing, PopoverSide side)
{
    switch (side) {
    case PopoverSide::Below:
        room.setTop(std::max(room.top(), thing.bottom() + 1));
        break;
    case PopoverSide::Above:
        room.setBottom(std::min(room.bottom(), thing.top() - 1));
        break;
    case PopoverSide::Right:
        room.setLeft(std::max(room.left(), thing.right() + 1));
        break;
    case PopoverSide::Left:
        room.setRight(std::min(room.right(), thing.left() - 1));
        break;
    }
    return room;
}

// The room without the gap at its edges, if that is enough.
QRect offTheEdges(const QRect &room, const QSize &size, int gap)
{
    const QRect inner = room.adjusted(gap, gap, -gap, -gap);
    const bool fits = inner.width() >= size.width() && inner.height() >= size.height();
    return fits ? inner : room;
}

PopoverSide sideOfPanel(const QRect &panel, const QRect &screen)
{
    const QPoint middle = screen.center();
    if (panel.width() >= panel.height())
        return panel.center().y() < middle.y() ? PopoverSide::Below : PopoverSide::Above;
    return panel.center().x() < middle.x() ? PopoverSide::Right : PopoverSide::Left;
}

PopoverSide sideOfNearestEdge(QPoint spot, const QRect &screen)
{
    const std::array edges {
        std::pair(spot.y() - screen.top(), PopoverSide::Below),
        std::pair(screen.bottom() - spot.y(), PopoverSide::Above),
        std::pair(spot.x() - screen.left(), PopoverSide::Right),
        std::pair(screen.right() - spot.x(), PopoverSide::Left),
    };
    return std::ranges::min_element(edges, {}, &std::pair<int, PopoverSide>::first)->second;
}

PopoverSpot spotInCorner(const QSize &size, const ScreenArea &screen)
{
    const QRect &room = screen.available;
    const int above = room.top() - screen.whole.top();
    const int below = screen.whole.bottom() - room.bottom();
    QRect frame(QPoint(), size);
    if (QGuiApplication::isRightToLeft())
        frame.moveLeft(room.left() + popoverGap);
    else
        frame.moveRight(room.right() - popoverGap);
    if (below > above)
        frame.moveBottom(room.bottom() - popoverGap);
    else
        frame.moveTop(room.top() + popoverGap);
    return { .frame = movedInside(frame, room),
             .bounds = room,
             .side = below > above ? PopoverSide::Above : PopoverSide::Below };
}

int arrowAlong(const QRect &frame, const QRect &part, PopoverSide side)
{
    const bool isVertical = isBesides(side);
    const int length = isVertical ? frame.height() : frame.width();
    const int wanted = isVertical ? part.y() + part.height() / 2 - frame.y()
                                  : part.x() + part.width() / 2 - frame.x();
    return std::max(std::min(wanted, length - arrowInset), std::min(arrowInset, length / 2));
}

} // namespace

PopoverSpot spotAtItem(const ItemPlace &place, const QSize &size, const ScreenArea &screen)
{
    if (place.item.isEmpty())
        return spotInCorner(size, screen);
    const bool hasPanel = screen.whole.intersects(place.panel);
    const QRect panel = hasPanel ? place.panel.intersected(screen.whole) : place.item;
    const PopoverSide side = hasPanel ? sideOfPanel(panel, screen.whole)
                                      : sideOfNearestEdge(place.item.center(), screen.whole);

    QRect room = cutAt(screen.available, panel, side);
    if (room.width() < size.width() || room.height() < size.height())
        room = screen.available;
    const QRect along = isBesides(side)
        ? QRect(panel.x(), place.item.y(), panel.width(), place.item.height())
        : QRect(place.item.x(), panel.y(), place.item.width(), panel.height());
    const QRect frame
        = movedInside(beside(along, size, side, popoverGap), offTheEdges(room, size, popoverGap));
    return {
        .frame = frame, .bounds = room, .side = side, .arrow = arrowAlong(frame, place.item, side)
    };
}

PopoverSides innerSides()
{
    const auto [first, second] = QGuiApplication::isRightToLeft()
        ? std::pair(PopoverSide::Right, PopoverSide::Left)
        : std::pair(PopoverSide::Left, PopoverSide::Right);
    return { first, second, PopoverSide::Below, PopoverSide::Above };
}

PopoverSpot spotAtPart(const QRect &part, const QSize &size, const QRect &available,
                       const PopoverSides &sides)
{
    const auto spare = [&](PopoverSide side) {
        const int needed = (isBesides(side) ? size.width() : size.height()) + partGap;
        return spaceBeside(part, available, side) - needed;
    };
    const auto *fitting = std::ranges::find_if(sides, [&](auto side) { return spare(side) >= 0; });
    const PopoverSide side
        = fitting != sides.end() ? *fitting : *std::ranges::max_element(sides, {}, spare);
    const QRect frame = movedInside(beside(part, size, side, partGap),
                                    offTheEdges(available, size, explanationGap));
    return {
        .frame = frame, .bounds = available, .side = side, .arrow = arrowAlong(frame, part, side)
    };
}

} // namespace ferrin
