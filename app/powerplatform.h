// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydataprovider.h"
#include "platform/linux/power/events/powerevents.h"
#include "platform/linux/power/powersources/powersources.h"
#include "platform/linux/power/sysfs/sysfsregistry.h"
#include "platform/linux/power/upower/upowerservice.h"
#include "sources/qtprocesslauncher.h"

#include <QObject>

namespace ferrin {

/// The sources of the battery's figures on Linux and of the events that they changed, connected to
/// each other: what the process-wide provider is made of. Owned by `main`, for the life of the
/// process.
class PowerPlatform final : public QObject
{
    Q_OBJECT

public:
    explicit PowerPlatform(const QDBusConnection &systemBus);

    [[nodiscard]] BatteryDataProvider::Platform parts();

    /// From now on the process-wide provider also refreshes as soon as a supply changes or the
    /// machine wakes, not only when its timer fires.
    void refreshEarly();

private:
    SysfsRegistry m_registry;
    UPowerService m_upower;
    PowerSources m_sources { m_upower, m_registry };
    PowerEvents m_events;
    QtProcessLauncher m_launcher;
};

} // namespace ferrin
