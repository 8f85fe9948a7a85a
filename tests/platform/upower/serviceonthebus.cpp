// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/upower/serviceonthebus.h"

using namespace Qt::StringLiterals;

namespace ferrin::test {

std::optional<QList<QVariantMap>> pictureOf(UPowerService *service)
{
    const PowerSourcesService::Snapshot snapshot = service->copyInfo();
    const auto handles = service->copyList(snapshot);
    if (!handles)
        return std::nullopt;
    QList<QVariantMap> descriptions;
    for (const PowerSourcesService::SourceHandle handle : *handles)
        descriptions.append(service->description(snapshot, handle).toMap());
    return descriptions;
}

QStringList namesOf(UPowerService *service)
{
    const auto descriptions = pictureOf(service);
    if (!descriptions)
        return { u"none"_s };
    QStringList names;
    for (const QVariantMap &description : *descriptions)
        names.append(description.value(u"Name"_s).toString());
    return names;
}

QVariant factOf(UPowerService *service, const QString &key)
{
    return pictureOf(service).value_or(QList<QVariantMap>()).value(0).value(key);
}

QString connected()
{
    return u"info: Connection to UPower successful"_s;
}

QStringList dell()
{
    return { u"DELL 70N2F95"_s };
}

QStringList none()
{
    return { u"none"_s };
}

void ServiceOnTheBus::init()
{
    m_log.emplace();
    m_lines.clear();
    m_bus = std::make_unique<PrivateBus>();
}

void ServiceOnTheBus::cleanup()
{
    m_daemon.reset();
    m_bus.reset();
    m_log.reset();
}

void ServiceOnTheBus::startDaemon()
{
    m_daemon = std::make_unique<FakeUPower>(m_bus->address(), m_bus->connect());
}

const QStringList &ServiceOnTheBus::allLines()
{
    return m_lines += m_log->take();
}

std::unique_ptr<UPowerService> ServiceOnTheBus::makeService()
{
    return std::make_unique<UPowerService>(
        m_bus->connect(), [this] { return m_externalPower; }, [this] { return m_time; });
}

} // namespace ferrin::test
