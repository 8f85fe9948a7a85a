// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/theme/theme.h"

#include "menubar/readablecolors.h"
#include "state/applicationappearance.h"

#include <QGuiApplication>

namespace ferrin {

namespace {

QColor colorOf(const std::optional<AccentColor> &accent)
{
    return accent ? QColor::fromRgbF(float(accent->red), float(accent->green), float(accent->blue))
                  : QColor();
}

QList<QColor> colorsIn(const QVariantList &values)
{
    QList<QColor> colors;
    for (const QVariant &value : values)
        colors.append(value.value<QColor>());
    return colors;
}

} // namespace

Theme::Theme(QObject *parent)
    : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &Theme::isMirroredChanged);
    const ApplicationAppearance *const appearance = ApplicationAppearance::shared();
    if (!appearance)
        return;
    m_isDark.setBinding([appearance] { return appearance->isDark(); });
    m_fontFamily.setBinding([appearance] { return appearance->fontFamily(); });
    m_textScale.setBinding([appearance] { return appearance->textScale(); });
    m_reducesMotion.setBinding([appearance] { return appearance->reducesMotion(); });
    m_accent.setBinding([appearance] { return colorOf(appearance->accent()); });
    m_isHighContrast.setBinding([appearance] { return appearance->isHighContrast(); });
}

bool Theme::isMirrored()
{
    return QGuiApplication::isRightToLeft();
}

Theme *Theme::create(QQmlEngine *, QJSEngine *)
{
    return new Theme;
}

QColor Theme::readable(const QColor &wish, const QVariantList &grounds, double least) const
{
    return readableColor(wish, colorsIn(grounds), least);
}

QColor Theme::prominent(const QColor &wish, const QVariantList &grounds, double least) const
{
    return prominentColor(wish, colorsIn(grounds), least);
}

QColor Theme::textOn(const QColor &ground, double least) const
{
    return whiteOrBlackOn(ground, least);
}

QColor Theme::inHueOf(const QColor &accent, const QColor &own) const
{
    return colorInHueOf(accent, own);
}

} // namespace ferrin
