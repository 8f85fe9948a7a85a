// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterydataprovider.h"

#include "base/checkedarithmetic.h"
#include "base/variantcast.h"
#include "core/assumedload.h"
#include "core/storeddata.h"

#include <chrono>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 stillEstimating = -1;

std::optional<BatteryDataProvider::Platform> &handedOver()
{
    static std::optional<BatteryDataProvider::Platform> platform;
    return platform;
}

} // namespace

BatteryDataProvider::BatteryDataProvider(const Platform &platform, QObject *parent)
    : QObject(parent)
    , m_batteryIOService(platform.registry)
    , m_batteryIOPS(platform.powerSources)
    , m_batteryShell(platform.processLauncher)
    , m_storedData(platform.storedData)
{
    m_batteryIOPS.refresh();
    updatePeriodicData();

    m_timer.setTimerType(Qt::CoarseTimer);
    m_timer.setInterval(std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::duration<double>(REFRESH_RATE_IN_SECONDS)));
    connect(&m_timer, &QTimer::timeout, this, &BatteryDataProvider::updatePeriodicData);
    m_timer.start();
}

void BatteryDataProvider::setPlatform(const Platform &platform)
{
    handedOver().emplace(platform);
}

BatteryDataProvider &BatteryDataProvider::shared()
{
    static auto *const instance = [] {
        if (!handedOver())
            qFatal("The battery data was asked for before its platform was handed over");
        return new BatteryDataProvider(*handedOver());
    }();
    return *instance;
}

void BatteryDataProvider::updatePeriodicData()
{
    update(Refresh::Timed);
}

void BatteryDataProvider::updateEarly()
{
    update(Refresh::Early);
}

void BatteryDataProvider::update(Refresh refresh)
{
    m_data.setCharge(registryValue<qint64>(SmartBatteryKey::charge));
    m_data.setRawMaxCapacity(registryValue<qint64>(SmartBatteryKey::appleRawMaxCapacity));
    updatePowerSource();
    updateChargingStatus();
    updateAdapterDetails();
    storeAdapterDetails(refresh);
    updateTimeRemaining();
}

void BatteryDataProvider::updateStaticData()
{
    m_data.setChargeCycles(registryValue<qint64>(SmartBatteryKey::cycleCount));
    m_data.setDesignCycles(registryValue<qint64>(SmartBatteryKey::designCycleCount9C));
    m_batteryShell.refresh();
    if (!m_batteryIOService.connected())
        return;
    m_data.setMaxCapacity(m_batteryShell.maxCapacity());
    const auto condition = m_batteryShell.condition();
    if (!condition)
        m_data.setHealth(BatteryHealth::unknown);
    else if (condition->contains("Normal"_L1, Qt::CaseInsensitive))
        m_data.setHealth(BatteryHealth::normal);
    else
        m_data.setHealth(BatteryHealth::service);
}

void BatteryDataProvider::updatePowerSource()
{
    m_lastPowerSource = m_data.powerSource();
    const auto external = registryValue<bool>(SmartBatteryKey::externalConnected);
    if (!external)
        m_data.setPowerSource(PowerSource::unknown);
    else
        m_data.setPowerSource(*external ? PowerSource::external : PowerSource::battery);
}

void BatteryDataProvider::updateChargingStatus()
{
    const BatteryChargingStatus status = chargingStatusNow();
    m_data.setChargeLimit(status == BatteryChargingStatus::held
                              ? registryValue<qint64>(SmartBatteryKey::chargeLimit)
                              : std::nullopt);
    m_data.setChargingStatus(status);
}

BatteryChargingStatus BatteryDataProvider::chargingStatusNow() const
{
    const auto full = registryValue<bool>(SmartBatteryKey::fullyCharged);
    const auto charging = registryValue<bool>(SmartBatteryKey::isCharging);
    const auto charge = m_data.charge();
    if (!full || !charging || !charge)
        return BatteryChargingStatus::unknown;
    if (registryValue<bool>(SmartBatteryKey::chargingHeld) == true)
        return BatteryChargingStatus::held;
    if (*full) {
        return m_data.powerSource() == PowerSource::external ? BatteryChargingStatus::charged
                                                             : BatteryChargingStatus::discharging;
    }
    if (*charging) {
        return *charge == 100 ? BatteryChargingStatus::finishingCharge
                              : BatteryChargingStatus::charging;
    }
    return BatteryChargingStatus::discharging;
}

void BatteryDataProvider::updateAdapterDetails()
{
    m_data.setAdapterName(registryValue<QString>(SmartBatteryKey::name));
    m_data.setAdapterManufacturer(registryValue<QString>(SmartBatteryKey::manufacturer));
    m_data.setAdapterWatts(registryValue<qint64>(SmartBatteryKey::watts));
    m_data.setAdapterCurrent(registryValue<float>(SmartBatteryKey::current));
    m_data.setAdapterVoltage(registryValue<float>(SmartBatteryKey::adapterVoltage));
}

void BatteryDataProvider::storeAdapterDetails(Refresh refresh)
{
    if (m_data.powerSource() != PowerSource::external)
        return;
    if (m_lastPowerSource != PowerSource::external) {
        m_storedData().deleteAll();
        m_adapterConnectedCounter = 0;
    }
    // The system publishes the adapter's details some seconds after it was connected.
    if (m_adapterConnectedCounter <= POWER_ADAPTER_INFO_COUNTS) {
        if (refresh == Refresh::Timed)
            m_adapterConnectedCounter = checkedAdd(m_adapterConnectedCounter, 1);
        copyAdapterDetails();
    } else {
        neutralizeAbsentAdapterDetails();
    }
}

void BatteryDataProvider::copyAdapterDetails()
{
    StoredData &stored = m_storedData();
    stored.setAdapterName(m_data.adapterName());
    stored.setAdapterManufacturer(m_data.adapterManufacturer());
    stored.setAdapterWatts(m_data.adapterWatts());
    stored.setAdapterVoltage(m_data.adapterVoltage());
    stored.setAdapterCurrent(m_data.adapterCurrent());
}

void BatteryDataProvider::neutralizeAbsentAdapterDetails()
{
    StoredData &stored = m_storedData();
    if (!m_data.adapterName())
        stored.setAdapterName(u""_s);
    if (!m_data.adapterManufacturer())
        stored.setAdapterManufacturer(u""_s);
    if (!m_data.adapterWatts())
        stored.setAdapterWatts(0);
    if (!m_data.adapterVoltage())
        stored.setAdapterVoltage(0.0F);
    if (!m_data.adapterCurrent())
        stored.setAdapterCurrent(0.0F);
}

TimeQuality BatteryDataProvider::timeQualityNow()
{
    const BatteryChargingStatus status = m_data.chargingStatus();
    const PowerSource source = m_data.powerSource();
    const bool charging = status == BatteryChargingStatus::charging;
    const bool discharging = status == BatteryChargingStatus::discharging;
    if ((charging && source == PowerSource::battery)
        || (discharging && source == PowerSource::external))
        return TimeQuality::frozen;
    if (!m_batteryIOService.value(SmartBatteryKey::timeRemainingInHs).isValid())
        return TimeQuality::frozen;
    const auto toFull = m_batteryIOPS.timeEstimate(false);
    const auto toEmpty = m_batteryIOPS.timeEstimate(true);
    if (!toFull || !toEmpty)
        return TimeQuality::estimated;
    if (*toFull == 0 && *toEmpty == 0)
        return TimeQuality::frozen;
    if (discharging)
        return *toEmpty == stillEstimating ? TimeQuality::estimated : TimeQuality::real;
    return charging && *toFull != stillEstimating ? TimeQuality::real : TimeQuality::estimated;
}

void BatteryDataProvider::updateTimeRemaining()
{
    m_data.setTimeRemainingQuality(timeQualityNow());
    switch (m_data.chargingStatus()) {
    case BatteryChargingStatus::charging:
    case BatteryChargingStatus::discharging:
        updateRunningTime();
        break;
    case BatteryChargingStatus::charged:
    case BatteryChargingStatus::finishingCharge:
        m_timeIsToFull = false;
        if (const auto capacity = m_data.rawMaxCapacity()) {
            m_data.setTimeRemaining(BatteryTime::fractionalHours(static_cast<float>(*capacity)
                                                                 / assumedLoadInMilliamperes));
        }
        break;
    case BatteryChargingStatus::held:
        m_timeIsToFull = false;
        m_data.setTimeRemaining(availableTime());
        break;
    case BatteryChargingStatus::unknown:
        m_data.setTimeRemaining({});
        break;
    }
}

void BatteryDataProvider::updateRunningTime()
{
    const bool toFull = m_data.chargingStatus() == BatteryChargingStatus::charging;
    // A time of the one direction is none of the other.
    if (m_timeIsToFull != toFull && !hasNewTime())
        m_data.setTimeRemaining({});
    m_timeIsToFull = toFull;
    switch (m_data.timeRemainingQuality()) {
    case TimeQuality::real:
        m_data.setTimeRemaining(timeFromRegistry(SmartBatteryKey::timeRemaining));
        break;
    case TimeQuality::estimated:
        m_data.setTimeRemaining(toFull ? m_data.estimatedTimeToFull()
                                       : m_data.estimatedTimeToEmpty());
        break;
    case TimeQuality::frozen:
        break;
    }
}

bool BatteryDataProvider::hasNewTime() const
{
    const TimeQuality quality = m_data.timeRemainingQuality();
    return quality == TimeQuality::real
        || (quality == TimeQuality::estimated && m_data.rawMaxCapacity() && m_data.charge());
}

BatteryTime BatteryDataProvider::availableTime() const
{
    const BatteryTime usual = timeFromRegistry(SmartBatteryKey::avgTimeToEmpty);
    if (usual.hours)
        return usual;
    return m_data.rawMaxCapacity() ? m_data.estimatedTimeToEmpty() : BatteryTime();
}

BatteryTime BatteryDataProvider::timeFromRegistry(SmartBatteryKey key) const
{
    const auto minutes = registryValue<qint64>(key);
    if (!minutes)
        return {};
    return { *minutes / 60, *minutes % 60 };
}

template <typename T>
std::optional<T> BatteryDataProvider::registryValue(SmartBatteryKey key) const
{
    return variantCast<T>(m_batteryIOService.value(key));
}

} // namespace ferrin
