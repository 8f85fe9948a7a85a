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

/// Listens to what the kernel tells of the machine's own power supplies, and says so when a supply
/// came, went, or is no longer in the state it was in: `online` of an adapter, `status` of a
/// battery. Everything else, the measurements and the supplies of peripherals above all, is passed
/// over. Owned by PowerEvents. It sleeps until the kernel speaks and reads files only at start, for
/// a supply that is new, and for a message that lacks the value.
class SupplyMonitor final : public QObject
{
    Q_OBJECT

public:
    explicit SupplyMonitor(QObject *parent = nullptr);
    ~SupplyMonitor() override;

    /// Whether some adapter is online or, on a machine that shows none, some battery is not being
    /// drawn upon. Absent while there is nothing to tell it by.
    [[nodiscard]] std::optional<bool> onExternalPower() const;

Q_SIGNALS:
    /// Once for each message that made a difference.
    void changed();

private:
    struct Supply
    {
        bool isBattery = false;
        /// Mice, pens and the like.
        bool isPeripheral = false;
        /// A battery's `status`, anything else's `online`; absent when it cannot be read.
        std::optional<QString> state;
    };
    template <typename Object>
    using Handle = std::unique_ptr<Object, Object *(*)(Object *)>;

    void listen();
    void readAll();
    void receive();
    /// Absent for a supply that does not even say what it is.
    [[nodiscard]] static std::optional<Supply> supplyOf(udev_device *device);
    bool take(udev_device *device);
    bool remove(const QString &path);

    Handle<udev> m_udev;
    Handle<udev_monitor> m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// By the kernel's path of the supply.
    std::map<QString, Supply> m_supplies;
};

} // namespace ferrin
