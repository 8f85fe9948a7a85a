// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerservice.h"

#include "platform/linux/power/upower/upowerdescription.h"

#include <QVariantMap>

#include <numeric>
#include <utility>

namespace ferrin {

namespace {

struct PowerSources
{
    QList<UPowerDevice> devices;
    QList<QVariantMap> descriptions;
    std::optional<bool> externalPower;
};

std::shared_ptr<const PowerSources> powerSourcesOf(const UPowerClient &client,
                                                   std::optional<bool> externalPower)
{
    auto sources = std::make_shared<PowerSources>();
    sources->externalPower = externalPower;
    sources->devices = powerSourcesInOrder(client.devices(), externalPower);
    for (const UPowerDevice &device : std::as_const(sources->devices))
        sources->descriptions.append(describe(device, externalPower));
    return sources;
}

const PowerSources *sourcesIn(const PowerSourcesService::Snapshot &snapshot)
{
    return static_cast<const PowerSources *>(snapshot.get());
}

} // namespace

UPowerService::UPowerService(const QDBusConnection &bus, ExternalPower externalPower, SteadyNow now,
                             QObject *parent)
    : QObject(parent)
    , m_client(bus, now)
    , m_settling(std::move(now))
    , m_externalPower(std::move(externalPower))
{
    connect(&m_client, &UPowerClient::changed, this, [this] { m_snapshot.reset(); });
    connect(&m_client, &UPowerClient::powerStateChanged, this, &UPowerService::powerStateChanged);
    m_client.waitForFirstReplies(firstReplyBudget);
}

PowerSourcesService::Snapshot UPowerService::copyInfo()
{
    m_client.logOverdueReplies();
    updateExternalPower();
    if (!m_client.isKnown())
        return {};
    if (!m_snapshot)
        m_snapshot = powerSourcesOf(m_client, m_lastExternalPower);
    return m_snapshot;
}

std::optional<QList<PowerSourcesService::SourceHandle>>
UPowerService::copyList(const Snapshot &snapshot)
{
    if (!snapshot)
        return std::nullopt;
    QList<SourceHandle> handles(sourcesIn(snapshot)->devices.size());
    std::iota(handles.begin(), handles.end(), 0);
    return handles;
}

QVariant UPowerService::description(const Snapshot &snapshot, SourceHandle handle)
{
    const PowerSources *sources = sourcesIn(snapshot);
    if (!sources || handle < 0 || handle >= sources->devices.size())
        return {};
    const QVariantMap &description = sources->descriptions.at(handle);
    if (!m_settling.isRunning())
        return description;
    return describeSettling(description,
                            settlingFlowOf(sources->devices.at(handle), sources->externalPower,
                                           m_settling.externalPower()));
}

void UPowerService::settleAfterWaking()
{
    m_settling.begin(std::nullopt);
}

void UPowerService::updateExternalPower()
{
    const std::optional<bool> external = m_externalPower();
    if (!external || external == m_lastExternalPower)
        return;
    // The first answer is no change.
    if (m_lastExternalPower)
        m_settling.begin(external);
    m_lastExternalPower = external;
    m_snapshot.reset();
}

} // namespace ferrin
