// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/support/buspeer.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusVariant>
#include <QTest>

#include <utility>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

} // namespace

BusPeer::BusPeer(const QDBusConnection &connection)
    : m_connection(connection)
{
}

QDBusMessage BusPeer::ask(const QString &service, const QString &path, const QString &interface,
                          const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    const QDBusPendingCallWatcher pending(m_connection.asyncCall(call));
    const bool answered = QTest::qWaitFor([&pending] { return pending.isFinished(); }, 10'000);
    return answered ? pending.reply() : QDBusMessage();
}

QVariant BusPeer::property(const QString &service, const QString &path, const QString &interface,
                           const QString &name)
{
    const QDBusMessage reply
        = ask(service, path, propertiesInterface, u"Get"_s, { interface, name });
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

QVariantMap BusPeer::allProperties(const QString &service, const QString &path,
                                   const QString &interface)
{
    const QDBusReply<QVariantMap> reply
        = ask(service, path, propertiesInterface, u"GetAll"_s, { interface });
    return reply.value();
}

void BusPeer::listen(const QString &service, const QString &path, const QString &interface,
                     const QStringList &signalNames)
{
    for (const QString &name : signalNames)
        m_connection.connect(service, path, interface, name, this, SLOT(hear(QDBusMessage)));
}

QStringList BusPeer::takeSignals()
{
    return std::exchange(m_heard, {});
}

void BusPeer::hear(const QDBusMessage &message)
{
    m_heard.append(message.member());
    m_lastArguments = message.arguments();
}

void settle(BusPeer &peer)
{
    // Timers of no duration first, then what they sent, which the bus delivers in order.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        peer.ask(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s,
                 u"GetId"_s);
    }
}

} // namespace ferrin::test
