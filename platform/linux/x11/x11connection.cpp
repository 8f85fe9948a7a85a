// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/x11/x11connection.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace ferrin {

X11Connection::X11Connection()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application)
        return;
    if (const auto *x11 = application->nativeInterface<QNativeInterface::QX11Application>())
        m_connection = x11->connection();
}

int X11Connection::screenNumber() const
{
    char *host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) == 0)
        return 0;
    std::free(host);
    return screen;
}

quint32 X11Connection::rootWindow() const
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (int number = screenNumber(); number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    return screens.data->root;
}

QList<quint32> X11Connection::windowsIn(quint32 window, const char *property) const
{
    constexpr quint32 mostWindows = 1024;
    const auto request = xcb_get_property(m_connection, 0, window, atom(property), XCB_ATOM_WINDOW,
                                          0, mostWindows);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, request, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *const first = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return { first, first + reply->value_len };
}

quint32 X11Connection::atom(const char *name) const
{
    const auto request = xcb_intern_atom(m_connection, 0, quint16(qstrlen(name)), name);
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, request, nullptr));
    return reply ? reply->atom : quint32(XCB_ATOM_NONE);
}

} // namespace ferrin
