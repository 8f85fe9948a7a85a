// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/powersources/powersources.h"

#include "sources/smartbatterykey.h"

#include <algorithm>
#include <memory>
#include <numeric>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr int stillEstimating = -1;

const QList<QVariantMap> &sourcesIn(const PowerSourcesService::Snapshot &snapshot)
{
    return *static_cast<const QList<QVariantMap> *>(snapshot.get());
}

bool isBattery(const QVariantMap &source)
{
    return source.value(u"Type"_s) == u"InternalBattery"_s;
}

} // namespace

PowerSourcesService::Snapshot PowerSources::copyInfo()
{
    auto sources = std::make_shared<QList<QVariantMap>>(describedByUPower());
    const RegistryService::Handle service
        = m_registry.matchingService(m_registry.serviceNameMatching(u"AppleSmartBattery"_s));
    auto battery = std::find_if(sources->begin(), sources->end(), isBattery);
    if (service != 0 && battery == sources->end()) {
        sources->prepend({ { u"Type"_s, u"InternalBattery"_s } });
        battery = sources->begin();
    }
    if (service != 0)
        insertTimes(*battery, service);
    if (sources->isEmpty())
        sources->append({ { u"Type"_s, u"Mains"_s } });
    return sources;
}

std::optional<QList<PowerSourcesService::SourceHandle>>
PowerSources::copyList(const Snapshot &snapshot)
{
    QList<SourceHandle> handles(sourcesIn(snapshot).size());
    std::iota(handles.begin(), handles.end(), 0);
    return handles;
}

QVariant PowerSources::description(const Snapshot &snapshot, SourceHandle handle)
{
    return sourcesIn(snapshot).value(handle);
}

QList<QVariantMap> PowerSources::describedByUPower()
{
    QList<QVariantMap> sources;
    const Snapshot snapshot = m_upower.copyInfo();
    const auto handles = m_upower.copyList(snapshot);
    for (const SourceHandle handle : handles.value_or(QList<SourceHandle>()))
        sources.append(m_upower.description(snapshot, handle).toMap());
    return sources;
}

void PowerSources::insertTimes(QVariantMap &battery, RegistryService::Handle service)
{
    const auto said = [this, service](SmartBatteryKey key) {
        return m_registry.createProperty(service, rawValue(key));
    };
    const QVariant time = said(SmartBatteryKey::timeRemaining);
    const QVariant known = time.isValid() ? QVariant(time.toInt()) : QVariant(stillEstimating);
    const bool charging = said(SmartBatteryKey::isCharging).toBool();
    const bool resting = !time.isValid()
        && (said(SmartBatteryKey::chargingHeld).toBool()
            || said(SmartBatteryKey::fullyCharged).toBool());
    battery.insert(u"Time to Full Charge"_s, charging && !resting ? known : QVariant(0));
    battery.insert(u"Time to Empty"_s, charging || resting ? QVariant(0) : known);
}

} // namespace ferrin
