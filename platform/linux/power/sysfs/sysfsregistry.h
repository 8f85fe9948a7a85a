// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/steadynow.h"
#include "platform/linux/power/forecast/forecast.h"
#include "platform/linux/power/sysfs/adapterreader.h"
#include "platform/linux/power/sysfs/chargehistory.h"
#include "platform/linux/power/sysfs/supplyreader.h"
#include "platform/linux/power/sysfs/usbvendors.h"
#include "sources/registryservice.h"

#include <QObject>

#include <memory>

namespace ferrin {

/// CLOCK_BOOTTIME.
[[nodiscard]] std::chrono::nanoseconds sleeplessClock();

/// The registry of a Linux machine: one service, "AppleSmartBattery", which stands for all system
/// batteries and the adapter. Its properties are computed from the kernel's power supplies. A
/// property that the machine does not have, or that cannot be right, is invalid.
///
/// All look-ups in one turn of the event loop share one reading of sysfs, which the first of them
/// makes: the figures of one refresh belong together, and each file is read once. Without an event
/// loop, expire() ends a reading.
///
/// It owns what must be kept between readings (the last plausible charge, the smoothed load),
/// starts no timer, and belongs to the main thread. It has a member for each place that it reads
/// and for each thing that it keeps; the figures are decided by the functions that it calls.
class SysfsRegistry final : public QObject, public RegistryService
{
    Q_OBJECT

public:
    struct Options
    {
        /// The root of sysfs.
        std::string root = "/sys";
        /// Lists of USB vendors (usb.ids); the first that exists is used.
        QStringList usbVendors;
        SteadyNow now = &std::chrono::steady_clock::now;
        /// Like the steady clock, but goes on while the machine sleeps.
        std::function<std::chrono::nanoseconds()> elapsed = &sleeplessClock;
        /// Where it is kept what was learned of the batteries; empty for nowhere.
        QString memoryPath = {};
    };

    explicit SysfsRegistry(QObject *parent = nullptr);
    explicit SysfsRegistry(Options options, QObject *parent = nullptr);
    ~SysfsRegistry() override;

    [[nodiscard]] Matching serviceNameMatching(const QString &name) const override;
    /// 0 on a machine that neither has a system battery nor is made to have one.
    [[nodiscard]] Handle matchingService(const Matching &matching) override;
    [[nodiscard]] QVariant createProperty(Handle service, const QString &key) override;
    int release(Handle service) override;

    /// Whether the machine gets power from outside, by the current reading; see externalpower.h.
    [[nodiscard]] std::optional<bool> externalPower();

    /// Discards the current reading; the next look-up makes a new one.
    void expire();

    bool event(QEvent *event) override;

private:
    struct Moment;
    struct Property;

    [[nodiscard]] static const Property *find(QStringView key);
    [[nodiscard]] std::unique_ptr<Moment> read();
    [[nodiscard]] const Moment &moment();
    [[nodiscard]] const std::vector<BatteryRecord> &records();
    void forecast(Moment &moment, const std::vector<Pack> &packs);
    void learnKeys(const std::vector<BatterySupply> &batteries);
    [[nodiscard]] QVariant adapter();
    [[nodiscard]] QVariant time(std::optional<Direction> wanted);
    [[nodiscard]] QVariant cycleCount();
    [[nodiscard]] QVariant designCapacity();
    [[nodiscard]] QVariant temperature();
    [[nodiscard]] QVariant serial();

    Options m_options;
    SupplyReader m_supplies;
    AdapterReader m_adapters;
    UsbVendors m_vendors;
    ChargeHistory m_history;
    Forecast m_forecast;
    /// Of the batteries of the last reading, in their order.
    std::vector<std::string> m_names;
    std::vector<std::string> m_keys;
    std::unique_ptr<Moment> m_moment;
    bool m_expiryPosted = false;
};

} // namespace ferrin
