// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/windowmanagersocket.h"

#include <QCoreApplication>
#include <QFile>

#include <xcb/xcb.h>

namespace ferrin {

WindowManagerSocket::WindowManagerSocket(QObject *parent)
    : QObject(parent)
{
    if (!m_x11)
        return;
    m_property = m_x11.atom("I3_SOCKET_PATH");
    // Qt has asked for the changes of the root window's properties already.
    QCoreApplication::instance()->installNativeEventFilter(this);
}

WindowManagerSocket::~WindowManagerSocket() = default;

QString WindowManagerSocket::path() const
{
    if (const QString sway = qEnvironmentVariable("SWAYSOCK"); !sway.isEmpty() || !m_x11)
        return sway;
    constexpr quint32 longestWords = 64;
    const auto request = xcb_get_property(m_x11.get(), 0, m_x11.rootWindow(), m_property,
                                          XCB_GET_PROPERTY_TYPE_ANY, 0, longestWords);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_x11.get(), request, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return QFile::decodeName(
        QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                   xcb_get_property_value_length(reply.get())));
}

bool WindowManagerSocket::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (property->atom == m_property && property->window == m_x11.rootWindow())
        Q_EMIT renewed();
    return false;
}

} // namespace ferrin
