// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/xembed/trayowner.h"

#include <QCoreApplication>

#include <utility>
#include <xcb/xcb.h>

namespace ferrin {

TrayOwner::TrayOwner(QObject *parent)
    : QObject(parent)
{
    if (!m_x11)
        return;
    const QByteArray selection = "_NET_SYSTEM_TRAY_S" + QByteArray::number(m_x11.screenNumber());
    m_selection = m_x11.atom(selection.constData());
    m_manager = m_x11.atom("MANAGER");
    m_orientation = m_x11.atom("_NET_SYSTEM_TRAY_ORIENTATION");
    QCoreApplication::instance()->installNativeEventFilter(this);
    refresh();
}

TrayOwner::~TrayOwner() = default;

void TrayOwner::refresh()
{
    if (!m_x11)
        return;
    const quint32 owner = ownerToFollow();
    if (std::exchange(m_window, owner) == owner)
        return;
    readOrientation();
    Q_EMIT changed();
}

void TrayOwner::readOrientation()
{
    constexpr quint32 vertical = 1;
    bool isStanding = false;
    if (m_window != XCB_WINDOW_NONE) {
        const auto request
            = xcb_get_property(m_x11.get(), 0, m_window, m_orientation, XCB_ATOM_CARDINAL, 0, 1);
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_x11.get(), request, nullptr));
        isStanding = reply && xcb_get_property_value_length(reply.get()) == int(sizeof(quint32))
            && *static_cast<const quint32 *>(xcb_get_property_value(reply.get())) == vertical;
    }
    if (std::exchange(m_isStanding, isStanding) != isStanding)
        Q_EMIT standingChanged();
}

quint32 TrayOwner::ownerToFollow() const
{
    const auto request = xcb_get_selection_owner(m_x11.get(), m_selection);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_x11.get(), request, nullptr));
    if (!reply || reply->owner == XCB_WINDOW_NONE || reply->owner == m_window)
        return reply ? reply->owner : quint32(XCB_WINDOW_NONE);
    constexpr quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    // An owner that is gone by now is an error, which is ours to take.
    const XcbReply<xcb_generic_error_t> error(
        xcb_request_check(m_x11.get(),
                          xcb_change_window_attributes_checked(m_x11.get(), reply->owner,
                                                               XCB_CW_EVENT_MASK, &events)));
    return error ? quint32(XCB_WINDOW_NONE) : reply->owner;
}

bool TrayOwner::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (property->window != m_window)
            return false;
        if (property->atom == m_orientation)
            readOrientation();
        Q_EMIT propertyChanged(property->atom);
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto *destroyed = reinterpret_cast<const xcb_destroy_notify_event_t *>(event);
        if (m_window != XCB_WINDOW_NONE && destroyed->window == m_window)
            refresh();
    } else if (type == XCB_CLIENT_MESSAGE) {
        // A new owner announces itself with a message to the root window.
        const auto *announced = reinterpret_cast<const xcb_client_message_event_t *>(event);
        if (announced->type == m_manager && announced->data.data32[1] == m_selection)
            refresh();
    }
    return false;
}

} // namespace ferrin
