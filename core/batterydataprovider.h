// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydata.h"
#include "sources/batterydatafromiops.h"
#include "sources/batterydatafromioservice.h"
#include "sources/batterydatafromshell.h"

#include <QObject>
#include <QProperty>
#include <QTimer>

#include <functional>

namespace ferrin {

class PowerSourcesService;
class ProcessLauncher;
class RegistryService;
class StoredData;

/// Keeps the one snapshot of the battery up to date: the fast values by a timer, the slow ones on
/// request. It combines the three readers, and copies the adapter's details to the stored data in
/// the first refreshes after it was connected, since they may arrive late. It never fails: a value
/// that no source has is absent in the snapshot.
///
/// Main thread only.
class BatteryDataProvider : public QObject
{
    Q_OBJECT

public:
    static constexpr double REFRESH_RATE_IN_SECONDS = 5.0;
    /// The adapter's details are copied while the counter is at most this.
    static constexpr qint64 POWER_ADAPTER_INFO_COUNTS = 3;

    /// What the provider reads from and writes to; all of it must outlive the provider.
    struct Platform
    {
        RegistryService &registry;
        PowerSourcesService &powerSources;
        ProcessLauncher &processLauncher;
        /// Called only when there is adapter data to store or to delete.
        std::function<StoredData &()> storedData;
    };

    /// Fills the snapshot once before it returns, and starts the timer.
    explicit BatteryDataProvider(const Platform &platform, QObject *parent = nullptr);

    /// Sets the parts of the process-wide provider; the application calls it once, before the first
    /// call of shared().
    static void setPlatform(const Platform &platform);
    /// The provider of the process, which is created on first use and never destroyed. A call
    /// before setPlatform() is a programming error and stops the process.
    [[nodiscard]] static BatteryDataProvider &shared();

    [[nodiscard]] BatteryData *data() noexcept { return &m_data; }
    [[nodiscard]] const BatteryDataFromIOService &batteryIOService() const noexcept
    {
        return m_batteryIOService;
    }
    [[nodiscard]] const BatteryDataFromIOPS &batteryIOPS() const noexcept { return m_batteryIOPS; }
    [[nodiscard]] const BatteryDataFromShell &batteryShell() const noexcept
    {
        return m_batteryShell;
    }
    /// The power source of the refresh before the last.
    [[nodiscard]] PowerSource lastPowerSource() const { return m_lastPowerSource; }
    /// How many of the timer's refreshes have copied the present adapter's details, 0 to 4.
    [[nodiscard]] qint64 adapterConnectedCounter() const { return m_adapterConnectedCounter; }
    [[nodiscard]] const QTimer &timer() const noexcept { return m_timer; }

    /// The fast refresh. The timer calls it; others may, at any time.
    Q_INVOKABLE void updatePeriodicData();
    /// The fast refresh between two of the timer's, because something has just changed. Such
    /// changes come in bursts, so that it does not count towards the time in which the adapter's
    /// details are copied.
    void updateEarly();
    /// The slow refresh: blocks while the report tool runs. A caller with something to draw first
    /// queues it.
    Q_INVOKABLE void updateStaticData();

Q_SIGNALS:
    void lastPowerSourceChanged();
    void adapterConnectedCounterChanged();

private:
    enum class Refresh { Timed, Early };

    void update(Refresh refresh);
    void updatePowerSource();
    void updateAdapterDetails();
    void storeAdapterDetails(Refresh refresh);
    void copyAdapterDetails();
    void neutralizeAbsentAdapterDetails();
    void updateChargingStatus();
    void updateTimeRemaining();
    void updateRunningTime();
    /// What the time is made of in its present quality is known.
    [[nodiscard]] bool hasNewTime() const;
    [[nodiscard]] BatteryTime availableTime() const;
    [[nodiscard]] BatteryChargingStatus chargingStatusNow() const;
    [[nodiscard]] TimeQuality timeQualityNow();
    [[nodiscard]] BatteryTime timeFromRegistry(SmartBatteryKey key) const;

    template <typename T>
    [[nodiscard]] std::optional<T> registryValue(SmartBatteryKey key) const;

    BatteryData m_data;
    BatteryDataFromIOService m_batteryIOService;
    BatteryDataFromIOPS m_batteryIOPS;
    BatteryDataFromShell m_batteryShell;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(BatteryDataProvider, PowerSource, m_lastPowerSource,
                                         PowerSource::unknown,
                                         &BatteryDataProvider::lastPowerSourceChanged)
    Q_OBJECT_BINDABLE_PROPERTY(BatteryDataProvider, qint64, m_adapterConnectedCounter,
                               &BatteryDataProvider::adapterConnectedCounterChanged)
    /// The direction of the time that the snapshot holds.
    bool m_timeIsToFull = false;
    QTimer m_timer;
    std::function<StoredData &()> m_storedData;
};

} // namespace ferrin
