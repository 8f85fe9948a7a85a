// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/adapterreader.h"
#include "platform/linux/power/sysfs/chargehistory.h"
#include "platform/linux/power/sysfs/supplyreader.h"
#include "platform/linux/power/sysfs/timeestimate.h"
#include "platform/linux/power/sysfs/usbvendors.h"
#include "sources/registryservice.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

namespace ferrin {

/// The registry of a Linux machine: one service, "AppleSmartBattery", which stands for all of its
/// system batteries and for the adapter, out of the kernel's power supplies. A property that the
/// machine does not have, or that cannot be right, is invalid.
///
/// Look-ups of one turn of the event loop see one reading of sysfs, made by the first of them, so
/// that the figures of one refresh belong together and each file is read once for all of them.
/// Where no event loop runs, expire() takes its place. A reading that comes right after a change of
/// power therefore sees it, however short the time since the last.
///
/// It owns what must be remembered between readings (the last believable charge, the smoothed
/// load), starts no timer, and belongs to the main thread. It has a member for each place that it
/// reads and each thing that it remembers; what the figures are is decided by the functions that it
/// calls.
class SysfsRegistry final : public QObject, public RegistryService
{
    Q_OBJECT

public:
    using Time = std::chrono::milliseconds;

    struct Options
    {
        /// The root of sysfs.
        std::string root = "/sys";
        /// Lists of USB vendors, the first that exists counts.
        QStringList usbVendors;
        /// Monotonic time; the steady clock when empty.
        std::function<Time()> clock;
    };

    explicit SysfsRegistry(QObject *parent = nullptr);
    explicit SysfsRegistry(Options options, QObject *parent = nullptr);
    ~SysfsRegistry() override;

    [[nodiscard]] Matching serviceNameMatching(const QString &name) const override;
    /// 0 also while the machine has no system battery.
    [[nodiscard]] Handle matchingService(const Matching &matching) override;
    [[nodiscard]] QVariant createProperty(Handle service, const QString &key) override;
    int release(Handle service) override;

    /// Forgets the present reading; the next look-up makes a new one.
    void expire();

    bool event(QEvent *event) override;

private:
    struct Moment;
    struct Property;

    [[nodiscard]] static const Property *find(QStringView key);
    [[nodiscard]] std::unique_ptr<Moment> read();
    [[nodiscard]] const Moment &moment();
    [[nodiscard]] const std::vector<BatteryRecord> &records();
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
    TimeEstimate m_estimate;
    std::unique_ptr<Moment> m_moment;
    bool m_expiryPosted = false;
};

} // namespace ferrin
