// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/settlingperiod.h"
#include "platform/linux/power/upower/upowerclient.h"
#include "sources/powersourcesservice.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <optional>

namespace ferrin {

/// The power-sources service on top of UPower. Built once at start and owned by the application. A
/// snapshot is made from UPowerClient's copy of the devices, so none of the three operations waits
/// for the daemon; only the constructor waits, for at most firstReplyBudget. It is null while there
/// is no daemon, or none that has replied.
///
/// When external power was connected or disconnected since the last snapshot, times are reported as
/// still being estimated for the length of a SettlingPeriod.
class UPowerService final : public QObject, public PowerSourcesService
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds firstReplyBudget { 250 };

    /// Whether power is external, absent when that is not known: the kernel's answer, which UPower
    /// does not always share. Called for each snapshot, never from the constructor.
    using ExternalPower = std::function<std::optional<bool>()>;

    UPowerService(const QDBusConnection &bus, ExternalPower externalPower,
                  SteadyNow now = &std::chrono::steady_clock::now, QObject *parent = nullptr);

    [[nodiscard]] Snapshot copyInfo() override;
    [[nodiscard]] std::optional<QList<SourceHandle>> copyList(const Snapshot &snapshot) override;
    [[nodiscard]] QVariant description(const Snapshot &snapshot, SourceHandle handle) override;

    /// To be called when the machine woke: begins a settling period.
    void settleAfterWaking();

Q_SIGNALS:
    /// UPower reports another state of a source, or a source was added or removed.
    void powerStateChanged();

private:
    void updateExternalPower();

    UPowerClient m_client;
    SettlingPeriod m_settling;
    ExternalPower m_externalPower;
    /// The last answer that was not absent.
    std::optional<bool> m_lastExternalPower;
    /// Null when something changed since the last one was made.
    Snapshot m_snapshot;
};

} // namespace ferrin
