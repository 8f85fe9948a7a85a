// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/panelcolours.h"

#include <QFont>
#include <QGuiApplication>

namespace ferrin {

namespace {

// Reds that keep a contrast of at least 4.5 to usual panels: a soft one on dark grounds, a deep one
// on light grounds.
constexpr QRgb redOnDark = 0xffff776c;
constexpr QRgb redOnLight = 0xffc8001a;

QColor textOn(bool darkGround)
{
    return darkGround ? QColor(Qt::white) : QColor(Qt::black);
}

bool isLight(const QColor &colour)
{
    return qGray(colour.rgb()) >= 128;
}

} // namespace

void PanelColours::setAppearance(const StatusAreaAppearance &appearance)
{
    if (m_appearance == appearance)
        return;
    m_appearance = appearance;
    Q_EMIT changed();
}

void PanelColours::setTrayText(const std::optional<QColor> &colour)
{
    if (m_trayText == colour)
        return;
    m_trayText = colour;
    Q_EMIT changed();
}

QColor PanelColours::textFor(const HostProfile &profile) const
{
    if (m_appearance.forcedDark)
        return textOn(*m_appearance.forcedDark);
    if (m_trayText)
        return *m_trayText;
    switch (profile.text) {
    case PanelText::Light:
        return textOn(true);
    case PanelText::Dark:
        return textOn(false);
    case PanelText::Unknown:
        break;
    }
    return textOn(m_appearance.desktopDark);
}

ViewContext PanelColours::contextWith(const QColor &text) const
{
    return { .text = text,
             .red = QColor::fromRgb(isLight(text) ? redOnDark : redOnLight),
             .fontFamily = m_appearance.fontFamily.isEmpty() ? QGuiApplication::font().family()
                                                             : m_appearance.fontFamily };
}

ViewContext PanelColours::contextFor(const HostProfile &profile) const
{
    return contextWith(textFor(profile));
}

ViewContext PanelColours::contextForTray(const std::optional<QColor> &ground) const
{
    if (m_appearance.forcedDark)
        return contextWith(textOn(*m_appearance.forcedDark));
    if (m_trayText)
        return contextWith(*m_trayText);
    if (ground)
        return contextWith(textOn(!isLight(*ground)));
    // The bars that say nothing are dark by default.
    return contextWith(textOn(true));
}

bool PanelColours::isOwnBarDark() const noexcept
{
    return m_appearance.forcedDark.value_or(m_appearance.desktopDark);
}

ViewContext PanelColours::contextForOwnBar() const
{
    return contextWith(textOn(isOwnBarDark()));
}

} // namespace ferrin
