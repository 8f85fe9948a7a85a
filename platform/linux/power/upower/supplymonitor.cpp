// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/supplymonitor.h"

#include "base/logging.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <libudev.h>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr auto subsystem = "power_supply";
// One turn of the event loop takes no more messages than this.
constexpr int mostMessagesATurn = 64;
// The longest state that the kernel knows has 12 letters.
constexpr qsizetype longestState = 32;

QString textOf(const char *text)
{
    return QString::fromUtf8(QByteArrayView(text)).left(longestState).trimmed();
}

/// Out of the message, which costs no file, or else out of the attribute.
std::optional<QString> valueOf(udev_device *device, const char *property, const char *attribute)
{
    const char *value = udev_device_get_property_value(device, property);
    if (!value)
        value = udev_device_get_sysattr_value(device, attribute);
    if (!value || !*value)
        return std::nullopt;
    return textOf(value);
}

} // namespace

SupplyMonitor::SupplyMonitor(QObject *parent)
    : QObject(parent)
    , m_udev(udev_new(), &udev_unref)
    , m_monitor(nullptr, &udev_monitor_unref)
{
    listen();
    if (m_notifier)
        readAll();
    else
        qCCritical(logger, "The kernel's news of the power supplies cannot be received");
}

SupplyMonitor::~SupplyMonitor() = default;

std::optional<bool> SupplyMonitor::onExternalPower() const
{
    std::optional<bool> byAdapters;
    std::optional<bool> byBatteries;
    for (const auto &[path, supply] : m_supplies) {
        if (supply.isPeripheral || !supply.state || supply.state == u"Unknown")
            continue;
        if (supply.isBattery)
            byBatteries = byBatteries.value_or(false) || supply.state != u"Discharging";
        else
            byAdapters = byAdapters.value_or(false) || supply.state != u"0";
    }
    return byAdapters ? byAdapters : byBatteries;
}

void SupplyMonitor::listen()
{
    if (!m_udev)
        return;
    // Filtered within the kernel, so that the news of other devices do not wake the process.
    m_monitor.reset(udev_monitor_new_from_netlink(m_udev.get(), "udev"));
    if (!m_monitor)
        return;
    udev_monitor *const monitor = m_monitor.get();
    if (udev_monitor_filter_add_match_subsystem_devtype(monitor, subsystem, nullptr) < 0
        || udev_monitor_enable_receiving(monitor) < 0) {
        return;
    }
    m_notifier
        = std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SupplyMonitor::receive);
}

void SupplyMonitor::readAll()
{
    m_supplies.clear();
    const Handle<udev_enumerate> all(udev_enumerate_new(m_udev.get()), &udev_enumerate_unref);
    if (!all || udev_enumerate_add_match_subsystem(all.get(), subsystem) < 0
        || udev_enumerate_scan_devices(all.get()) < 0) {
        return;
    }
    udev_list_entry *entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(all.get()))
    {
        const Handle<udev_device> device(
            udev_device_new_from_syspath(m_udev.get(), udev_list_entry_get_name(entry)),
            &udev_device_unref);
        if (device)
            take(device.get());
    }
}

void SupplyMonitor::receive()
{
    bool isDifferent = false;
    for (int messages = 0; messages < mostMessagesATurn; ++messages) {
        errno = 0;
        const Handle<udev_device> device(udev_monitor_receive_device(m_monitor.get()),
                                         &udev_device_unref);
        const bool hasOverflowed = !device && errno == ENOBUFS;
        if (hasOverflowed)
            readAll();
        else if (!device)
            break;
        isDifferent = hasOverflowed || take(device.get()) || isDifferent;
    }
    if (isDifferent)
        Q_EMIT changed();
}

std::optional<SupplyMonitor::Supply> SupplyMonitor::supplyOf(udev_device *device)
{
    const std::optional<QString> type = valueOf(device, "POWER_SUPPLY_TYPE", "type");
    if (!type)
        return std::nullopt;
    const bool isBattery = type == u"Battery" || type == u"UPS";
    return Supply {
        .isBattery = isBattery,
        .isPeripheral = valueOf(device, "POWER_SUPPLY_SCOPE", "scope") == u"Device",
        .state = isBattery ? valueOf(device, "POWER_SUPPLY_STATUS", "status")
                           : valueOf(device, "POWER_SUPPLY_ONLINE", "online"),
    };
}

bool SupplyMonitor::take(udev_device *device)
{
    const QString path = QString::fromUtf8(udev_device_get_devpath(device));
    const QByteArrayView action(udev_device_get_action(device));
    if (action == "remove")
        return remove(path);
    bool isDifferent = false;
    if (const char *before = udev_device_get_property_value(device, "DEVPATH_OLD"))
        isDifferent = remove(QString::fromUtf8(before));

    const std::optional<Supply> supply = supplyOf(device);
    if (!supply)
        return isDifferent;
    const auto [known, isNew] = m_supplies.try_emplace(path, *supply);
    // A value that cannot be read for the moment is no news.
    const bool isOther = !isNew && supply->state && supply->state != known->second.state;
    if (isOther)
        known->second = *supply;
    return isDifferent || ((isNew || isOther) && !supply->isPeripheral);
}

bool SupplyMonitor::remove(const QString &path)
{
    const auto removed = m_supplies.extract(path);
    return !removed.empty() && !removed.mapped().isPeripheral;
}

} // namespace ferrin
