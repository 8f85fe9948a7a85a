// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/portalrequest.h"

#include "platform/linux/dbus/asynccall.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QUuid>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;

/// The path that the portal makes of the caller's name and the token, so that the answer can be
/// awaited before the call.
QString requestPath(const QDBusConnection &session, const QString &token)
{
    const QString sender = session.baseService().mid(1).replace(u'.', u'_');
    return u"%1/request/%2/%3"_s.arg(portalPath, sender, token);
}

} // namespace

void PortalRequest::send(const QDBusConnection &session, const QString &interface,
                         const QString &method, const QVariantList &arguments, QVariantMap options,
                         QObject *parent, Answered answered)
{
    auto *const request = new PortalRequest(session, parent, std::move(answered));
    const QString token = u"ferrin_"_s + QUuid::createUuid().toString(QUuid::Id128);
    request->listenAt(requestPath(session, token));
    options.insert(u"handle_token"_s, token);
    QDBusMessage call = QDBusMessage::createMethodCall(service, portalPath, interface, method);
    call.setArguments(arguments + QVariantList { options });
    callAsync(session, call, request, [request](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ErrorMessage)
            request->finish(reply.errorMessage());
        else
            request->listenAt(reply.arguments().value(0).value<QDBusObjectPath>().path());
    });
}

PortalRequest::PortalRequest(const QDBusConnection &session, QObject *parent, Answered answered)
    : QObject(parent)
    , m_session(session)
    , m_answered(std::move(answered))
{
    const auto *const watcher = new QDBusServiceWatcher(
        service, m_session, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(u"the portal has left the session bus"_s); });
}

/// Portals before 0.9 choose another path than the one that is made of the token.
void PortalRequest::listenAt(const QString &path)
{
    if (path.isEmpty() || path == m_path)
        return;
    m_path = path;
    m_session.connect(service, path, requestInterface, u"Response"_s, this,
                      SLOT(takeResponse(QDBusMessage)));
}

void PortalRequest::takeResponse(const QDBusMessage &message)
{
    if (message.signature() != u"ua{sv}")
        return;
    switch (message.arguments()[0].toUInt()) {
    case 0:
        finish(std::nullopt, qdbus_cast<QVariantMap>(message.arguments()[1]));
        break;
    case 1:
        finish(u"refused by the user"_s);
        break;
    default:
        finish(u"refused by the desktop"_s);
    }
}

void PortalRequest::finish(const std::optional<QString> &error, const QVariantMap &results)
{
    if (const Answered answered = std::exchange(m_answered, nullptr))
        answered(error, results);
    deleteLater();
}

} // namespace ferrin
