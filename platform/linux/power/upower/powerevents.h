// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/supplymonitor.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

namespace ferrin {

/// Tells when the snapshot is worth refreshing before its time: the kernel or UPower say that the
/// adapter came or went or that a battery is in another state, or the machine woke from sleep.
/// Built once at start and owned by the application, which refreshes on changed(). Bursts are
/// folded into one. At rest it wakes nobody: its timers run once, and only after an event.
class PowerEvents final : public QObject
{
    Q_OBJECT

public:
    /// How long the parts of one event are gathered: the adapter's news come with the batteries'.
    static constexpr std::chrono::milliseconds foldingTime { 200 };
    /// When the first reads after waking, which may be stale or nothing, are made good.
    static constexpr std::chrono::milliseconds secondLookTime { 1500 };

    /// The bus is the system bus, on which logind tells of sleep.
    explicit PowerEvents(const QDBusConnection &bus, QObject *parent = nullptr);

    /// To be called with UPower's own news of the same things. `onExternalPower` is absent when
    /// UPower does not say.
    void noteUPower(std::optional<bool> onExternalPower);

Q_SIGNALS:
    /// Refresh now.
    void changed();
    /// The machine woke; changed() follows now and once more a little later.
    void woke();
    /// The adapter was plugged in or unplugged; comes before the changed() of the same event.
    void powerSourceChanged(bool onExternalPower);

private Q_SLOTS:
    void onPrepareForSleep(bool start);

private:
    void noteSupplies();
    void note(std::optional<bool> *last, std::optional<bool> onExternalPower);
    void fold();

    SupplyMonitor m_supplies;
    QTimer m_folding;
    QTimer m_secondLook;
    /// What each of the two sources said last; they may well disagree.
    std::optional<bool> m_kernelOnExternalPower;
    std::optional<bool> m_upowerOnExternalPower;
    /// What was told last.
    std::optional<bool> m_onExternalPower;
};

} // namespace ferrin
