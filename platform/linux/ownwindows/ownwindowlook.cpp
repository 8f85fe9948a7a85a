// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/ownwindowlook.h"

#include "platform/linux/panelcolors/panelcolors.h"
#include "popover/itemscreen.h"

#include <QGuiApplication>
#include <QScreen>

namespace ferrin {

int OwnWindowLook::scaled(int usual) const
{
    return qRound(usual * textScale);
}

QFont OwnWindowLook::font(int usualPixelSize) const
{
    QFont font = fontFamily.isEmpty() ? QGuiApplication::font() : QFont(fontFamily);
    font.setPixelSize(scaled(usualPixelSize));
    return font;
}

OwnWindowColors colorsFor(bool isDark)
{
    if (isDark)
        return { 0xff2d2d2f, 0xff4a4a4d, 0xfff2f2f2, 0xff47474b };
    return { 0xfffafafa, 0xffc4c4c8, 0xff1d1d1f, 0xffe2e2e6 };
}

std::optional<ScreenArea> screenAreaOf(const ItemPlace &place)
{
    const QScreen *const screen = screenOf(place);
    if (!screen)
        return {};
    return ScreenArea { .whole = screen->geometry(), .available = screen->availableGeometry() };
}

OwnWindowLook ownWindowLook(const PanelColors &colors)
{
    return { .isDark = colors.isOwnBarDark(),
             .fontFamily = colors.appearance().fontFamily,
             .textScale = colors.appearance().textScale };
}

} // namespace ferrin
