// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/settingsportal.h"

#include "platform/linux/dbus/asynccall.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;

// The portal's Read wraps the variant of its reply in another one, its signal does not.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

SettingsPortal::SettingsPortal(const QDBusConnection &session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{
    if (!m_session.isConnected())
        return;
    m_session.connect(service, path, interface, u"SettingChanged"_s, this,
                      SLOT(settingChanged(QDBusMessage)));
    const auto *const watcher = new QDBusServiceWatcher(
        service, m_session, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &SettingsPortal::readAll);
}

void SettingsPortal::watch(const QString &group, const QString &key)
{
    m_watched.insert(group, key);
    read(group, key);
}

void SettingsPortal::readAll()
{
    for (auto it = m_watched.cbegin(); it != m_watched.cend(); ++it)
        read(it.key(), it.value());
}

void SettingsPortal::read(const QString &group, const QString &key)
{
    if (!m_session.isConnected())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call << group << key;
    callAsync(m_session, call, this, [this, group, key](const QDBusMessage &message) {
        const QDBusReply<QDBusVariant> reply = message;
        if (reply.isValid())
            Q_EMIT valueChanged(group, key, unwrapped(reply.value().variant()));
    });
}

void SettingsPortal::settingChanged(const QDBusMessage &message)
{
    if (message.signature() != u"ssv")
        return;
    const QVariantList arguments = message.arguments();
    const QString group = arguments[0].toString();
    const QString key = arguments[1].toString();
    if (m_watched.contains(group, key))
        Q_EMIT valueChanged(group, key, unwrapped(arguments[2]));
}

} // namespace ferrin
