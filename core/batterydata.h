// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/variantcast.h"
#include "core/batterytime.h"
#include "core/batterytypes.h"

#include <QObject>
#include <QProperty>
#include <QString>
#include <QVariant>

#include <optional>
#include <utility>

namespace ferrin {

/// The one snapshot of the battery and the power adapter that everything shown is made of. The
/// provider creates it, owns it and alone writes it; views only read. Its many members are the
/// snapshot: each is tracked by itself, so that a binding that reads one is evaluated again only
/// when that one changes, and writing the value that is there already notifies nobody.
///
/// An absent value is a state of its own, distinct from zero. To QML it is `undefined`.
class BatteryData : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ferrin::BatteryChargingStatus chargingStatus READ chargingStatus NOTIFY
                   chargingStatusChanged)
    Q_PROPERTY(ferrin::PowerSource powerSource READ powerSource NOTIFY powerSourceChanged)
    Q_PROPERTY(ferrin::BatteryHealth health READ health NOTIFY healthChanged)
    Q_PROPERTY(ferrin::BatteryTime timeRemaining READ timeRemaining NOTIFY timeRemainingChanged)
    Q_PROPERTY(ferrin::TimeQuality timeRemainingQuality READ timeRemainingQuality NOTIFY
                   timeRemainingQualityChanged)
    Q_PROPERTY(QVariant charge READ chargeValue NOTIFY chargeChanged)
    Q_PROPERTY(QVariant chargeLimit READ chargeLimitValue NOTIFY chargeLimitChanged)
    Q_PROPERTY(QVariant chargeCycles READ chargeCyclesValue NOTIFY chargeCyclesChanged)
    Q_PROPERTY(QVariant designCycles READ designCyclesValue NOTIFY designCyclesChanged)
    Q_PROPERTY(QVariant rawMaxCapacity READ rawMaxCapacityValue NOTIFY rawMaxCapacityChanged)
    Q_PROPERTY(QVariant maxCapacity READ maxCapacityValue NOTIFY maxCapacityChanged)
    Q_PROPERTY(QVariant adapterName READ adapterNameValue NOTIFY adapterNameChanged)
    Q_PROPERTY(QVariant adapterManufacturer READ adapterManufacturerValue NOTIFY
                   adapterManufacturerChanged)
    Q_PROPERTY(QVariant adapterWatts READ adapterWattsValue NOTIFY adapterWattsChanged)
    Q_PROPERTY(QVariant adapterVoltage READ adapterVoltageValue NOTIFY adapterVoltageChanged)
    Q_PROPERTY(QVariant adapterCurrent READ adapterCurrentValue NOTIFY adapterCurrentChanged)

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
    [[nodiscard]] QVariant chargeValue() const { return toVariant(charge()); }
    [[nodiscard]] QVariant chargeLimitValue() const { return toVariant(chargeLimit()); }
    [[nodiscard]] QVariant chargeCyclesValue() const { return toVariant(chargeCycles()); }
    [[nodiscard]] QVariant designCyclesValue() const { return toVariant(designCycles()); }
    [[nodiscard]] QVariant rawMaxCapacityValue() const { return toVariant(rawMaxCapacity()); }
    [[nodiscard]] QVariant maxCapacityValue() const { return toVariant(maxCapacity()); }
    [[nodiscard]] QVariant adapterNameValue() const { return toVariant(adapterName()); }
    [[nodiscard]] QVariant adapterManufacturerValue() const
    {
        return toVariant(adapterManufacturer());
    }
    [[nodiscard]] QVariant adapterWattsValue() const { return toVariant(adapterWatts()); }
    [[nodiscard]] QVariant adapterVoltageValue() const { return toVariant(adapterVoltage()); }
    [[nodiscard]] QVariant adapterCurrentValue() const { return toVariant(adapterCurrent()); }

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
