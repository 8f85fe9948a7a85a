// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/x11/x11popoverdesktop.h"

#include "popover/clickplace.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QScreen>
#include <QTransform>
#include <QWindow>

#include <array>
#include <string_view>
#include <vector>
#include <xcb/shape.h>
#include <xcb/xcb.h>

namespace ferrin {

namespace {

// Whole pixels: those with their middle inside.
QRegion pixelsInside(const QPainterPath &path)
{
    const QRect bounds = path.boundingRect().toAlignedRect();
    QBitmap mask(bounds.right() + 1, bounds.bottom() + 1);
    mask.clear();
    QPainter(&mask).fillPath(path, Qt::color1);
    return mask;
}

std::vector<xcb_rectangle_t> rectangles(const QRegion &region)
{
    std::vector<xcb_rectangle_t> result;
    for (const QRect &part : region)
        result.push_back(
            { qint16(part.x()), qint16(part.y()), quint16(part.width()), quint16(part.height()) });
    return result;
}

} // namespace

bool X11PopoverDesktop::blends() const
{
    if (!m_x11)
        return true;
    const auto request = xcb_get_selection_owner(m_x11.get(), m_x11.atom("_NET_WM_CM_S0"));
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_x11.get(), request, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

void X11PopoverDesktop::prepare(QWindow &window)
{
    if (!m_x11)
        return;
    // Qt adds what it knows of the window's state to this when it shows the window.
    const std::array state { m_x11.atom("_NET_WM_STATE_ABOVE"),
                             m_x11.atom("_NET_WM_STATE_SKIP_TASKBAR"),
                             m_x11.atom("_NET_WM_STATE_SKIP_PAGER") };
    xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, quint32(window.winId()),
                        m_x11.atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, quint32(state.size()),
                        state.data());
}

void X11PopoverDesktop::focus(QWindow &window)
{
    PopoverDesktop::focus(window);
    if (!m_x11)
        return;
    insistOnPlace(window);
    // The click went to the panel, so to a window manager this window has come by itself, which it
    // may not let take the focus. A request in the user's name is not questioned.
    constexpr quint32 fromTheUser = 2;
    xcb_client_message_event_t request {};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = quint32(window.winId());
    request.type = m_x11.atom("_NET_ACTIVE_WINDOW");
    request.data.data32[0] = fromTheUser;
    request.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(m_x11.get(), 0, m_x11.rootWindow(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&request));
    xcb_flush(m_x11.get());
}

void X11PopoverDesktop::insistOnPlace(const QWindow &window) const
{
    // i3 moves a new window by the decoration that it would have had.
    const QScreen *const screen = window.screen();
    if (!screen)
        return;
    const QPoint corner = devicePoint(
        window.position(), { .geometry = screen->geometry(), .ratio = screen->devicePixelRatio() });
    const std::array place { quint32(corner.x()), quint32(corner.y()) };
    xcb_configure_window(m_x11.get(), quint32(window.winId()),
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place.data());
}

void X11PopoverDesktop::setTitleBarDark(QWindow &window, bool isDark)
{
    if (!m_x11)
        return;
    constexpr std::string_view dark = "dark";
    const quint32 hint = m_x11.atom("_GTK_THEME_VARIANT");
    if (isDark)
        xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, quint32(window.winId()), hint,
                            m_x11.atom("UTF8_STRING"), 8, quint32(dark.size()), dark.data());
    else
        xcb_delete_property(m_x11.get(), quint32(window.winId()), hint);
    xcb_flush(m_x11.get());
}

void X11PopoverDesktop::setOutline(QWindow &window, const QPainterPath &outline)
{
    if (!m_x11) {
        PopoverDesktop::setOutline(window, outline);
        return;
    }
    const qreal ratio = window.devicePixelRatio();
    const auto parts = rectangles(pixelsInside(QTransform::fromScale(ratio, ratio).map(outline)));
    const auto set = [&](quint8 kind) {
        xcb_shape_rectangles(m_x11.get(), XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED,
                             quint32(window.winId()), 0, 0, quint32(parts.size()), parts.data());
    };
    if (blends()) {
        xcb_shape_mask(m_x11.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                       quint32(window.winId()), 0, 0, XCB_PIXMAP_NONE);
        set(XCB_SHAPE_SK_INPUT);
    } else {
        set(XCB_SHAPE_SK_BOUNDING);
    }
    xcb_flush(m_x11.get());
}

} // namespace ferrin
