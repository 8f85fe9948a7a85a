// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterydata.h"

#include "base/checkedarithmetic.h"
#include "core/assumedload.h"

#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 healthyMaxCapacityPercent = 80;
constexpr float currentBesidesChargingInAmperes = 0.5F;
constexpr float assumedChargingCurrentInAmperes = 1.5F;

} // namespace

BatteryLifespan BatteryData::lifespan() const
{
    const auto design = designCycles();
    const auto capacity = maxCapacity();
    const auto cycles = chargeCycles();
    if (!design || !capacity || !cycles)
        return BatteryLifespan::unknown;
    const bool reduced = *capacity < healthyMaxCapacityPercent;
    if (*cycles < *design && reduced)
        return BatteryLifespan::reducedMaxCap;
    if (*design < *cycles)
        return reduced ? BatteryLifespan::reducedMaxCapAndCycles : BatteryLifespan::reducedCycles;
    // Also a battery at exactly its design cycles, however little it still holds.
    return BatteryLifespan::good;
}

QString BatteryData::timeRemainingMinutesText() const
{
    const BatteryTime time = timeRemaining();
    if (!time.hours || !time.minutes)
        return u"??"_s;
    return QString::asprintf("%02lld", *time.minutes);
}

BatteryTime BatteryData::estimatedTimeToFull() const
{
    const auto capacity = rawMaxCapacity();
    const auto percent = charge();
    if (!capacity || !percent)
        return timeRemaining();
    const qint64 missing = checkedMultiply(checkedSubtract(100, *percent), *capacity);
    const float ampereHours = static_cast<float>(missing) / 100.0F / 1000.0F;
    const auto current = adapterCurrent();
    const float amperes
        = current ? *current - currentBesidesChargingInAmperes : assumedChargingCurrentInAmperes;
    // An adapter that gives no more than the machine takes would never fill the battery.
    if (!(amperes > 0))
        return {};
    const float hours = ampereHours / amperes;
    return std::isfinite(hours) ? BatteryTime::fractionalHours(hours) : BatteryTime();
}

BatteryTime BatteryData::estimatedTimeToEmpty() const
{
    const auto capacity = rawMaxCapacity();
    const auto percent = charge();
    if (!capacity || !percent)
        return timeRemaining();
    const float charged = static_cast<float>(*capacity) * static_cast<float>(*percent) / 100.0F;
    return BatteryTime::fractionalHours(charged / assumedLoadInMilliamperes);
}

} // namespace ferrin
