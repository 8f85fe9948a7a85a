// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/busobject.h"

#include "platform/linux/statusnotifier/hostresolver.h"

#include <QDBusError>
#include <QDBusVariant>
#include <QFile>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties"_L1;

} // namespace

BusObject::BusObject(const QDBusConnection &connection, HostResolver &resolver, const QString &path,
                     const QString &interface, QObject *parent)
    : QDBusVirtualObject(parent)
    , m_connection(connection)
    , m_resolver(resolver)
    , m_path(path)
    , m_interface(interface)
{
    m_connection.registerVirtualObject(m_path, this);
}

BusObject::~BusObject()
{
    m_connection.unregisterObject(m_path);
}

QString BusObject::introspect(const QString &path) const
{
    if (path != m_path)
        return {};
    QFile description(u":/statusnotifier/"_s + m_interface + u".xml"_s);
    return description.open(QIODevice::ReadOnly) ? QString::fromUtf8(description.readAll())
                                                 : QString();
}

bool BusObject::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    if (message.path() != m_path || message.type() != QDBusMessage::MethodCallMessage)
        return false;
    if (message.interface() == propertiesInterface)
        return handleProperties(message);
    if (!message.interface().isEmpty() && message.interface() != m_interface)
        return false;
    m_resolver.resolve(message.service(), [this, message](const HostProfile &profile) {
        const std::optional<QVariantList> result = call(message, profile);
        answer(message,
               result ? message.createReply(*result)
                      : message.createErrorReply(QDBusError::UnknownMethod,
                                                 u"No such method with such arguments: "_s
                                                     + message.member()));
    });
    return true;
}

void BusObject::answer(const QDBusMessage &message, const QDBusMessage &reply)
{
    if (message.isReplyRequired())
        m_connection.send(reply);
}

bool BusObject::handleProperties(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    const QString signature = message.signature();
    const QString interface = arguments.value(0).toString();
    const bool isOurs = interface.isEmpty() || interface == m_interface;
    if (signature.startsWith(u's') && !isOurs) {
        answer(message,
               message.createErrorReply(QDBusError::UnknownInterface,
                                        u"No such interface: "_s + interface));
    } else if (message.member() == u"Get" && signature == u"ss") {
        getProperty(message, arguments.at(1).toString());
    } else if (message.member() == u"GetAll" && signature == u"s") {
        getAllProperties(message);
    } else if (message.member() == u"Set" && signature == u"ssv") {
        answer(message,
               message.createErrorReply(QDBusError::PropertyReadOnly,
                                        u"The property cannot be written"_s));
    } else {
        answer(message,
               message.createErrorReply(QDBusError::InvalidArgs,
                                        u"No such call with such arguments"_s));
    }
    return true;
}

void BusObject::getProperty(const QDBusMessage &message, const QString &name)
{
    readProperties(message.service(), [this, message, name](const Properties &properties) {
        const QVariant value = properties(name);
        answer(message,
               value.isValid() ? message.createReply(QVariant::fromValue(QDBusVariant(value)))
                               : message.createErrorReply(QDBusError::UnknownProperty,
                                                          u"No such property: "_s + name));
    });
}

void BusObject::getAllProperties(const QDBusMessage &message)
{
    readProperties(message.service(), [this, message](const Properties &properties) {
        QVariantMap values;
        for (const QString &name : propertyNames()) {
            const QVariant value = properties(name);
            if (value.isValid())
                values.insert(name, value);
        }
        answer(message, message.createReply(values));
    });
}

void BusObject::sendSignal(const QString &name, const QVariantList &arguments)
{
    QDBusMessage signal = QDBusMessage::createSignal(m_path, m_interface, name);
    signal.setArguments(arguments);
    m_connection.send(signal);
}

void BusObject::sendSignalTo(const QString &receiver, const QString &name,
                             const QVariantList &arguments)
{
    QDBusMessage signal = QDBusMessage::createTargetedSignal(receiver, m_path, m_interface, name);
    signal.setArguments(arguments);
    m_connection.send(signal);
}

} // namespace ferrin
