// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerdescription.h"

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int stillEstimating = -1;
// Some gauges report 65535 minutes for "unknown", and a rate near zero gives times of weeks.
constexpr std::chrono::seconds longestPlausibleTime = 48h;

PowerFlow flowOfTimes(const UPowerDevice &device, std::optional<bool> externalPower)
{
    if (device.timeToEmpty.value_or(0s) > 0s)
        return PowerFlow::Discharging;
    if (device.timeToFull.value_or(0s) > 0s)
        return PowerFlow::Charging;
    return externalPower == false ? PowerFlow::Discharging : PowerFlow::Resting;
}

/// Whole minutes; a known time is at least one, because 0 would say that there is none.
int minutesOf(std::chrono::seconds time)
{
    if (time == 0s || time > longestPlausibleTime)
        return stillEstimating;
    const auto minutes = std::chrono::duration_cast<std::chrono::minutes>(time).count();
    return std::max(static_cast<int>(minutes), 1);
}

void insertTime(QVariantMap *description, const QString &key,
                std::optional<std::chrono::seconds> time, bool applies)
{
    if (!applies)
        description->insert(key, 0);
    else if (time)
        description->insert(key, minutesOf(*time));
}

std::optional<QString> nameOf(const UPowerDevice &device)
{
    if (device.model)
        return device.model;
    if (device.nativePath)
        return device.nativePath->section(u'/', -1);
    return std::nullopt;
}

bool isDrawnFrom(PowerFlow flow, std::optional<bool> externalPower)
{
    switch (flow) {
    case PowerFlow::Discharging:
        return true;
    case PowerFlow::Charging:
        return false;
    case PowerFlow::Resting:
        break;
    }
    return externalPower == false;
}

bool hasTime(const UPowerDevice &device, PowerFlow flow)
{
    const auto time = flow == PowerFlow::Charging ? device.timeToFull : device.timeToEmpty;
    return time && minutesOf(*time) != stillEstimating;
}

int rankOf(const UPowerDevice &device, std::optional<bool> externalPower)
{
    const int kind = device.kind == UPowerKind::Battery ? 0 : 3;
    const PowerFlow flow = flowOf(device, externalPower);
    if (flow == PowerFlow::Resting)
        return kind + 2;
    // A pack that waits its turn may say Unknown, or Discharging at no rate.
    return kind + (hasTime(device, flow) ? 0 : 1);
}

} // namespace

PowerFlow flowOf(const UPowerDevice &device, std::optional<bool> externalPower)
{
    switch (device.state.value_or(UPowerState::Unknown)) {
    case UPowerState::Charging:
        return PowerFlow::Charging;
    case UPowerState::Discharging:
        return PowerFlow::Discharging;
    case UPowerState::Empty:
    case UPowerState::FullyCharged:
    case UPowerState::PendingCharge:
    case UPowerState::PendingDischarge:
        return PowerFlow::Resting;
    case UPowerState::Unknown:
        break;
    }
    return flowOfTimes(device, externalPower);
}

PowerFlow settlingFlowOf(const UPowerDevice &device, std::optional<bool> externalPower,
                         std::optional<bool> changedTo)
{
    const UPowerState state = device.state.value_or(UPowerState::Unknown);
    if (!changedTo)
        return flowOf(device, externalPower);
    if (*changedTo) {
        const bool mayBeStale = state == UPowerState::Discharging || state == UPowerState::Unknown;
        return mayBeStale ? PowerFlow::Charging : flowOf(device, externalPower);
    }
    // A pack that is empty or waits for its turn is not the one in use.
    const bool waits = state == UPowerState::Empty || state == UPowerState::PendingDischarge;
    return waits ? PowerFlow::Resting : PowerFlow::Discharging;
}

QVariantMap describe(const UPowerDevice &device, std::optional<bool> externalPower)
{
    const PowerFlow flow = flowOf(device, externalPower);
    QVariantMap description {
        { u"Type"_s, device.kind == UPowerKind::Battery ? u"InternalBattery"_s : u"UPS"_s },
        { u"Max Capacity"_s, 100 },
        { u"Power Source State"_s,
          isDrawnFrom(flow, externalPower) ? u"Battery Power"_s : u"AC Power"_s },
    };
    if (const std::optional<QString> name = nameOf(device))
        description.insert(u"Name"_s, *name);
    if (device.isPresent)
        description.insert(u"Is Present"_s, *device.isPresent);
    if (device.percentage)
        description.insert(u"Current Capacity"_s, *device.percentage);
    if (device.state)
        description.insert(u"Is Charging"_s, device.state == UPowerState::Charging);
    insertTime(&description, u"Time to Empty"_s, device.timeToEmpty,
               flow == PowerFlow::Discharging);
    insertTime(&description, u"Time to Full Charge"_s, device.timeToFull,
               flow == PowerFlow::Charging);
    return description;
}

QVariantMap describeSettling(QVariantMap description, PowerFlow flow)
{
    description.insert(u"Time to Empty"_s, flow == PowerFlow::Discharging ? stillEstimating : 0);
    description.insert(u"Time to Full Charge"_s, flow == PowerFlow::Charging ? stillEstimating : 0);
    return description;
}

QList<UPowerDevice> powerSourcesInOrder(const QList<UPowerDevice> &devices,
                                        std::optional<bool> externalPower)
{
    QList<UPowerDevice> sources;
    std::copy_if(devices.begin(), devices.end(), std::back_inserter(sources),
                 [](const UPowerDevice &device) { return device.isPowerSource(); });
    std::stable_sort(sources.begin(), sources.end(),
                     [externalPower](const UPowerDevice &left, const UPowerDevice &right) {
                         return rankOf(left, externalPower) < rankOf(right, externalPower);
                     });
    return sources;
}

} // namespace ferrin
