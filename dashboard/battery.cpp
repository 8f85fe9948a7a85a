// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/battery.h"

#include "base/variantcast.h"
#include "core/batterydata.h"
#include "quick/quickengine.h"

namespace ferrin {

Battery::Battery(BatteryData &data, QObject *parent)
    : QObject(parent)
    , m_data(data)
{
    connect(&data, &BatteryData::chargeChanged, this, &Battery::chargeChanged);
    connect(&data, &BatteryData::chargeLimitChanged, this, &Battery::chargeLimitChanged);
    connect(&data, &BatteryData::timeRemainingChanged, this, &Battery::timeRemainingChanged);
    connect(&data, &BatteryData::chargingStatusChanged, this, &Battery::chargingStatusChanged);
    connect(&data, &BatteryData::powerSourceChanged, this, &Battery::powerSourceChanged);
    connect(&data, &BatteryData::maxCapacityChanged, this, &Battery::maxCapacityChanged);
    connect(&data, &BatteryData::chargeCyclesChanged, this, &Battery::chargeCyclesChanged);
    connect(&data, &BatteryData::designCyclesChanged, this, &Battery::designCyclesChanged);
    connect(&data, &BatteryData::healthChanged, this, &Battery::healthChanged);
    // The verdict follows from these three.
    connect(&data, &BatteryData::maxCapacityChanged, this, &Battery::lifespanChanged);
    connect(&data, &BatteryData::chargeCyclesChanged, this, &Battery::lifespanChanged);
    connect(&data, &BatteryData::designCyclesChanged, this, &Battery::lifespanChanged);
}

Battery *Battery::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<Battery>(*engine);
}

QVariant Battery::charge() const
{
    return toVariant(m_data.charge());
}

QVariant Battery::chargeLimit() const
{
    return toVariant(m_data.chargeLimit());
}

QVariant Battery::hours() const
{
    return toVariant(m_data.timeRemaining().hours);
}

QVariant Battery::minutes() const
{
    return toVariant(m_data.timeRemaining().minutes);
}

ChargingStatuses::Status Battery::chargingStatus() const
{
    return ChargingStatuses::Status(m_data.chargingStatus());
}

Battery::PowerSource Battery::powerSource() const
{
    return PowerSource(m_data.powerSource());
}

QVariant Battery::maxCapacity() const
{
    return toVariant(m_data.maxCapacity());
}

QVariant Battery::chargeCycles() const
{
    return toVariant(m_data.chargeCycles());
}

QVariant Battery::designCycles() const
{
    return toVariant(m_data.designCycles());
}

Battery::Health Battery::health() const
{
    return Health(m_data.health());
}

Battery::Lifespan Battery::lifespan() const
{
    return Lifespan(m_data.lifespan());
}

} // namespace ferrin
