// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/xembed/dockedwindow.h"

#include "platform/linux/x11/x11dock.h"

#include <QCoreApplication>
#include <QPainter>

#include <array>
#include <utility>

namespace ferrin {

namespace {

constexpr quint8 depthWithAlpha = 32;
// Until the tray says how large it is to be.
constexpr quint16 usualSide = 22;
constexpr quint8 leftButton = 1;
constexpr quint8 rightButton = 3;

const xcb_screen_t *screenOf(const X11Connection &x11)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(x11.get()));
    while (screens.rem > 1 && screens.data->root != x11.rootWindow())
        xcb_screen_next(&screens);
    return screens.data;
}

/// How the server keeps pixels of that depth, in rows of whole words as images have them too.
QImage::Format formatOf(quint8 depth)
{
    switch (depth) {
    case 15:
        return QImage::Format_RGB555;
    case 16:
        return QImage::Format_RGB16;
    case 24:
        return QImage::Format_RGB32;
    case 30:
        return QImage::Format_RGB30;
    case depthWithAlpha:
        return QImage::Format_ARGB32_Premultiplied;
    default:
        return QImage::Format_Invalid;
    }
}

template <typename Event>
const Event &as(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const Event &>(event);
}

} // namespace

DockedWindow::DockedWindow(quint32 tray, QObject *parent)
    : QObject(parent)
{
    if (!m_x11)
        return;
    const Visual visual = visualOf(tray).value_or(rootVisual());
    create(visual);
    describe();
    QCoreApplication::instance()->installNativeEventFilter(this);
    askForDocking(tray);
}

DockedWindow::~DockedWindow()
{
    end();
}

void DockedWindow::end()
{
    if (!m_window)
        return;
    xcb_free_gc(m_x11.get(), m_gc);
    // Fails where the tray has destroyed it with its own windows, which does not matter.
    const auto request = xcb_destroy_window_checked(m_x11.get(), m_window);
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_x11.get(), request));
    if (m_colorMap)
        xcb_free_colormap(m_x11.get(), m_colorMap);
    xcb_flush(m_x11.get());
    m_window = 0;
    m_size = {};
}

DockedWindow::Visual DockedWindow::rootVisual() const
{
    const xcb_screen_t *const screen = screenOf(m_x11);
    return { .id = screen->root_visual, .depth = screen->root_depth };
}

std::optional<DockedWindow::Visual> DockedWindow::visualOf(quint32 tray) const
{
    const auto request = xcb_get_property(
        m_x11.get(), 0, tray, m_x11.atom("_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID, 0, 1);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_x11.get(), request, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != int(sizeof(quint32)))
        return {};
    const quint32 id = *static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    auto depths = xcb_screen_allowed_depths_iterator(screenOf(m_x11));
    for (; depths.rem; xcb_depth_next(&depths)) {
        auto visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem; xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == id)
                return Visual { .id = id, .depth = depths.data->depth };
        }
    }
    return {};
}

void DockedWindow::create(const Visual &visual)
{
    m_visual = visual;
    m_isBlended = visual.depth == depthWithAlpha;
    const quint32 root = m_x11.rootWindow();
    m_colorMap = xcb_generate_id(m_x11.get());
    xcb_create_colormap(m_x11.get(), XCB_COLORMAP_ALLOC_NONE, m_colorMap, root, visual.id);
    m_window = xcb_generate_id(m_x11.get());
    constexpr quint32 events = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY
        | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_ENTER_WINDOW
        | XCB_EVENT_MASK_LEAVE_WINDOW;
    const std::array<quint32, 4> values { 0, 0, events, m_colorMap };
    xcb_create_window(m_x11.get(), visual.depth, m_window, root, 0, 0, usualSide, usualSide, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values.data());
    m_size = { usualSide, usualSide };
    m_gc = xcb_generate_id(m_x11.get());
    xcb_create_gc(m_x11.get(), m_gc, m_window, 0, nullptr);
}

void DockedWindow::describe()
{
    constexpr std::array<quint32, 2> embedding { /* version */ 0, /* wants to be mapped */ 1 };
    const quint32 info = m_x11.atom("_XEMBED_INFO");
    xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, m_window, info, info, 32,
                        quint32(embedding.size()), embedding.data());
    // Trays that are made of GTK's sockets give a window without a minimum a single pixel.
    constexpr std::array<quint32, 18> sizeHints {
        /* PMinSize */ 1U << 4, 0, 0, 0, 0, usualSide, usualSide
    };
    xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, quint32(sizeHints.size()), sizeHints.data());
    static constexpr char instanceAndClass[] = "item\0ferrin";
    xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, sizeof instanceAndClass, instanceAndClass);
    const auto process = quint32(QCoreApplication::applicationPid());
    xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, m_window, m_x11.atom("_NET_WM_PID"),
                        XCB_ATOM_CARDINAL, 32, 1, &process);
}

void DockedWindow::askForDocking(quint32 tray)
{
    constexpr quint32 requestDock = 0;
    xcb_client_message_event_t request {};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = tray;
    request.type = m_x11.atom("_NET_SYSTEM_TRAY_OPCODE");
    request.data.data32[0] = XCB_CURRENT_TIME;
    request.data.data32[1] = requestDock;
    request.data.data32[2] = m_window;
    const auto sent = xcb_send_event_checked(m_x11.get(), 0, tray, XCB_EVENT_MASK_NO_EVENT,
                                             reinterpret_cast<const char *>(&request));
    // TrayOwner notices a tray that has gone in the meantime.
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_x11.get(), sent));
}

QRect DockedWindow::bounds() const
{
    return m_isDocked ? windowBounds(m_window) : QRect();
}

QRect DockedWindow::panel() const
{
    return m_isDocked ? dockAround(m_window) : QRect();
}

QByteArray DockedWindow::panelClass() const
{
    return m_isDocked ? classOfDockAround(m_window) : QByteArray();
}

void DockedWindow::setTitle(const QString &title)
{
    if (!m_window)
        return;
    const QByteArray text = title.toUtf8();
    xcb_change_property(m_x11.get(), XCB_PROP_MODE_REPLACE, m_window, m_x11.atom("_NET_WM_NAME"),
                        m_x11.atom("UTF8_STRING"), 8, quint32(text.size()), text.constData());
}

std::optional<QImage> DockedWindow::groundPicture() const
{
    if (m_isBlended || m_size.isEmpty())
        return {};
    xcb_clear_area(m_x11.get(), 0, m_window, 0, 0, 0, 0);
    const auto request = xcb_get_image(m_x11.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, 0, 0,
                                       quint16(m_size.width()), quint16(m_size.height()), ~0U);
    const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_x11.get(), request, nullptr));
    const QImage::Format format = formatOf(m_visual.depth);
    const qsizetype expected = QImage(m_size, format).sizeInBytes();
    if (!reply || format == QImage::Format_Invalid
        || xcb_get_image_data_length(reply.get()) != expected)
        return {};
    // Copied: an image in the same format would go on using the reply's memory.
    return QImage(xcb_get_image_data(reply.get()), m_size.width(), m_size.height(), format)
        .copy()
        .convertToFormat(QImage::Format_RGB32);
}

std::optional<QColor> DockedWindow::ground() const
{
    const std::optional<QImage> picture = groundPicture();
    if (!picture)
        return {};
    return picture->scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

void DockedWindow::show(const QImage &picture)
{
    if (!m_isDocked || m_size.isEmpty())
        return;
    if (m_isBlended) {
        put(picture);
        return;
    }
    std::optional<QImage> pixels = groundPicture();
    if (!pixels) {
        pixels = QImage(m_size, QImage::Format_RGB32);
        pixels->fill(Qt::black);
    }
    QPainter(&*pixels).drawImage(0, 0, picture);
    put(*pixels);
}

void DockedWindow::put(const QImage &picture)
{
    const QImage::Format format = formatOf(m_visual.depth);
    if (format == QImage::Format_Invalid)
        return;
    const QImage pixels = picture.convertToFormat(format);
    xcb_put_image(m_x11.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_gc, quint16(pixels.width()),
                  quint16(pixels.height()), 0, 0, 0, m_visual.depth, quint32(pixels.sizeInBytes()),
                  pixels.constBits());
    xcb_flush(m_x11.get());
}

void DockedWindow::reparented(quint32 parent)
{
    if (parent == m_x11.rootWindow()) {
        if (m_isDocked)
            letGo();
        return;
    }
    m_isDocked = true;
    const XcbReply<xcb_get_geometry_reply_t> around(
        xcb_get_geometry_reply(m_x11.get(), xcb_get_geometry(m_x11.get(), parent), nullptr));
    if (m_isBlended || !around || around->depth != m_visual.depth)
        return;
    constexpr quint32 likeTheParent = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_change_window_attributes(m_x11.get(), m_window, XCB_CW_BACK_PIXMAP, &likeTheParent);
}

void DockedWindow::resized(QSize size)
{
    // Some trays expose the window before they configure it, others after.
    if (std::exchange(m_size, size) != size && m_isDocked)
        Q_EMIT pictureWanted();
}

void DockedWindow::letGo()
{
    m_isDocked = false;
    end();
    Q_EMIT undocked();
}

bool DockedWindow::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t" || !m_window)
        return false;
    const auto &event = *static_cast<const xcb_generic_event_t *>(message);
    handleTrayEvent(event);
    handlePointerEvent(event);
    return false;
}

void DockedWindow::handleTrayEvent(const xcb_generic_event_t &event)
{
    switch (event.response_type & 0x7f) {
    case XCB_REPARENT_NOTIFY:
        if (const auto &change = as<xcb_reparent_notify_event_t>(event); change.window == m_window)
            reparented(change.parent);
        break;
    case XCB_CONFIGURE_NOTIFY:
        if (const auto &change = as<xcb_configure_notify_event_t>(event); change.window == m_window)
            resized({ change.width, change.height });
        break;
    case XCB_EXPOSE:
        if (const auto &expose = as<xcb_expose_event_t>(event);
            expose.window == m_window && expose.count == 0 && m_isDocked)
            Q_EMIT pictureWanted();
        break;
    case XCB_DESTROY_NOTIFY:
        if (const auto &end = as<xcb_destroy_notify_event_t>(event); end.window == m_window)
            letGo();
        break;
    }
}

void DockedWindow::handlePointerEvent(const xcb_generic_event_t &event)
{
    switch (event.response_type & 0x7f) {
    case XCB_BUTTON_PRESS:
        if (const auto &press = as<xcb_button_press_event_t>(event);
            press.event == m_window && press.detail == rightButton)
            Q_EMIT menuRequested();
        break;
    case XCB_BUTTON_RELEASE:
        if (const auto &release = as<xcb_button_release_event_t>(event); release.event == m_window
            && release.detail == leftButton
            && QRect(QPoint(), m_size).contains(release.event_x, release.event_y))
            Q_EMIT clicked();
        break;
    // A grab that begins or ends is reported as the pointer leaving or entering too.
    case XCB_ENTER_NOTIFY:
        if (const auto &enter = as<xcb_enter_notify_event_t>(event);
            enter.event == m_window && enter.mode == XCB_NOTIFY_MODE_NORMAL)
            Q_EMIT entered();
        break;
    case XCB_LEAVE_NOTIFY:
        if (as<xcb_leave_notify_event_t>(event).event == m_window)
            Q_EMIT left();
        break;
    }
}

} // namespace ferrin
