// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/statechoices.h"

#include "core/batterydata.h"
#include "state/settingsdata.h"

namespace ferrin {

namespace {

QBindable<Icon> selectionOf(BatteryChargingStatus status, SettingsData &settings)
{
    if (status == BatteryChargingStatus::discharging)
        return settings.bindableDischargingIconSelected();
    if (status == BatteryChargingStatus::charging)
        return settings.bindableChargingIconSelected();
    return settings.bindableChargedIconSelected();
}

void select(Icon icon, BatteryChargingStatus status, SettingsData &settings)
{
    if (status == BatteryChargingStatus::discharging)
        settings.setDischargingIconSelected(icon);
    else if (status == BatteryChargingStatus::charging)
        settings.setChargingIconSelected(icon);
    else
        settings.setChargedIconSelected(icon);
}

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

StateChoices::StateChoices(BatteryChargingStatus status, const Sources &sources, QObject *parent)
    : QObject(parent)
    , m_sample(sampleOf(status))
    , m_sources(sources)
{
    const std::array all { m_sample.showIcon, m_sample.showCharge, m_sample.showTime };
    for (std::size_t i = 0; i < all.size(); ++i) {
        const DisplaySwitch which = all[i];
        m_switchFollowers[i]
            = sources.switches.bindable(which).addNotifier([this, which] { keepOne(which); });
    }
    m_iconFollower = selectionOf(m_sample.status, sources.settings).addNotifier([this] {
        Q_EMIT iconChanged();
    });
    m_preview.setBinding([this] { return computePreview(); });
}

bool StateChoices::showIcon() const
{
    return m_sources.switches.isOn(m_sample.showIcon);
}

void StateChoices::setShowIcon(bool on)
{
    m_sources.switches.set(m_sample.showIcon, on);
}

bool StateChoices::showCharge() const
{
    return m_sources.switches.isOn(m_sample.showCharge);
}

void StateChoices::setShowCharge(bool on)
{
    m_sources.switches.set(m_sample.showCharge, on);
}

bool StateChoices::showTime() const
{
    return m_sources.switches.isOn(m_sample.showTime);
}

void StateChoices::setShowTime(bool on)
{
    m_sources.switches.set(m_sample.showTime, on);
}

QString StateChoices::icon() const
{
    return rawValue(selectedIconFor(m_sample.status, m_sources.settings));
}

void StateChoices::setIcon(const QString &rawValue)
{
    if (const auto icon = iconFromRawValue(rawValue))
        select(*icon, m_sample.status, m_sources.settings);
}

QStringList StateChoices::glyphs() const
{
    return rawValues(m_sample.icons, true);
}

QStringList StateChoices::symbols() const
{
    return rawValues(m_sample.icons, false);
}

QString StateChoices::sentence() const
{
    return sentenceFor(preview());
}

void StateChoices::keepOne(DisplaySwitch changed)
{
    const bool isLast = switchedOnFor(m_sample.status, m_sources.switches) == ItemElements {};
    // Whoever listens hears of it when the switch is on again. This change is not told here once
    // more: a notifier is not called while it runs.
    if (isLast)
        m_sources.switches.set(changed, true);
    Q_EMIT switchesChanged();
    if (isLast)
        Q_EMIT lastOneKept();
}

ItemContent StateChoices::computePreview() const
{
    const ItemElements shown
        = shownElements(m_sample.status, switchedOnFor(m_sample.status, m_sources.switches));
    ItemContent content { .status = m_sample.status };
    if (shown.icon)
        content.icon = IconElement { .icon = selectedIconFor(m_sample.status, m_sources.settings),
                                     .charge = charge(),
                                     .status = m_sources.data.chargingStatus() };
    if (shown.charge)
        content.charge = QString::number(m_sample.charge);
    if (shown.time)
        content.time = m_sample.time;
    return content;
}

} // namespace ferrin
