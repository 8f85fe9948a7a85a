// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydataprovider.h"
#include "platform/linux/power/sysfs/sysfsregistry.h"
#include "platform/linux/power/upower/powerevents.h"
#include "platform/linux/power/upower/upowerservice.h"
#include "sources/qtprocesslauncher.h"

#include <QObject>

namespace ferrin {

/// Where the battery's figures come from on Linux, and what tells that they changed: the parts that
/// the process-wide provider is made of, wired to each other. Owned by `main`, for the life of the
/// process.
class PowerPlatform final : public QObject
{
    Q_OBJECT

public:
    explicit PowerPlatform(const QDBusConnection &systemBus);

    [[nodiscard]] BatteryDataProvider::Platform parts();

    /// From now on the process-wide provider's fast refresh is also called early, once for each
    /// change of power and each waking.
    void refreshEarly();

private:
    SysfsRegistry m_registry;
    UPowerService m_upower;
    PowerEvents m_events;
    QtProcessLauncher m_launcher;
};

} // namespace ferrin
