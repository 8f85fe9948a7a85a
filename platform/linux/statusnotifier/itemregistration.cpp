// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/itemregistration.h"

#include "base/logging.h"
#include "platform/linux/dbus/asynccall.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

const QString watcherName = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;

constexpr int mostRetries = 6;

QDBusMessage watcherCall(const QString &interface, const QString &method,
                         const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(watcherName, watcherPath, interface, method);
    call.setArguments(arguments);
    // Activation might start the watcher of another desktop.
    call.setAutoStartService(false);
    return call;
}

bool isAbsent(const QDBusError &error)
{
    return error.type() == QDBusError::ServiceUnknown
        || error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner";
}

} // namespace

ItemRegistration::ItemRegistration(const QDBusConnection &connection, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                watcherOwnerChanged(newOwner);
            });
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &ItemRegistration::registerItem);
}

void ItemRegistration::start(const QString &serviceName)
{
    m_serviceName = serviceName;
    m_watcher.setConnection(m_connection);
    m_watcher.addWatchedService(watcherName);
    registerItem();
    // Without a sender's name, for which Qt would block until it knows the owner.
    m_connection.connect({}, watcherPath, watcherName, u"StatusNotifierHostRegistered"_s, this,
                         SLOT(hostRegistered(QDBusMessage)));
    m_connection.connect({}, watcherPath, watcherName, u"StatusNotifierHostUnregistered"_s, this,
                         SLOT(hostUnregistered(QDBusMessage)));
}

void ItemRegistration::setFirstRetryDelay(std::chrono::milliseconds delay)
{
    m_firstRetryDelay = delay;
}

void ItemRegistration::watcherOwnerChanged(const QString &newOwner)
{
    ++m_life;
    m_owner = newOwner;
    m_retry.stop();
    m_retries = 0;
    m_isFailureLogged = false;
    setHostPresent(false);
    if (!newOwner.isEmpty())
        registerItem();
}

void ItemRegistration::callWatcher(const QDBusMessage &message,
                                   void (ItemRegistration::*answered)(QDBusMessage))
{
    callAsync(m_connection, message, this,
              [this, answered, life = m_life](const QDBusMessage &reply) {
                  if (life == m_life)
                      (this->*answered)(reply);
              });
}

void ItemRegistration::registerItem()
{
    callWatcher(watcherCall(watcherName, u"RegisterStatusNotifierItem"_s, { m_serviceName }),
                &ItemRegistration::registrationAnswered);
}

void ItemRegistration::registrationAnswered(QDBusMessage reply)
{
    if (reply.type() == QDBusMessage::ErrorMessage) {
        registrationFailed(QDBusError(reply));
        return;
    }
    m_owner = reply.service();
    m_retries = 0;
    m_isFailureLogged = false;
    Q_EMIT registered();
    askForHost();
}

void ItemRegistration::registrationFailed(const QDBusError &error)
{
    if (isAbsent(error))
        return;
    if (!std::exchange(m_isFailureLogged, true))
        qCCritical(logger, "The status area did not take the item: %s",
                   qUtf8Printable(error.message()));
    if (m_retries == mostRetries)
        return;
    m_retry.start(m_firstRetryDelay * (1 << m_retries));
    ++m_retries;
}

void ItemRegistration::askForHost()
{
    callWatcher(watcherCall(u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                            { watcherName, u"IsStatusNotifierHostRegistered"_s }),
                &ItemRegistration::hostAnswered);
}

void ItemRegistration::hostAnswered(QDBusMessage reply)
{
    const QVariant value = reply.arguments().value(0).value<QDBusVariant>().variant();
    setHostPresent(reply.type() == QDBusMessage::ReplyMessage
                   && value.metaType() == QMetaType::fromType<bool>() && value.toBool());
}

bool ItemRegistration::isFromWatcher(const QDBusMessage &signal) const
{
    return !m_owner.isEmpty() && signal.service() == m_owner;
}

void ItemRegistration::hostRegistered(const QDBusMessage &signal)
{
    // Some watchers announce to a host only the items that come after it.
    if (isFromWatcher(signal) && !m_isHostPresent)
        registerItem();
}

void ItemRegistration::hostUnregistered(const QDBusMessage &signal)
{
    if (isFromWatcher(signal))
        askForHost();
}

void ItemRegistration::setHostPresent(bool present)
{
    if (std::exchange(m_isHostPresent, present) != present)
        Q_EMIT hostPresentChanged(present);
}

} // namespace ferrin
