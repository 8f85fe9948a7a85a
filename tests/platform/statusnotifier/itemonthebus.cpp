// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/statusnotifier/itemonthebus.h"

#include "tests/platform/support/contents.h"

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

const QStringList allSignals { u"NewIcon"_s, u"NewToolTip"_s, u"NewTitle"_s, u"NewStatus"_s,
                               u"XAyatanaNewLabel"_s };

} // namespace

void ItemOnTheBus::init()
{
    m_bus = std::make_unique<PrivateBus>();
    m_connection = m_bus->connect();
    m_service = m_connection.baseService();
    m_lookUps = 0;
    m_resolver = std::make_unique<HostResolver>(m_connection, [this](uint) {
        ++m_lookUps;
        return HostProcess { .name = m_process };
    });
    m_colors = std::make_unique<PanelColors>();
    m_item = std::make_unique<StatusNotifierItem>(m_connection, *m_resolver, *m_colors);
    // No test sees a repetition that it does not ask for.
    m_item->setLabelRepeatDelay(std::chrono::hours(1));
    m_item->setContent(dischargingAt(37, u"4:29"_s));
}

void ItemOnTheBus::cleanup()
{
    m_hosts.clear();
    m_item.reset();
    m_colors.reset();
    m_resolver.reset();
    m_bus.reset();
}

BusPeer *ItemOnTheBus::newHost(const QString &process)
{
    m_process = process;
    m_hosts.push_back(std::make_unique<BusPeer>(m_bus->connect()));
    BusPeer *const host = m_hosts.back().get();
    host->listen(m_service, itemPath, itemInterface, allSignals);
    read(host, u"Id"_s);
    return host;
}

QVariant ItemOnTheBus::read(BusPeer *host, const QString &name)
{
    return host->property(m_service, itemPath, itemInterface, name);
}

} // namespace ferrin::test
