// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// `BatteryChargingStatus` for QML, whose enumerators must begin with a capital letter.
class ChargingStatuses : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ChargingStatus)
    QML_UNCREATABLE("An enumeration.")

public:
    enum Status {
        Charging = int(BatteryChargingStatus::charging),
        Discharging = int(BatteryChargingStatus::discharging),
        Charged = int(BatteryChargingStatus::charged),
        FinishingCharge = int(BatteryChargingStatus::finishingCharge),
        Unknown = int(BatteryChargingStatus::unknown),
        Held = int(BatteryChargingStatus::held),
    };
    Q_ENUM(Status)

    ChargingStatuses() = delete;
};

} // namespace ferrin
