// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktopnotice.h"

#include "base/logging.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;
/// A click on the notification itself.
const QString defaultAction = u"default"_s;
const QString openAction = u"open"_s;
constexpr int desktopsOwnTimeout = -1;

QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(service, path, service, method);
}

} // namespace

DesktopNotice::DesktopNotice(const QDBusConnection &sessionBus)
    : m_bus(sessionBus)
{
}

void DesktopNotice::show(const QString &title, const QString &text, std::function<void()> pressed)
{
    m_pressed = std::move(pressed);
    send(title, text);
}

void DesktopNotice::withdraw()
{
    m_pressed = nullptr;
    if (m_id == 0)
        return;
    QDBusMessage message = callOf(u"CloseNotification"_s);
    message << std::exchange(m_id, 0);
    m_bus.asyncCall(message);
}

void DesktopNotice::send(const QString &title, const QString &text)
{
    QDBusMessage message = callOf(u"Notify"_s);
    const QVariantMap hints { { u"desktop-entry"_s, u"org.ferrin.Ferrin"_s } };
    message << u"Ferrin"_s << m_id << u"org.ferrin.Ferrin"_s << title << text
            << QStringList { defaultAction, u"Show"_s, openAction, u"Show"_s } << hints
            << desktopsOwnTimeout;
    const auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<uint> reply = *finished;
                if (reply.isError()) {
                    qCInfo(logger, "The desktop shows no notification: %s",
                           qUtf8Printable(reply.error().message().simplified()));
                    return;
                }
                subscribe(reply.reply().service());
                m_id = reply.value();
                // It was withdrawn before it was there.
                if (!m_pressed)
                    withdraw();
            });
}

void DesktopNotice::subscribe(const QString &owner)
{
    if (owner == m_owner)
        return;
    m_owner = owner;
    m_bus.connect(owner, path, service, u"ActivationToken"_s, this, SLOT(takeToken(uint, QString)));
    m_bus.connect(owner, path, service, u"ActionInvoked"_s, this, SLOT(takeAction(uint, QString)));
    m_bus.connect(owner, path, service, u"NotificationClosed"_s, this,
                  SLOT(takeClosing(uint, uint)));
}

void DesktopNotice::takeToken(uint id, const QString &token)
{
    // The window that opens next may take the focus with it.
    if (id == m_id && m_id != 0)
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

void DesktopNotice::takeAction(uint id, const QString &action)
{
    if (id == m_id && m_id != 0 && m_pressed && (action == defaultAction || action == openAction))
        std::exchange(m_pressed, nullptr)();
}

void DesktopNotice::takeClosing(uint id, uint)
{
    if (id == m_id)
        m_id = 0;
}

} // namespace ferrin
