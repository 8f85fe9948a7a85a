// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/sharedfonts.h"

namespace ferrin {

namespace {

QFont font(const QString &family, int pixelSize, QFont::Weight weight)
{
    QFont font;
    if (!family.isEmpty())
        font.setFamily(family);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

} // namespace

SharedFonts SharedFonts::ofFamily(const QString &family)
{
    return { .heavy13 = font(family, 13, QFont::ExtraBold),
             .bold14 = font(family, 14, QFont::Bold),
             .regular12 = font(family, 12, QFont::Normal),
             .regular10 = font(family, 10, QFont::Normal),
             .regular8 = font(family, 8, QFont::Normal),
             .regular13 = font(family, 13, QFont::Normal) };
}

} // namespace ferrin
