// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/x11/x11presswatcher.h"

#include "platform/linux/x11/x11connection.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <xcb/xinput.h>

namespace ferrin {

namespace {

// Frames around frames around the window.
constexpr int deepest = 8;
// Buttons 4 to 7 are the wheel's.
constexpr quint32 firstWheelButton = 4;
constexpr quint32 lastWheelButton = 7;

QWindow *ownWindow(quint32 id)
{
    for (QWindow *const window : QGuiApplication::allWindows()) {
        if (window->handle() && window->winId() == id)
            return window;
    }
    return nullptr;
}

} // namespace

void X11PressWatcher::CloseConnection::operator()(xcb_connection_t *connection) const
{
    xcb_disconnect(connection);
}

X11PressWatcher::X11PressWatcher(QObject *parent)
    : PressWatcher(parent)
{
}

X11PressWatcher::~X11PressWatcher() = default;

bool X11PressWatcher::start()
{
    if (m_connection)
        return true;
    if (!X11Connection())
        return false;
    m_connection.reset(xcb_connect(nullptr, nullptr));
    if (!select()) {
        stop();
        return false;
    }
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection.get()),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11PressWatcher::readEvents);
    return true;
}

void X11PressWatcher::stop()
{
    // It may be the notifier that has called us.
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
    m_connection.reset();
}

bool X11PressWatcher::select()
{
    xcb_connection_t *const x11 = m_connection.get();
    const auto *extension = xcb_get_extension_data(x11, &xcb_input_id);
    if (xcb_connection_has_error(x11) || !extension || !extension->present)
        return false;
    // From 2.1 on raw events are sent while another client grabs the pointer too. To a client that
    // asks for no higher version the server reports touches as presses.
    const XcbReply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(x11, xcb_input_xi_query_version(x11, 2, 1), nullptr));
    if (!version || (version->major_version == 2 && version->minor_version < 1))
        return false;
    m_extension = extension->major_opcode;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(x11)).data->root;

    struct
    {
        xcb_input_event_mask_t head { .deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1 };
        quint32 events = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    } mask;
    const auto request = xcb_input_xi_select_events_checked(x11, m_root, 1, &mask.head);
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(x11, request));
    return !error;
}

void X11PressWatcher::catchUp()
{
    if (!m_connection)
        return;
    // All earlier events have arrived when the reply has.
    const XcbReply<xcb_get_input_focus_reply_t> answer(xcb_get_input_focus_reply(
        m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
    readEvents();
}

void X11PressWatcher::readEvents()
{
    while (m_connection) {
        const XcbReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection.get()));
        if (!event)
            break;
        if (event->response_type == XCB_GE_GENERIC
            && isPress(reinterpret_cast<const xcb_ge_generic_event_t &>(*event)))
            Q_EMIT pressed(ownWindowUnderPointer());
    }
    if (m_connection && xcb_connection_has_error(m_connection.get()))
        stop();
}

bool X11PressWatcher::isPress(const xcb_ge_generic_event_t &event) const
{
    if (event.extension != m_extension || event.event_type != XCB_INPUT_RAW_BUTTON_PRESS)
        return false;
    const auto &press = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
    return press.detail < firstWheelButton || press.detail > lastWheelButton;
}

QWindow *X11PressWatcher::ownWindowUnderPointer() const
{
    xcb_connection_t *const x11 = m_connection.get();
    quint32 window = m_root;
    for (int depth = 0; depth < deepest; ++depth) {
        const XcbReply<xcb_query_pointer_reply_t> reply(
            xcb_query_pointer_reply(x11, xcb_query_pointer(x11, window), nullptr));
        if (!reply || reply->child == XCB_WINDOW_NONE)
            break;
        window = reply->child;
        if (QWindow *const ours = ownWindow(window))
            return ours;
    }
    return nullptr;
}

} // namespace ferrin
