// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/menubaricon.h"

#include "core/batterydata.h"
#include "quick/quickengine.h"
#include "settingswindow/menubaricon/spokennames.h"

namespace ferrin {

MenuBarIcon::MenuBarIcon(const StateChoices::Sources &sources, QObject *parent)
    : QObject(parent)
    , m_data(sources.data)
    , m_discharging(ItemState::discharging, sources)
    , m_charging(ItemState::charging, sources)
    , m_charged(ItemState::charged, sources)
{
    for (StateChoices *choices : { &m_discharging, &m_charging, &m_charged })
        QJSEngine::setObjectOwnership(choices, QJSEngine::CppOwnership);
    connect(&m_data, &BatteryData::chargingStatusChanged, this, &MenuBarIcon::statusChanged);
}

MenuBarIcon *MenuBarIcon::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<MenuBarIcon>(*engine);
}

ChargingStatuses::Status MenuBarIcon::status() const
{
    return ChargingStatuses::Status(m_data.chargingStatus());
}

QString MenuBarIcon::nameOf(const QString &rawValue) const
{
    const auto icon = iconFromRawValue(rawValue);
    return icon ? spokenName(*icon) : QString();
}

} // namespace ferrin
