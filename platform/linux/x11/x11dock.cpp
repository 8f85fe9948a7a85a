// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/x11/x11dock.h"

#include "platform/linux/x11/x11connection.h"

#include <algorithm>
#include <xcb/xcb.h>

namespace ferrin {

namespace {

// Window managers put windows into frames, and those into others.
constexpr int deepest = 8;

class Docks
{
public:
    explicit Docks(const X11Connection &x11)
        : m_x11(x11)
        , m_connection(x11.get())
        , m_root(x11.rootWindow())
        , m_type(x11.atom("_NET_WM_WINDOW_TYPE"))
        , m_dock(x11.atom("_NET_WM_WINDOW_TYPE_DOCK"))
    {
    }

    [[nodiscard]] QRect underPointer() const
    {
        quint32 window = m_root;
        for (int depth = 0; depth < deepest; ++depth) {
            window = childUnderPointer(window);
            if (window == XCB_WINDOW_NONE)
                break;
            if (isDock(window))
                return bounds(window);
        }
        return {};
    }

    [[nodiscard]] quint32 around(quint32 window) const
    {
        for (int height = 0; height < deepest && window != XCB_WINDOW_NONE; ++height) {
            if (isDock(window))
                return window;
            window = parentOf(window);
        }
        return XCB_WINDOW_NONE;
    }

    [[nodiscard]] QList<int> thicknesses() const
    {
        QList<int> result;
        for (const quint32 window : m_x11.windowsIn(m_root, "_NET_CLIENT_LIST")) {
            const QRect place = isDock(window) ? bounds(window) : QRect();
            const int thickness = std::min(place.width(), place.height());
            if (thickness > 0 && !result.contains(thickness))
                result.append(thickness);
        }
        return result;
    }

    [[nodiscard]] QByteArray classOf(quint32 window) const
    {
        constexpr quint32 longestWords = 16;
        const auto request = xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_CLASS,
                                              XCB_ATOM_STRING, 0, longestWords);
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_connection, request, nullptr));
        if (!reply)
            return {};
        const QByteArray nameAndClass(
            static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get()));
        return nameAndClass.split('\0').value(1);
    }

    [[nodiscard]] QRect bounds(quint32 window) const
    {
        const auto size = xcb_get_geometry(m_connection, window);
        const auto corner = xcb_translate_coordinates(m_connection, window, m_root, 0, 0);
        const XcbReply<xcb_get_geometry_reply_t> sizeReply(
            xcb_get_geometry_reply(m_connection, size, nullptr));
        const XcbReply<xcb_translate_coordinates_reply_t> cornerReply(
            xcb_translate_coordinates_reply(m_connection, corner, nullptr));
        if (!sizeReply || !cornerReply)
            return {};
        return { cornerReply->dst_x, cornerReply->dst_y, sizeReply->width, sizeReply->height };
    }

private:
    [[nodiscard]] quint32 parentOf(quint32 window) const
    {
        const XcbReply<xcb_query_tree_reply_t> reply(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
        return reply ? reply->parent : quint32(XCB_WINDOW_NONE);
    }

    [[nodiscard]] quint32 childUnderPointer(quint32 window) const
    {
        const XcbReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
            m_connection, xcb_query_pointer(m_connection, window), nullptr));
        return reply ? reply->child : quint32(XCB_WINDOW_NONE);
    }

    [[nodiscard]] bool isDock(quint32 window) const
    {
        const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            m_connection, xcb_get_property(m_connection, 0, window, m_type, XCB_ATOM_ATOM, 0, 1),
            nullptr));
        return reply && xcb_get_property_value_length(reply.get()) == int(sizeof(quint32))
            && *static_cast<const quint32 *>(xcb_get_property_value(reply.get())) == m_dock;
    }

    const X11Connection &m_x11;
    xcb_connection_t *m_connection;
    quint32 m_root;
    quint32 m_type;
    quint32 m_dock;
};

/// A property of the dock around a window; empty where there is none.
template <typename Property>
Property ofDockAround(quint32 window, Property (Docks::*property)(quint32) const)
{
    const X11Connection x11;
    if (!x11)
        return {};
    const Docks docks(x11);
    const quint32 dock = docks.around(window);
    return dock == XCB_WINDOW_NONE ? Property() : (docks.*property)(dock);
}

} // namespace

QRect dockUnderPointer()
{
    const X11Connection x11;
    return x11 ? Docks(x11).underPointer() : QRect();
}

QRect dockAround(quint32 window)
{
    return ofDockAround(window, &Docks::bounds);
}

QList<int> dockThicknesses()
{
    const X11Connection x11;
    return x11 ? Docks(x11).thicknesses() : QList<int>();
}

QByteArray classOfDockAround(quint32 window)
{
    return ofDockAround(window, &Docks::classOf);
}

QRect windowBounds(quint32 window)
{
    const X11Connection x11;
    return x11 ? Docks(x11).bounds(window) : QRect();
}

} // namespace ferrin
