// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/singleinstance.h"

#include "sources/logging.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>

#include <utility>

namespace ferrin {

SingleInstance::SingleInstance(QDBusConnection session, QString name)
    : m_session(std::move(session))
    , m_name(std::move(name))
{
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

} // namespace ferrin
