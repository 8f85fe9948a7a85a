// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/itemscreen.h"

#include "popover/itemplace.h"

#include <QGuiApplication>
#include <QScreen>

namespace ferrin {

QScreen *screenOf(const ItemPlace &place)
{
    QScreen *const under = QGuiApplication::screenAt(place.item.center());
    return under && !place.item.isEmpty() ? under : QGuiApplication::primaryScreen();
}

} // namespace ferrin
