// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/ownwindowlook.h"

#include "menubar/readablecolors.h"
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

OwnWindowColors colorsFor(const OwnWindowLook &look)
{
    if (look.isHighContrast) {
        const QColor ground = look.isDark ? Qt::black : Qt::white;
        const QColor text = look.isDark ? Qt::white : Qt::black;
        return { ground, text, text, text, ground };
    }
    const QRgb text = look.isDark ? 0xfff2f2f2 : 0xff1d1d1f;
    const QColor grey = QColor::fromRgb(look.isDark ? 0xff47474b : 0xffe2e2e6);
    const QColor tinted = colorInHueOf(look.accent, look.isDark ? 0xff3d4a5c : 0xffd3e2f7);
    const QColor highlight = look.accent.isValid() ? tinted : grey;
    if (look.isDark)
        return { 0xff2d2d2f, 0xff4a4a4d, text, highlight, text };
    return { 0xfffafafa, 0xffc4c4c8, text, highlight, text };
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
             .textScale = colors.appearance().textScale,
             .accent = colors.appearance().accent,
             .isHighContrast = colors.appearance().isHighContrast };
}

} // namespace ferrin
