// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/statechoices.h"

#include "core/batterydata.h"
#include "state/settingsdata.h"

namespace ferrin {

namespace {

QStringList rawValues(std::span<const Icon> icons, bool areGlyphs)
{
    QStringList values;
    for (const Icon icon : icons) {
        if (isGlyph(icon) == areGlyphs)
            values.append(rawValue(icon));
    }
    return values;
}

} // namespace

StateChoices::StateChoices(ItemState state, const Sources &sources, QObject *parent)
    : QObject(parent)
    , m_sample(sampleOf(state))
    , m_switches(switchesOf(state))
    , m_sources(sources)
{
    const std::array all { m_switches.icon, m_switches.charge, m_switches.time };
    for (std::size_t i = 0; i < all.size(); ++i) {
        const DisplaySwitch which = all[i];
        m_switchFollowers[i]
            = sources.switches.bindable(which).addNotifier([this, which] { keepOne(which); });
    }
    m_iconFollower = bindableIconSelected(state, sources.settings).addNotifier([this] {
        Q_EMIT iconChanged();
    });
    m_preview.setBinding([this] { return computePreview(); });
    if (sources.panel)
        connect(sources.panel, &PanelAppearanceSource::panelAppearanceChanged, this,
                &StateChoices::panelChanged);
}

bool StateChoices::showIcon() const
{
    return m_sources.switches.isOn(m_switches.icon);
}

void StateChoices::setShowIcon(bool on)
{
    m_sources.switches.set(m_switches.icon, on);
}

bool StateChoices::showCharge() const
{
    return m_sources.switches.isOn(m_switches.charge);
}

void StateChoices::setShowCharge(bool on)
{
    m_sources.switches.set(m_switches.charge, on);
}

bool StateChoices::showTime() const
{
    return m_sources.switches.isOn(m_switches.time);
}

void StateChoices::setShowTime(bool on)
{
    m_sources.switches.set(m_switches.time, on);
}

QString StateChoices::icon() const
{
    return rawValue(bindableIconSelected(m_sample.state, m_sources.settings).value());
}

void StateChoices::setIcon(const QString &rawValue)
{
    if (const auto icon = iconFromRawValue(rawValue))
        setIconSelected(m_sample.state, *icon, m_sources.settings);
}

QStringList StateChoices::glyphs() const
{
    return rawValues(availableIcons(m_sample.state), true);
}

QStringList StateChoices::symbols() const
{
    return rawValues(availableIcons(m_sample.state), false);
}

std::optional<PanelAppearance> StateChoices::panel() const
{
    return m_sources.panel ? m_sources.panel->panelAppearance() : std::nullopt;
}

QString StateChoices::sentence() const
{
    return sentenceFor(preview());
}

void StateChoices::keepOne(DisplaySwitch changed)
{
    const bool isLast = switchedOnFor(m_sample.state, m_sources.switches) == ItemElements {};
    // Listeners are notified only once the switch is on again. Turning it on does not call this
    // function again: a notifier is not called while it runs.
    if (isLast)
        m_sources.switches.set(changed, true);
    Q_EMIT switchesChanged();
    if (isLast)
        Q_EMIT lastOneKept();
}

ItemContent StateChoices::computePreview() const
{
    const ItemElements shown
        = shownElements(m_sample.state, switchedOnFor(m_sample.state, m_sources.switches));
    ItemContent content { .status = m_sample.status };
    if (shown.icon)
        content.icon
            = IconElement { .icon
                            = bindableIconSelected(m_sample.state, m_sources.settings).value(),
                            .charge = charge(),
                            .status = m_sources.data.chargingStatus() };
    if (shown.charge)
        content.charge = QString::number(m_sample.charge);
    if (shown.time)
        content.time = m_sample.time;
    return content;
}

} // namespace ferrin
