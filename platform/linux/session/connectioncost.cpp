// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/connectioncost.h"

#include "platform/linux/dbus/asynccall.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFile>

#include <algorithm>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.NetworkManager"_s;
const QString path = u"/org/freedesktop/NetworkManager"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

// https://networkmanager.dev/docs/api/latest/nm-dbus-types.html#NMMetered
constexpr uint meteredYes = 1;
constexpr uint meteredGuessedYes = 3;

constexpr qsizetype interfaceOfIpv4 = 0;
constexpr qsizetype interfaceOfIpv6 = 9;

/// Whether a row of the table begins or goes on with the texts of a default route, on a device that
/// leads somewhere.
template <typename Matches>
bool hasRow(const QString &table, qsizetype interface, const Matches &matches)
{
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> rows = file.readAll().split('\n');
    return std::ranges::any_of(rows, [&](const QByteArray &row) {
        const QList<QByteArray> cells = row.simplified().split(' ');
        return matches(cells) && cells.value(interface) != "lo";
    });
}

} // namespace

ConnectionCost::ConnectionCost(const QDBusConnection &systemBus, QString routes)
    : m_bus(systemBus)
    , m_routes(std::move(routes))
{
}

void ConnectionCost::ask(std::function<void(NetworkReach)> answer)
{
    if (!hasDefaultRoute()) {
        answer(NetworkReach::none);
        return;
    }
    if (!m_bus.isConnected()) {
        answer(NetworkReach::free);
        return;
    }
    QDBusMessage call
        = QDBusMessage::createMethodCall(service, path, propertiesInterface, u"Get"_s);
    call << service << u"Metered"_s;
    call.setAutoStartService(false);
    callAsync(m_bus, call, this, [answer = std::move(answer)](const QDBusMessage &message) {
        const QDBusReply<QDBusVariant> reply = message;
        const uint metered = reply.isValid() ? reply.value().variant().toUInt() : 0;
        answer(metered == meteredYes || metered == meteredGuessedYes ? NetworkReach::metered
                                                                     : NetworkReach::free);
    });
}

bool ConnectionCost::hasDefaultRoute() const
{
    const auto isDefaultOfIpv4 = [](const QList<QByteArray> &cells) {
        return cells.value(1) == "00000000" && cells.value(7) == "00000000";
    };
    const auto isDefaultOfIpv6 = [](const QList<QByteArray> &cells) {
        return cells.value(0) == QByteArray(32, '0') && cells.value(1) == "00";
    };
    return hasRow(m_routes + u"/route"_s, interfaceOfIpv4, isDefaultOfIpv4)
        || hasRow(m_routes + u"/ipv6_route"_s, interfaceOfIpv6, isDefaultOfIpv6);
}

} // namespace ferrin
