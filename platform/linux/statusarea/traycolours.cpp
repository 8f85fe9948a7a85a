// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/traycolours.h"

#include <QCoreApplication>

#include <array>
#include <utility>
#include <xcb/xcb.h>

namespace ferrin {

namespace {

// Text, error, warning and success; three words each.
constexpr size_t announcedWords = 12;

} // namespace

std::optional<QColor> textAmongTrayColours(std::span<const quint32> announced)
{
    if (announced.size() != announcedWords)
        return {};
    constexpr quint32 most = 0xffff;
    if (announced[0] > most || announced[1] > most || announced[2] > most)
        return {};
    return QColor(int(announced[0] >> 8), int(announced[1] >> 8), int(announced[2] >> 8));
}

TrayColours::TrayColours(QObject *parent)
    : QObject(parent)
{
    if (!m_x11)
        return;
    m_selectionAtom = m_x11.atom("_NET_SYSTEM_TRAY_S0");
    m_coloursAtom = m_x11.atom("_NET_SYSTEM_TRAY_COLORS");
    QCoreApplication::instance()->installNativeEventFilter(this);
    refresh();
}

TrayColours::~TrayColours() = default;

void TrayColours::refresh()
{
    if (!m_x11)
        return;
    const auto request = xcb_get_selection_owner(m_x11.get(), m_selectionAtom);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_x11.get(), request, nullptr));
    follow(reply ? reply->owner : quint32(XCB_WINDOW_NONE));
    read();
}

void TrayColours::follow(quint32 owner)
{
    if (m_owner == owner)
        return;
    m_owner = owner;
    const std::array<quint32, 1> events { XCB_EVENT_MASK_PROPERTY_CHANGE
                                          | XCB_EVENT_MASK_STRUCTURE_NOTIFY };
    if (m_owner == XCB_WINDOW_NONE)
        return;
    // An owner that is gone by now is an error, which is ours to take.
    const auto request = xcb_change_window_attributes_checked(m_x11.get(), m_owner,
                                                              XCB_CW_EVENT_MASK, events.data());
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_x11.get(), request));
    if (error)
        m_owner = XCB_WINDOW_NONE;
}

void TrayColours::read()
{
    std::optional<QColor> text;
    if (m_owner != XCB_WINDOW_NONE) {
        const auto request = xcb_get_property(m_x11.get(), 0, m_owner, m_coloursAtom,
                                              XCB_ATOM_CARDINAL, 0, announcedWords);
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_x11.get(), request, nullptr));
        if (reply && reply->format == 32)
            text = textAmongTrayColours(
                { static_cast<const quint32 *>(xcb_get_property_value(reply.get())),
                  size_t(xcb_get_property_value_length(reply.get())) / sizeof(quint32) });
    }
    if (std::exchange(m_text, text) != text)
        Q_EMIT changed();
}

bool TrayColours::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (property->window == m_owner && property->atom == m_coloursAtom)
            read();
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto *destroyed = reinterpret_cast<const xcb_destroy_notify_event_t *>(event);
        if (m_owner != XCB_WINDOW_NONE && destroyed->window == m_owner)
            refresh();
    }
    return false;
}

} // namespace ferrin
