// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/updateplatform.h"

#include "app/installation.h"
#include "core/batterydataprovider.h"
#include "platform/linux/session/desktopnames.h"
#include "state/bundle.h"
#include "state/shareddefaults.h"
#include "updates/packagefile.h"

namespace ferrin {

namespace {

BatteryReserve batteryReserve()
{
    const BatteryData &battery = *BatteryDataProvider::shared().data();
    return { battery.charge(), battery.chargingStatus() == BatteryChargingStatus::discharging };
}

} // namespace

UpdatePlatform::UpdatePlatform(const QDBusConnection &systemBus)
    : m_engine(privateFolder() + QStringLiteral("/ferrin-update-helper"))
    , m_network(systemBus)
    , m_installer(m_starter, currentDesktopNames())
{
}

Updater::Parts UpdatePlatform::parts()
{
    return { .feed = UpdateFeed::ofThisBuild(),
             .installedVersion = Bundle::main().shortVersion(),
             .folder = downloadFolder(),
             .store = sharedDefaults(),
             .engine = m_engine,
             .installer = m_installer,
             .network = m_network,
             .battery = &batteryReserve };
}

} // namespace ferrin
