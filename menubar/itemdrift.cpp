// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemdrift.h"

#include "menubar/iconview.h"

#include <QStringList>

#include <cstdlib>

namespace ferrin {

namespace {

constexpr int mostPercent = 3;
constexpr int mostMinutes = 5;
constexpr int minutesOfAnHour = 60;

/// "37", or "4:29" in minutes; absent for what is unknown.
std::optional<int> numberIn(const QString &text)
{
    int number = 0;
    for (const QString &part : text.split(u':')) {
        bool isNumber = false;
        number = number * minutesOfAnHour + part.toInt(&isNumber);
        if (!isNumber)
            return {};
    }
    return number;
}

bool isNear(const std::optional<QString> &one, const std::optional<QString> &other, int most)
{
    if (!one || !other || *one == *other)
        return one == other;
    const auto first = numberIn(*one);
    const auto second = numberIn(*other);
    return first && second && std::abs(*first - *second) <= most;
}

bool isSameIcon(const std::optional<IconElement> &one, const std::optional<IconElement> &other)
{
    if (!one || !other)
        return one.has_value() == other.has_value();
    return one->icon == other->icon && one->fault == other->fault && one->status == other->status
        && isNearlyEmpty(one->charge, one->status) == isNearlyEmpty(other->charge, other->status)
        && std::abs(one->charge - other->charge) <= mostPercent;
}

} // namespace

bool isDrift(const ItemContent &before, const ItemContent &now)
{
    return before.status == now.status && before.hasBattery == now.hasBattery
        && isSameIcon(before.icon, now.icon) && isNear(before.charge, now.charge, mostPercent)
        && isNear(before.time, now.time, mostMinutes);
}

} // namespace ferrin
