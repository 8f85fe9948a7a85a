// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/general/colortheme.h"

#include "quick/quickengine.h"
#include "state/appcolorscheme.h"
#include "state/appcolorschemeprovider.h"

namespace ferrin {

ColorTheme::ColorTheme(AppColor &color, QObject *parent)
    : QObject(parent)
    , m_color(color)
    , m_follower(color.bindableScheme().addNotifier([this] { Q_EMIT selectedSchemeChanged(); }))
{
}

ColorTheme *ColorTheme::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<ColorTheme>(*engine);
}

QStringList ColorTheme::schemes() const
{
    QStringList texts;
    for (const AppColorScheme scheme : allAppColorSchemes())
        texts.append(rawValue(scheme));
    return texts;
}

QString ColorTheme::selectedScheme() const
{
    return rawValue(m_color.scheme());
}

void ColorTheme::setSelectedScheme(const QString &text)
{
    const auto scheme = appColorSchemeFromRawValue(text);
    if (!scheme)
        return;
    m_color.setScheme(*scheme);
    AppColorSchemeProvider().apply(*scheme);
}

} // namespace ferrin
