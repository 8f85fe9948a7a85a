// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/batterydatafromioservice.h"

#include "base/checkedarithmetic.h"
#include "base/logging.h"
#include "base/variantcast.h"

#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

const QString BatteryDataFromIOService::IOSERVICE_BATTERY = u"AppleSmartBattery"_s;

namespace {

template <typename T>
QVariant only(const QVariant &value)
{
    return toVariant(variantCast<T>(value));
}

} // namespace

BatteryDataFromIOService::BatteryDataFromIOService(RegistryService &registry)
    : m_registry(&registry)
    , m_service(registry.matchingService(registry.serviceNameMatching(IOSERVICE_BATTERY)))
    , m_connected(m_service != 0)
{
    if (m_connected)
        qCInfo(logger, "Connection to AppleSmartBattery service successful");
    else
        qCCritical(logger, "AppleSmartBattery service not found");
}

QVariant BatteryDataFromIOService::value(SmartBatteryKey key) const
{
    if (!m_connected)
        return {};
    switch (key) {
    case SmartBatteryKey::externalConnected:
    case SmartBatteryKey::isCharging:
    case SmartBatteryKey::fullyCharged:
    case SmartBatteryKey::chargingHeld:
        return only<bool>(property(key));
    case SmartBatteryKey::appleRawCurrentCapacity:
    case SmartBatteryKey::appleRawMaxCapacity:
    case SmartBatteryKey::currentCapacity:
    case SmartBatteryKey::cycleCount:
    case SmartBatteryKey::designCapacity:
    case SmartBatteryKey::designCycleCount9C:
    case SmartBatteryKey::maxCapacity:
    case SmartBatteryKey::timeRemaining:
    case SmartBatteryKey::avgTimeToEmpty:
    case SmartBatteryKey::avgTimeToFull:
    case SmartBatteryKey::chargeLimit:
        return only<qint64>(property(key));
    case SmartBatteryKey::temperature:
    case SmartBatteryKey::temperatureInC:
    case SmartBatteryKey::temperatureInF:
        return temperature(key);
    case SmartBatteryKey::timeRemainingInHs:
    case SmartBatteryKey::timeRemainingInM:
        return timeRemaining(key);
    case SmartBatteryKey::charge:
        return charge();
    case SmartBatteryKey::serial:
        return only<QString>(property(key));
    case SmartBatteryKey::watts:
    case SmartBatteryKey::name:
    case SmartBatteryKey::manufacturer:
        return adapterDetail(key);
    case SmartBatteryKey::current:
    case SmartBatteryKey::adapterVoltage:
        return adapterDetailInThousands(key);
    }
    return {};
}

QVariant BatteryDataFromIOService::property(SmartBatteryKey key) const
{
    return m_registry->createProperty(m_service, rawValue(key));
}

int BatteryDataFromIOService::close()
{
    int result = 0;
    if (m_service != 0) {
        result = m_registry->release(m_service);
        if (result != 0)
            qCCritical(logger, "AppleSmartBattery service failed to close");
        else
            qCInfo(logger, "AppleSmartBattery service closed correctly");
        m_service = 0;
    }
    m_connected = false;
    return result;
}

QVariant BatteryDataFromIOService::temperature(SmartBatteryKey key) const
{
    const auto hundredths = variantCast<float>(property(SmartBatteryKey::temperature));
    if (!hundredths || key == SmartBatteryKey::temperature)
        return toVariant(hundredths);
    const float celsius = *hundredths / 100.0F;
    return key == SmartBatteryKey::temperatureInC ? celsius : celsius * 1.8F + 32.0F;
}

QVariant BatteryDataFromIOService::timeRemaining(SmartBatteryKey key) const
{
    const auto minutes = variantCast<qint64>(property(SmartBatteryKey::timeRemaining));
    if (!minutes)
        return {};
    return key == SmartBatteryKey::timeRemainingInHs ? *minutes / 60 : *minutes % 60;
}

QVariant BatteryDataFromIOService::charge() const
{
    const auto current = variantCast<qint64>(property(SmartBatteryKey::currentCapacity));
    if (!current)
        return {};
    const auto maximum = variantCast<qint64>(property(SmartBatteryKey::maxCapacity));
    if (!maximum)
        return {};
    // A maximum of 0 is a programming error of the registry: checkedInteger() stops the process.
    const float percent = static_cast<float>(*current) * 100.0F / static_cast<float>(*maximum);
    return checkedInteger(std::floor(percent));
}

QVariant BatteryDataFromIOService::adapterDetail(SmartBatteryKey key) const
{
    const auto details
        = variantCast<QVariantMap>(m_registry->createProperty(m_service, adapterDetailsProperty()));
    return details ? details->value(rawValue(key)) : QVariant();
}

QVariant BatteryDataFromIOService::adapterDetailInThousands(SmartBatteryKey key) const
{
    const auto thousandths = variantCast<float>(adapterDetail(key));
    return thousandths ? QVariant(*thousandths / 1000.0F) : QVariant();
}

} // namespace ferrin
