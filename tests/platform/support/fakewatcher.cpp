// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/support/fakewatcher.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

const QString name = u"org.kde.StatusNotifierWatcher"_s;
const QString path = u"/StatusNotifierWatcher"_s;

} // namespace

FakeWatcher::FakeWatcher(const QDBusConnection &connection)
    : m_connection(connection)
{
    m_connection.registerVirtualObject(path, this);
}

FakeWatcher::~FakeWatcher()
{
    disappear();
    m_connection.unregisterObject(path);
}

void FakeWatcher::appear()
{
    m_connection.registerService(name);
}

void FakeWatcher::disappear()
{
    m_connection.unregisterService(name);
}

void FakeWatcher::setHost(bool present)
{
    m_hasHost = present;
    m_connection.send(QDBusMessage::createSignal(path, name,
                                                 present ? u"StatusNotifierHostRegistered"_s
                                                         : u"StatusNotifierHostUnregistered"_s));
}

QStringList FakeWatcher::takeRegistered()
{
    return std::exchange(m_registered, {});
}

bool FakeWatcher::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    if (message.member() == u"Get") {
        const QVariant value = m_manner == Manner::Babbling ? QVariant(u"yes"_s) : m_hasHost;
        connection.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
        return true;
    }
    if (message.member() != u"RegisterStatusNotifierItem")
        return false;
    m_registered.append(message.arguments().value(0).toString());
    switch (m_manner) {
    case Manner::Polite:
    case Manner::Babbling:
        connection.send(message.createReply());
        break;
    case Manner::Refusing:
        connection.send(message.createErrorReply(QDBusError::AccessDenied, u"not today"_s));
        break;
    case Manner::Silent:
        break;
    case Manner::Dying:
        disappear();
        break;
    }
    return true;
}

} // namespace ferrin::test
