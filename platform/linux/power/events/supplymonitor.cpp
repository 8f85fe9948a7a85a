// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/events/supplymonitor.h"

#include "base/logging.h"
#include "platform/linux/power/sysfs/powersupply.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <libudev.h>
#include <string_view>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr auto subsystem = "power_supply";
// One turn of the event loop takes no more messages than this.
constexpr int maxMessagesPerTurn = 64;
// The kernel's longest value, "Not charging", has 12 letters.
constexpr qsizetype maxStateLength = 32;

/// From the message, which costs no file access, or else from the attribute. Empty when neither has
/// it.
std::string_view valueOf(udev_device *device, const char *property, const char *attribute)
{
    const char *value = udev_device_get_property_value(device, property);
    if (!value)
        value = udev_device_get_sysattr_value(device, attribute);
    return value ? std::string_view(value) : std::string_view();
}

std::optional<QString> stateOf(udev_device *device, SupplyType type)
{
    const bool isBattery = type == SupplyType::Battery;
    const std::string_view value = isBattery ? valueOf(device, "POWER_SUPPLY_STATUS", "status")
                                             : valueOf(device, "POWER_SUPPLY_ONLINE", "online");
    if (value.empty())
        return std::nullopt;
    const QString state = QString::fromUtf8(QByteArrayView(value)).left(maxStateLength).trimmed();
    if (isBattery)
        return state;
    // A USB-C contract is made some seconds after the adapter came online.
    const std::string_view most = valueOf(device, "POWER_SUPPLY_CURRENT_MAX", "current_max");
    return state + u' ' + QString::fromUtf8(QByteArrayView(most)).left(maxStateLength).trimmed();
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
        qCCritical(logger,
                   "Cannot receive the kernel's events for power supplies; changes are seen at the "
                   "next refresh");
}

SupplyMonitor::~SupplyMonitor() = default;

void SupplyMonitor::listen()
{
    if (!m_udev)
        return;
    // Filtered in the kernel, so that events of other devices do not wake the process.
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
    m_states.clear();
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
            update(device.get());
    }
}

void SupplyMonitor::receive()
{
    bool isDifferent = false;
    for (int messages = 0; messages < maxMessagesPerTurn; ++messages) {
        errno = 0;
        const Handle<udev_device> device(udev_monitor_receive_device(m_monitor.get()),
                                         &udev_device_unref);
        const bool hasOverflowed = !device && errno == ENOBUFS;
        if (hasOverflowed)
            readAll();
        else if (!device)
            break;
        isDifferent = hasOverflowed || update(device.get()) || isDifferent;
    }
    if (isDifferent)
        Q_EMIT changed();
}

bool SupplyMonitor::update(udev_device *device)
{
    const QString path = QString::fromUtf8(udev_device_get_devpath(device));
    const QByteArrayView action(udev_device_get_action(device));
    if (action == "remove")
        return remove(path);
    bool isDifferent = false;
    if (const char *before = udev_device_get_property_value(device, "DEVPATH_OLD"))
        isDifferent = remove(QString::fromUtf8(before));

    const SupplyType type = supplyTypeOf(valueOf(device, "POWER_SUPPLY_TYPE", "type"));
    if (!powersSystem(type, valueOf(device, "POWER_SUPPLY_SCOPE", "scope")))
        return isDifferent;
    const std::optional<QString> state = stateOf(device, type);
    const auto [known, isNew] = m_states.try_emplace(path, state);
    // A value that cannot be read for the moment is no change.
    const bool hasChanged = !isNew && state && state != known->second;
    if (hasChanged)
        known->second = state;
    return isDifferent || isNew || hasChanged;
}

bool SupplyMonitor::remove(const QString &path)
{
    return m_states.erase(path) > 0;
}

} // namespace ferrin
