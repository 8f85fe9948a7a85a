// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/chargingstatuses.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class BatteryData;

/// The battery snapshot as QML reads it: enumerators begin with capital letters, as QML demands,
/// and an absent number is `undefined`. It stores nothing; each property notifies when the
/// snapshot's does. A child of the engine; the snapshot outlives it.
class Battery final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    /// Percent, 0 to 100.
    Q_PROPERTY(QVariant charge READ charge NOTIFY chargeChanged)
    /// Where a held battery is held, percent; undefined when it is held for another reason.
    Q_PROPERTY(QVariant chargeLimit READ chargeLimit NOTIFY chargeLimitChanged)
    /// Whole hours of the remaining time, and the minutes past them, 0 to 59.
    Q_PROPERTY(QVariant hours READ hours NOTIFY timeRemainingChanged)
    Q_PROPERTY(QVariant minutes READ minutes NOTIFY timeRemainingChanged)
    Q_PROPERTY(ferrin::ChargingStatuses::Status chargingStatus READ chargingStatus NOTIFY
                   chargingStatusChanged)
    Q_PROPERTY(PowerSource powerSource READ powerSource NOTIFY powerSourceChanged)
    /// Percent of the design capacity.
    Q_PROPERTY(QVariant maxCapacity READ maxCapacity NOTIFY maxCapacityChanged)
    Q_PROPERTY(QVariant chargeCycles READ chargeCycles NOTIFY chargeCyclesChanged)
    Q_PROPERTY(QVariant designCycles READ designCycles NOTIFY designCyclesChanged)
    Q_PROPERTY(Health health READ health NOTIFY healthChanged)
    Q_PROPERTY(Lifespan lifespan READ lifespan NOTIFY lifespanChanged)

public:
    enum class PowerSource {
        Battery = int(ferrin::PowerSource::battery),
        External = int(ferrin::PowerSource::external),
        Unknown = int(ferrin::PowerSource::unknown),
    };
    Q_ENUM(PowerSource)

    enum class Health {
        Normal = int(BatteryHealth::normal),
        Service = int(BatteryHealth::service),
        Unknown = int(BatteryHealth::unknown),
    };
    Q_ENUM(Health)

    enum class Lifespan {
        Good = int(BatteryLifespan::good),
        ReducedMaxCap = int(BatteryLifespan::reducedMaxCap),
        ReducedCycles = int(BatteryLifespan::reducedCycles),
        ReducedMaxCapAndCycles = int(BatteryLifespan::reducedMaxCapAndCycles),
        Unknown = int(BatteryLifespan::unknown),
    };
    Q_ENUM(Lifespan)

    explicit Battery(BatteryData &data, QObject *parent = nullptr);

    /// The engine's child.
    static Battery *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] QVariant charge() const;
    [[nodiscard]] QVariant chargeLimit() const;
    [[nodiscard]] QVariant hours() const;
    [[nodiscard]] QVariant minutes() const;
    [[nodiscard]] ChargingStatuses::Status chargingStatus() const;
    [[nodiscard]] PowerSource powerSource() const;
    [[nodiscard]] QVariant maxCapacity() const;
    [[nodiscard]] QVariant chargeCycles() const;
    [[nodiscard]] QVariant designCycles() const;
    [[nodiscard]] Health health() const;
    [[nodiscard]] Lifespan lifespan() const;

Q_SIGNALS:
    void chargeChanged();
    void chargeLimitChanged();
    void timeRemainingChanged();
    void chargingStatusChanged();
    void powerSourceChanged();
    void maxCapacityChanged();
    void chargeCyclesChanged();
    void designCyclesChanged();
    void healthChanged();
    void lifespanChanged();

private:
    BatteryData &m_data;
};

} // namespace ferrin
