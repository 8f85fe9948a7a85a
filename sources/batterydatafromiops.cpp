// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/batterydatafromiops.h"

#include "base/logging.h"
#include "base/variantcast.h"

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

bool isInternalBattery(const QVariantMap &description)
{
    static const QString key = u"Type"_s;
    const auto type = description.constFind(key);
    return type != description.cend() && variantCast<QString>(*type) == "InternalBattery"_L1;
}

} // namespace

BatteryDataFromIOPS::BatteryDataFromIOPS(PowerSourcesService &service)
    : m_service(service)
{
}

void BatteryDataFromIOPS::refresh()
{
    const PowerSourcesService::Snapshot snapshot = m_service.copyInfo();
    if (!snapshot) {
        qCCritical(logger, "IOPSCopyPowerSourcesInfo returned NULL");
        return;
    }
    const auto handles = m_service.copyList(snapshot);
    if (!handles) {
        qCCritical(logger, "IOPSCopyPowerSourcesList returned NULL");
        return;
    }
    if (handles->isEmpty()) {
        qCCritical(logger, "IOPSCopyPowerSourcesList returned an empty array of power sources");
        return;
    }
    for (const PowerSourcesService::SourceHandle handle : *handles) {
        const auto description = variantCast<QVariantMap>(m_service.description(snapshot, handle));
        if (!description) {
            qCCritical(logger, "IOPSGetPowerSourceDescription returned NULL");
            return;
        }
        if (!isInternalBattery(*description))
            continue;
        m_batteryInfo = description;
        if (std::exchange(m_entryFlag, false))
            qCInfo(logger, "Connection to IOPowerSources successful");
        return;
    }
}

std::optional<qint64> BatteryDataFromIOPS::timeEstimate(bool toEmpty)
{
    static const QString timeToEmpty = u"Time to Empty"_s;
    static const QString timeToFull = u"Time to Full Charge"_s;
    refresh();
    if (!m_batteryInfo)
        return std::nullopt;
    const auto estimate = m_batteryInfo->constFind(toEmpty ? timeToEmpty : timeToFull);
    return estimate == m_batteryInfo->cend() ? std::nullopt : variantCast<qint64>(*estimate);
}

} // namespace ferrin
