// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/statusnotifierbar.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

QString itemServiceName()
{
    static int count = 0;
    return u"org.kde.StatusNotifierItem-%1-%2"_s.arg(QCoreApplication::applicationPid())
        .arg(++count);
}

} // namespace

StatusNotifierBar::StatusNotifierBar(const QDBusConnection &connection, const PanelColors &colors,
                                     HostResolver::LookUp lookUp, QObject *parent)
    : StatusBar(parent)
    , m_connection(connection)
    , m_serviceName(itemServiceName())
    , m_resolver(connection, std::move(lookUp),
                 qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':'))
    , m_item(connection, m_resolver, colors)
    , m_registration(connection)
{
    connect(&m_item, &StatusNotifierStatusItem::readersChanged, this,
            &StatusNotifierBar::readersChanged);
}

StatusNotifierBar::~StatusNotifierBar()
{
    m_connection.unregisterService(m_serviceName);
}

void StatusNotifierBar::start()
{
    const bool hasName = m_connection.registerService(m_serviceName);
    m_registration.start(hasName ? m_serviceName : m_connection.baseService());
}

} // namespace ferrin
