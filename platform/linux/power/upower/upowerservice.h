// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/settlingperiod.h"
#include "platform/linux/power/upower/upowerpicture.h"
#include "sources/powersourcesservice.h"

#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace ferrin {

/// The power-sources service as UPower gives it. Built once at start and owned by the application,
/// which hands it settle() from PowerEvents and PowerEvents its powerStateChanged(). A snapshot is
/// a share of the picture that UPower's signals keep up to date, so that none of the three
/// operations ever waits for the daemon; only the constructor waits, for the very first picture and
/// not for long. It is null while there is no daemon, or none that has answered.
class UPowerService final : public QObject, public PowerSourcesService
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds firstPictureBudget { 250 };

    explicit UPowerService(const QDBusConnection &bus,
                           SteadyNow now = &std::chrono::steady_clock::now,
                           QObject *parent = nullptr);

    [[nodiscard]] Snapshot copyInfo() override;
    [[nodiscard]] std::optional<QList<SourceHandle>> copyList(const Snapshot &snapshot) override;
    [[nodiscard]] QVariant description(const Snapshot &snapshot, SourceHandle handle) override;

    /// For the next ten seconds times are told as still being estimated. `onExternalPower` is what
    /// the adapter now does; absent when the machine only woke.
    void settle(std::optional<bool> onExternalPower);

Q_SIGNALS:
    /// UPower tells of another power state of the machine or of one of its sources. The word on
    /// external power is absent when UPower has none.
    void powerStateChanged(std::optional<bool> onExternalPower);

private:
    UPowerPicture m_picture;
    SettlingPeriod m_settling;
    /// Of the present picture; null when it changed since it was last asked for.
    Snapshot m_snapshot;
};

} // namespace ferrin
