// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/powerplatform.h"

#include "app/installation.h"
#include "core/storeddata.h"

namespace ferrin {

PowerPlatform::PowerPlatform(const QDBusConnection &systemBus)
    : m_upower(systemBus, [this] { return m_registry.externalPower(); })
    , m_events(systemBus)
    , m_launcher(privateFolder())
{
    connect(&m_upower, &UPowerService::powerStateChanged, &m_events, &PowerEvents::scheduleChanged);
    connect(&m_events, &PowerEvents::woke, &m_upower, &UPowerService::settleAfterWaking);
}

BatteryDataProvider::Platform PowerPlatform::parts()
{
    return { .registry = m_registry,
             .powerSources = m_sources,
             .processLauncher = m_launcher,
             .storedData = &StoredData::shared };
}

void PowerPlatform::refreshEarly()
{
    connect(&m_events, &PowerEvents::changed, this, [this] {
        m_registry.expire();
        BatteryDataProvider::shared().updateEarly();
    });
}

} // namespace ferrin
