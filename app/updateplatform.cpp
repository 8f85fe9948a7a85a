// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/updateplatform.h"

#include "core/batterydataprovider.h"
#include "platform/linux/sandbox/sandbox.h"
#include "state/shareddefaults.h"

#include <QFileInfo>

namespace ferrin {

namespace {

BatteryReserve batteryReserve()
{
    const BatteryData &battery = *BatteryDataProvider::shared().data();
    return { battery.charge(), battery.chargingStatus() == BatteryChargingStatus::discharging };
}

} // namespace

UpdatePlatform::UpdatePlatform(const QDBusConnection &systemBus, const QDBusConnection &sessionBus,
                               const QString &program)
    : m_engine({ .bus = systemBus,
                 .program = QFileInfo(program).canonicalFilePath(),
                 .isSandboxed = isInSandbox() })
    , m_network(systemBus)
    , m_notice(sessionBus)
{
}

Updater::Parts UpdatePlatform::parts()
{
    return { .store = sharedDefaults(),
             .engine = m_engine,
             .notice = m_notice,
             .network = m_network,
             .battery = &batteryReserve };
}

} // namespace ferrin
