// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/panelcolours.h"

#include <QFont>
#include <QGuiApplication>

#include <utility>

namespace ferrin {

namespace {

// Reds that keep a contrast of at least 4.5 to usual panels: a soft one on dark grounds, a deep one
// on light grounds.
constexpr QRgb redOnDark = 0xffff776c;
constexpr QRgb redOnLight = 0xffc8001a;

// In the middle between black and white bars: it stands out a little on both, and white reads on it
// even where a glyph is filled with no more than a shade of white.
constexpr QRgb chipColour = 0xff3e4247;

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

void PanelColours::setHostText(const HostProfile &profile, const std::optional<QColor> &colour)
{
    const auto known = m_hostTexts.constFind(&profile);
    const auto before = known == m_hostTexts.cend() ? std::nullopt : std::optional(*known);
    if (before == colour)
        return;
    if (colour)
        m_hostTexts.insert(&profile, *colour);
    else
        m_hostTexts.remove(&profile);
    Q_EMIT changed();
}

void PanelColours::setI3BarText(const std::optional<QColor> &colour)
{
    if (std::exchange(m_i3BarText, colour) != colour)
        Q_EMIT changed();
}

std::optional<QColor> PanelColours::textFor(const HostProfile &profile) const
{
    if (m_appearance.forcedDark)
        return textOn(*m_appearance.forcedDark);
    if (const auto told = m_hostTexts.constFind(&profile); told != m_hostTexts.cend())
        return *told;
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
    if (m_appearance.desktopPrefersDark)
        return textOn(*m_appearance.desktopPrefersDark);
    return {};
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
    const auto text = textFor(profile);
    return text ? contextWith(*text) : contextOnChip();
}

ViewContext PanelColours::contextOnChip() const
{
    ViewContext context = contextWith(textOn(true));
    context.chip = QColor::fromRgb(chipColour);
    return context;
}

ViewContext PanelColours::contextForTray(const TraySurroundings &tray) const
{
    if (m_appearance.forcedDark)
        return contextWith(textOn(*m_appearance.forcedDark));
    if (tray.isI3Bar && m_i3BarText)
        return contextWith(*m_i3BarText);
    if (m_trayText)
        return contextWith(*m_trayText);
    if (tray.ground)
        return contextWith(textOn(!isLight(*tray.ground)));
    return contextOnChip();
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
