// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/singleinstance.h"

#include "base/logging.h"
#include "platform/linux/dbus/activationtoken.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

const QString tokenKey = u"activation-token"_s;
constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr int timeoutMilliseconds = 5000;

} // namespace

SingleInstance::SingleInstance(QDBusConnection session, QString name)
    : m_session(std::move(session))
    , m_name(std::move(name))
    , m_path(u'/' + QString(m_name).replace(u'.', u'/').replace(u'-', u'_'))
{
    // Before the name: whoever finds the one finds the other.
    m_session.registerObject(m_path, this, QDBusConnection::ExportScriptableInvokables);
}

SingleInstance::~SingleInstance()
{
    m_session.unregisterObject(m_path);
}

bool SingleInstance::acquire()
{
    if (!m_session.isConnected()) {
        qCCritical(logger, "Unable to connect to the session bus: %s",
                   qUtf8Printable(m_session.lastError().message()));
        return true;
    }
    const auto reply
        = m_session.interface()->registerService(m_name, QDBusConnectionInterface::DontQueueService,
                                                 QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) {
        qCCritical(logger, "Unable to own the name %s: %s", qUtf8Printable(m_name),
                   qUtf8Printable(reply.error().message()));
        return true;
    }
    return reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

void SingleInstance::activateOther()
{
    QVariantMap platformData;
    // What lets a window come to the front on Wayland was given to this start.
    if (const QByteArray token = qgetenv(tokenVariable); !token.isEmpty())
        platformData.insert(tokenKey, QString::fromUtf8(token));
    QDBusMessage call = QDBusMessage::createMethodCall(
        m_name, m_path, u"org.freedesktop.Application"_s, u"Activate"_s);
    call.setArguments({ platformData });
    call.setAutoStartService(false);
    const QDBusMessage reply = m_session.call(call, QDBus::BlockWithGui, timeoutMilliseconds);
    if (reply.type() == QDBusMessage::ErrorMessage)
        qCCritical(logger, "The program that is running did not answer: %s",
                   qUtf8Printable(reply.errorMessage()));
}

void SingleInstance::Activate(const QVariantMap &platformData)
{
    keepToken(platformData);
    Q_EMIT activated();
}

void SingleInstance::ActivateAction(const QString &name, const QVariantList &,
                                    const QVariantMap &platformData)
{
    keepToken(platformData);
    if (name == u"settings")
        Q_EMIT settingsRequested();
    else if (name == u"quit")
        Q_EMIT quitRequested();
    else if (!std::exchange(m_hasRefusedAnAction, true))
        qCCritical(logger, "There is no action \"%s\"", qUtf8Printable(name.left(64)));
}

void SingleInstance::keepToken(const QVariantMap &platformData)
{
    if (const QString token = platformData.value(tokenKey).toString(); !token.isEmpty())
        keepActivationToken(token);
}

} // namespace ferrin
