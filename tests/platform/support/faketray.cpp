// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/support/faketray.h"

#include "platform/linux/x11/x11connection.h"

#include <QImage>

#include <array>
#include <cstring>

namespace ferrin::test {

namespace {

/// How the server keeps pixels of that depth.
QImage::Format formatOf(int depth)
{
    switch (depth) {
    case 15:
        return QImage::Format_RGB555;
    case 16:
        return QImage::Format_RGB16;
    case 30:
        return QImage::Format_RGB30;
    case 32:
        return QImage::Format_ARGB32_Premultiplied;
    default:
        return QImage::Format_RGB32;
    }
}

quint32 pixelOf(const QColor &color, int depth)
{
    QImage image(1, 1, formatOf(depth));
    image.fill(color);
    quint32 pixel = 0;
    std::memcpy(&pixel, image.constBits(), size_t(image.depth()) / 8);
    return pixel;
}

} // namespace

FakeTray::FakeTray(const QColor &ground)
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_bar(xcb_generate_id(m_connection))
{
    const std::array<quint32, 1> values { pixelOf(ground, screen().root_depth) };
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_bar, screen().root, 0, 0, 400, 30, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL,
                      values.data());
    const quint32 dock = atom("_NET_WM_WINDOW_TYPE_DOCK");
    announce("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, { &dock, 1 });
    static constexpr char instanceAndClass[] = "fakebar\0Bar";
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_bar, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, sizeof instanceAndClass, instanceAndClass);
    xcb_map_window(m_connection, m_bar);
    xcb_flush(m_connection);
}

FakeTray::~FakeTray()
{
    xcb_disconnect(m_connection);
}

const xcb_screen_t &FakeTray::screen() const
{
    return *xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

xcb_atom_t FakeTray::atom(const char *name) const
{
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, quint16(qstrlen(name)), name), nullptr));
    return reply->atom;
}

void FakeTray::announce(const char *name, xcb_atom_t type, std::span<const quint32> values)
{
    const auto change
        = xcb_change_property_checked(m_connection, XCB_PROP_MODE_REPLACE, m_bar, atom(name), type,
                                      32, quint32(values.size()), values.data());
    // Who asks next on another connection is told already.
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_connection, change));
}

void FakeTray::own()
{
    const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
    xcb_set_selection_owner(m_connection, m_bar, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t news {};
    news.response_type = XCB_CLIENT_MESSAGE;
    news.format = 32;
    news.window = screen().root;
    news.type = atom("MANAGER");
    news.data.data32[1] = selection;
    news.data.data32[2] = m_bar;
    xcb_send_event(m_connection, 0, screen().root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&news));
    xcb_flush(m_connection);
}

void FakeTray::announceText(const QColor &text)
{
    std::array<quint32, 12> words {};
    words[0] = quint32(text.red()) << 8;
    words[1] = quint32(text.green()) << 8;
    words[2] = quint32(text.blue()) << 8;
    announce("_NET_SYSTEM_TRAY_COLORS", XCB_ATOM_CARDINAL, words);
}

void FakeTray::announceOrientation(Qt::Orientation orientation)
{
    const quint32 value = orientation == Qt::Vertical ? 1 : 0;
    announce("_NET_SYSTEM_TRAY_ORIENTATION", XCB_ATOM_CARDINAL, { &value, 1 });
}

void FakeTray::announceBlending()
{
    auto depths = xcb_screen_allowed_depths_iterator(&screen());
    while (depths.data->depth != 32)
        xcb_depth_next(&depths);
    const quint32 visual = xcb_depth_visuals_iterator(depths.data).data->visual_id;
    announce("_NET_SYSTEM_TRAY_VISUAL", XCB_ATOM_VISUALID, { &visual, 1 });
}

std::optional<xcb_window_t> FakeTray::request()
{
    while (true) {
        const XcbReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
        if (!event)
            return {};
        const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE
            && message.type == atom("_NET_SYSTEM_TRAY_OPCODE") && message.data.data32[1] == 0)
            return message.data.data32[2];
    }
}

void FakeTray::takeIn(xcb_window_t icon, QSize size)
{
    xcb_reparent_window(m_connection, icon, m_bar, 2, 2);
    resize(icon, size);
    xcb_map_window(m_connection, icon);
    xcb_flush(m_connection);
}

void FakeTray::resize(xcb_window_t icon, QSize size)
{
    const std::array values { quint32(size.width()), quint32(size.height()) };
    xcb_configure_window(m_connection, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
    xcb_flush(m_connection);
}

void FakeTray::letGo(xcb_window_t icon)
{
    xcb_unmap_window(m_connection, icon);
    xcb_reparent_window(m_connection, icon, screen().root, 0, 0);
    xcb_flush(m_connection);
}

void FakeTray::sendButton(quint8 type, xcb_window_t icon, int button, QPoint at)
{
    xcb_button_press_event_t event {};
    event.response_type = type;
    event.detail = xcb_button_t(button);
    event.root = screen().root;
    event.event = icon;
    event.event_x = qint16(at.x());
    event.event_y = qint16(at.y());
    event.same_screen = 1;
    xcb_send_event(m_connection, 0, icon, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_connection);
}

void FakeTray::press(xcb_window_t icon, int button)
{
    sendButton(XCB_BUTTON_PRESS, icon, button, { 3, 3 });
}

void FakeTray::release(xcb_window_t icon, int button, QPoint at)
{
    sendButton(XCB_BUTTON_RELEASE, icon, button, at);
}

void FakeTray::enter(xcb_window_t icon, xcb_notify_mode_t mode)
{
    xcb_enter_notify_event_t event {};
    event.response_type = XCB_ENTER_NOTIFY;
    event.root = screen().root;
    event.event = icon;
    event.mode = mode;
    xcb_send_event(m_connection, 0, icon, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_connection);
}

QColor FakeTray::pixel(xcb_window_t icon, QPoint at) const
{
    const XcbReply<xcb_get_image_reply_t> reply(
        xcb_get_image_reply(m_connection,
                            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, icon,
                                          qint16(at.x()), qint16(at.y()), 1, 1, ~0U),
                            nullptr));
    if (!reply)
        return {};
    return QImage(xcb_get_image_data(reply.get()), 1, 1, formatOf(reply->depth)).pixelColor(0, 0);
}

int FakeTray::depthOf(xcb_window_t icon) const
{
    const XcbReply<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, icon), nullptr));
    return reply ? reply->depth : 0;
}

QSize FakeTray::leastSizeOf(xcb_window_t icon) const
{
    constexpr int words = 18;
    constexpr quint32 leastSizeIsGiven = 1U << 4;
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection,
                               xcb_get_property(m_connection, 0, icon, XCB_ATOM_WM_NORMAL_HINTS,
                                                XCB_ATOM_WM_SIZE_HINTS, 0, words),
                               nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != words * int(sizeof(quint32)))
        return {};
    const auto *const hints = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return hints[0] & leastSizeIsGiven ? QSize(int(hints[5]), int(hints[6])) : QSize();
}

bool FakeTray::isThere(xcb_window_t icon) const
{
    return depthOf(icon) != 0;
}

} // namespace ferrin::test
