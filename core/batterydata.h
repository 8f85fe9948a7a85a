// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytime.h"
#include "core/batterytypes.h"

#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>
#include <utility>

namespace ferrin {

/// The one snapshot of the battery and the power adapter; everything shown is derived from it. The
/// provider creates it, owns it and is its only writer; views only read. Each value is tracked on
/// its own: a binding that reads it is evaluated again only when that value changes, each has its
/// own signal, and writing the present value again notifies nobody.
///
/// An absent value is unknown, which differs from zero.
class BatteryData : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What the battery is doing now.
    [[nodiscard]] BatteryChargingStatus chargingStatus() const { return m_chargingStatus; }
    /// From the registry; `unknown` when it has no answer.
    [[nodiscard]] PowerSource powerSource() const { return m_powerSource; }
    /// From the condition in the hardware report; `unknown` before the first slow refresh.
    [[nodiscard]] BatteryHealth health() const { return m_health; }
    /// To empty while discharging, to full while charging; of a full battery how long it would last
    /// at the assumed load.
    [[nodiscard]] BatteryTime timeRemaining() const { return m_timeRemaining; }
    /// How reliable `timeRemaining` is.
    [[nodiscard]] TimeQuality timeRemainingQuality() const { return m_timeRemainingQuality; }
    /// Percent, 0 to 100.
    [[nodiscard]] std::optional<qint64> charge() const { return m_charge; }
    /// Where a held battery is held, percent; absent when it is held for another reason.
    [[nodiscard]] std::optional<qint64> chargeLimit() const { return m_chargeLimit; }
    /// Counted so far.
    [[nodiscard]] std::optional<qint64> chargeCycles() const { return m_chargeCycles; }
    /// What the battery is designed for.
    [[nodiscard]] std::optional<qint64> designCycles() const { return m_designCycles; }
    /// The present full-charge capacity in mAh, from the registry.
    [[nodiscard]] std::optional<qint64> rawMaxCapacity() const { return m_rawMaxCapacity; }
    /// Percent of the design capacity, from the hardware report.
    [[nodiscard]] std::optional<qint64> maxCapacity() const { return m_maxCapacity; }
    // The connected adapter, from the registry; absent where it reports nothing.

    [[nodiscard]] std::optional<QString> adapterName() const { return m_adapterName; }
    [[nodiscard]] std::optional<QString> adapterManufacturer() const
    {
        return m_adapterManufacturer;
    }
    /// The offered power, W.
    [[nodiscard]] std::optional<qint64> adapterWatts() const { return m_adapterWatts; }
    /// V.
    [[nodiscard]] std::optional<float> adapterVoltage() const { return m_adapterVoltage; }
    /// A.
    [[nodiscard]] std::optional<float> adapterCurrent() const { return m_adapterCurrent; }

    /// From `maxCapacity`, `chargeCycles` and `designCycles`; `unknown` when one of them is absent.
    [[nodiscard]] BatteryLifespan lifespan() const;
    /// The minutes of `timeRemaining` as two digits, or "??".
    [[nodiscard]] QString timeRemainingMinutesText() const;
    /// Our own estimate, from the adapter's current or from a fixed one. Without a charge it is the
    /// time that stands; an adapter that leaves nothing for the battery gives none.
    [[nodiscard]] BatteryTime estimatedTimeToFull() const;
    /// Our own estimate, at a fixed load. While it cannot be made it is the time that stands.
    [[nodiscard]] BatteryTime estimatedTimeToEmpty() const;

    void setChargingStatus(BatteryChargingStatus value) { m_chargingStatus = value; }
    void setPowerSource(PowerSource value) { m_powerSource = value; }
    void setHealth(BatteryHealth value) { m_health = value; }
    void setTimeRemaining(BatteryTime value) { m_timeRemaining = value; }
    void setTimeRemainingQuality(TimeQuality value) { m_timeRemainingQuality = value; }
    void setCharge(std::optional<qint64> value) { m_charge = value; }
    void setChargeLimit(std::optional<qint64> value) { m_chargeLimit = value; }
    void setChargeCycles(std::optional<qint64> value) { m_chargeCycles = value; }
    void setDesignCycles(std::optional<qint64> value) { m_designCycles = value; }
    void setRawMaxCapacity(std::optional<qint64> value) { m_rawMaxCapacity = value; }
    void setMaxCapacity(std::optional<qint64> value) { m_maxCapacity = value; }
    void setAdapterName(std::optional<QString> value) { m_adapterName = std::move(value); }
    void setAdapterManufacturer(std::optional<QString> value)
    {
        m_adapterManufacturer = std::move(value);
    }
    void setAdapterWatts(std::optional<qint64> value) { m_adapterWatts = value; }
    void setAdapterVoltage(std::optional<float> value) { m_adapterVoltage = value; }
    void setAdapterCurrent(std::optional<float> value) { m_adapterCurrent = value; }

Q_SIGNALS:
    void chargingStatusChanged();
    void powerSourceChanged();
    void healthChanged();
    void timeRemainingChanged();
    void timeRemainingQualityChanged();
    void chargeChanged();
    void chargeLimitChanged();
    void chargeCyclesChanged();
    void designCyclesChanged();
    void rawMaxCapacityChanged();
    void maxCapacityChanged();
    void adapterNameChanged();
    void adapterManufacturerChanged();
    void adapterWattsChanged();
    void adapterVoltageChanged();
    void adapterCurrentChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(BatteryData, BatteryChargingStatus, m_chargingStatus,
                                         BatteryChargingStatus::unknown,
                                         &BatteryData::chargingStatusChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(BatteryData, PowerSource, m_powerSource,
                                         PowerSource::unknown, &BatteryData::powerSourceChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(BatteryData, BatteryHealth, m_health,
                                         BatteryHealth::unknown, &BatteryData::healthChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, BatteryTime, m_timeRemaining,
                               &BatteryData::timeRemainingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(BatteryData, TimeQuality, m_timeRemainingQuality,
                                         TimeQuality::estimated,
                                         &BatteryData::timeRemainingQualityChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_charge,
                               &BatteryData::chargeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_chargeLimit,
                               &BatteryData::chargeLimitChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_chargeCycles,
                               &BatteryData::chargeCyclesChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_designCycles,
                               &BatteryData::designCyclesChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_rawMaxCapacity,
                               &BatteryData::rawMaxCapacityChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_maxCapacity,
                               &BatteryData::maxCapacityChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<QString>, m_adapterName,
                               &BatteryData::adapterNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<QString>, m_adapterManufacturer,
                               &BatteryData::adapterManufacturerChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<qint64>, m_adapterWatts,
                               &BatteryData::adapterWattsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<float>, m_adapterVoltage,
                               &BatteryData::adapterVoltageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryData, std::optional<float>, m_adapterCurrent,
                               &BatteryData::adapterCurrentChanged)
};

} // namespace ferrin
