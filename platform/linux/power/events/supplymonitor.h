// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QString>

#include <map>
#include <memory>
#include <optional>

class QSocketNotifier;
struct udev;
struct udev_device;
struct udev_monitor;

namespace ferrin {

/// Listens to the kernel's events for the power supplies of the machine itself and reports when one
/// was added, removed, or changed its state: `online` or `current_max` of an adapter, `status` of a
/// battery. Everything else is ignored, above all measurements and what SupplyReader does not read
/// either: the supplies of peripherals, and UPSs. Owned by PowerEvents. It sleeps until the kernel
/// sends an event, and reads files only at start, for a new supply, and for an event that lacks the
/// value.
class SupplyMonitor final : public QObject
{
    Q_OBJECT

public:
    explicit SupplyMonitor(QObject *parent = nullptr);
    ~SupplyMonitor() override;

Q_SIGNALS:
    /// Once for each turn of the event loop in which events made a difference.
    void changed();

private:
    template <typename Object>
    using Handle = std::unique_ptr<Object, Object *(*)(Object *)>;

    void listen();
    void readAll();
    void receive();
    bool update(udev_device *device);
    bool remove(const QString &path);

    Handle<udev> m_udev;
    Handle<udev_monitor> m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// The state of each supply by its kernel path: a battery's `status`, an adapter's `online`
    /// and `current_max`; absent when it cannot be read.
    std::map<QString, std::optional<QString>> m_states;
};

} // namespace ferrin
