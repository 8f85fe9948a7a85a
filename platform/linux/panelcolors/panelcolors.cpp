// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/panelcolors.h"

#include "menubar/contrast.h"

#include <QFont>
#include <QGuiApplication>

#include <utility>

namespace ferrin {

namespace {

// Reds that keep a contrast of at least 4.5 to usual panels: a soft one on dark grounds, a deep one
// on light grounds.
constexpr QRgb redOnDark = 0xffff776c;
constexpr QRgb redOnLight = 0xffc8001a;

// Between black and white panels, so that it stands out a little from both; white reads on it even
// where a glyph is filled with no more than a shade of it.
constexpr QRgb darkChip = 0xff3e4247;
// For the light theme; black reads on it as white does on the other.
constexpr QRgb lightChip = 0xffe4e6e9;

QColor textOn(bool darkGround)
{
    return darkGround ? QColor(Qt::white) : QColor(Qt::black);
}

} // namespace

void PanelColors::setAppearance(const StatusAreaAppearance &appearance)
{
    if (m_appearance == appearance)
        return;
    m_appearance = appearance;
    Q_EMIT changed();
}

void PanelColors::setTrayText(const std::optional<QColor> &color)
{
    if (m_trayText == color)
        return;
    m_trayText = color;
    Q_EMIT changed();
}

void PanelColors::setPanelText(QLatin1StringView panel, const std::optional<QColor> &color)
{
    const auto known = m_panelTexts.constFind(panel);
    const auto before = known == m_panelTexts.cend() ? std::nullopt : std::optional(*known);
    if (before == color)
        return;
    if (color)
        m_panelTexts.insert(panel, *color);
    else
        m_panelTexts.remove(panel);
    Q_EMIT changed();
}

void PanelColors::setI3BarText(const std::optional<QColor> &color)
{
    if (std::exchange(m_i3BarText, color) != color)
        Q_EMIT changed();
}

void PanelColors::setPanelUncertain(QLatin1StringView panel, bool isUncertain)
{
    if (m_uncertainPanels.contains(panel) == isUncertain)
        return;
    if (isUncertain)
        m_uncertainPanels.insert(panel);
    else
        m_uncertainPanels.remove(panel);
    Q_EMIT changed();
}

std::optional<QColor> PanelColors::textFor(const PanelKind &panel) const
{
    if (const auto known = m_panelTexts.constFind(panel.name); known != m_panelTexts.cend())
        return *known;
    if (m_uncertainPanels.contains(panel.name))
        return {};
    if (m_trayText)
        return *m_trayText;
    switch (panel.usualText) {
    case PanelText::Light:
        return textOn(true);
    case PanelText::Dark:
        return textOn(false);
    case PanelText::Unknown:
        break;
    }
    return textByScheme();
}

std::optional<QColor> PanelColors::textByScheme() const
{
    const std::optional<bool> prefersDark = m_appearance.desktopPrefersDark;
    if (!prefersDark || m_appearance.forcedDark.value_or(*prefersDark) != *prefersDark)
        return {};
    return textOn(*prefersDark);
}

ViewContext PanelColors::contextWith(const QColor &text) const
{
    return { .text = text,
             .red = QColor::fromRgb(isLight(text) ? redOnDark : redOnLight),
             .fontFamily = m_appearance.fontFamily.isEmpty() ? QGuiApplication::font().family()
                                                             : m_appearance.fontFamily };
}

ViewContext PanelColors::contextFor(const PanelKind &panel) const
{
    const auto text = textFor(panel);
    return text ? contextWith(*text) : contextOnChip();
}

ViewContext PanelColors::contextOnChip() const
{
    const bool isDark = m_appearance.forcedDark.value_or(true);
    ViewContext context = contextWith(textOn(isDark));
    context.chip = QColor::fromRgb(isDark ? darkChip : lightChip);
    return context;
}

ViewContext PanelColors::contextForTray(const TraySurroundings &tray) const
{
    if (tray.isI3Bar && m_i3BarText)
        return contextWith(*m_i3BarText);
    if (m_trayText)
        return contextWith(*m_trayText);
    if (tray.ground)
        return contextWith(blackOrWhiteOn(*tray.ground));
    return contextOnChip();
}

bool PanelColors::isOwnBarDark() const noexcept
{
    return m_appearance.forcedDark.value_or(m_appearance.desktopDark);
}

ViewContext PanelColors::contextForOwnBar() const
{
    return contextWith(textOn(isOwnBarDark()));
}

} // namespace ferrin
