// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/layershell.h"

#include "base/logging.h"
#include "platform/linux/layers/qtsurfaces.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <poll.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1.h>

using namespace std::chrono_literals;

namespace ferrin {

namespace {

// The latest version that this is tested with.
constexpr quint32 knownVersion = 4;
constexpr Qt::Edges everyEdge = Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge;

// A compositor that takes longer hangs; the program must not hang with it.
constexpr auto answerLimit = 500ms;

void setDone(void *isDone, wl_callback *, quint32)
{
    *static_cast<bool *>(isDone) = true;
}

constexpr wl_callback_listener callbackListener { setDone };

/// Reads and dispatches what comes within the time. False when nothing comes, or an error.
bool readEvents(wl_display *display, wl_event_queue *queue, std::chrono::milliseconds time)
{
    while (wl_display_prepare_read_queue(display, queue) != 0)
        wl_display_dispatch_queue_pending(display, queue);
    wl_display_flush(display);
    pollfd socket { .fd = wl_display_get_fd(display), .events = POLLIN, .revents = 0 };
    if (::poll(&socket, 1, int(time.count())) <= 0) {
        wl_display_cancel_read(display);
        return false;
    }
    return wl_display_read_events(display) == 0
        && wl_display_dispatch_queue_pending(display, queue) >= 0;
}

quint32 anchorsFor(Qt::Edges edges)
{
    quint32 anchors = 0;
    if (edges & Qt::TopEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP;
    if (edges & Qt::BottomEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM;
    if (edges & Qt::LeftEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT;
    if (edges & Qt::RightEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
    return anchors;
}

quint32 layerOf(LayerShell::Kind kind)
{
    return kind == LayerShell::Kind::Bar ? ZWLR_LAYER_SHELL_V1_LAYER_TOP
                                         : ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY;
}

} // namespace

LayerPlace layerPlaceFor(const QRect &frame, const QRect &screen)
{
    const int left = frame.left() - screen.left();
    const int right = screen.right() - frame.right();
    const int top = frame.top() - screen.top();
    const int bottom = screen.bottom() - frame.bottom();
    LayerPlace place;
    place.edges |= left < right ? Qt::LeftEdge : Qt::RightEdge;
    place.edges |= bottom < top ? Qt::BottomEdge : Qt::TopEdge;
    if (left < right)
        place.margins.setLeft(left);
    else
        place.margins.setRight(right);
    if (bottom < top)
        place.margins.setBottom(bottom);
    else
        place.margins.setTop(top);
    return place;
}

struct LayerSurface::Listener
{
    static void configure(void *data, zwlr_layer_surface_v1 *surface, quint32 serial, quint32 width,
                          quint32 height)
    {
        zwlr_layer_surface_v1_ack_configure(surface, serial);
        if (width && height)
            static_cast<LayerSurface *>(data)->m_window.resize(int(width), int(height));
    }
    static void closed(void *data, zwlr_layer_surface_v1 *)
    {
        // The screen has gone, or the compositor wants it so.
        auto *const self = static_cast<LayerSurface *>(data);
        QMetaObject::invokeMethod(
            self, [self] { self->m_window.close(); }, Qt::QueuedConnection);
    }
    static constexpr zwlr_layer_surface_v1_listener callbacks { configure, closed };
};

LayerSurface::LayerSurface(QWindow &window, wl_surface *ofWindow, zwlr_layer_surface_v1 *surface)
    : m_window(window)
    , m_ofWindow(ofWindow)
    , m_surface(surface)
{
    window.installEventFilter(this);
    zwlr_layer_surface_v1_add_listener(m_surface, &Listener::callbacks, this);
}

LayerSurface::~LayerSurface()
{
    zwlr_layer_surface_v1_destroy(m_surface);
}

void LayerSurface::apply(const LayerPlace &place)
{
    const QMargins &margins = place.margins;
    const QSize size = place.edges == everyEdge ? QSize(0, 0) : m_window.size();
    zwlr_layer_surface_v1_set_size(m_surface, quint32(size.width()), quint32(size.height()));
    zwlr_layer_surface_v1_set_anchor(m_surface, anchorsFor(place.edges));
    zwlr_layer_surface_v1_set_margin(m_surface, margins.top(), margins.right(), margins.bottom(),
                                     margins.left());
}

void LayerSurface::move(const LayerPlace &place)
{
    apply(place);
    if (m_ofWindow)
        wl_surface_commit(m_ofWindow);
}

bool LayerSurface::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::PlatformSurface
        && static_cast<QPlatformSurfaceEvent *>(event)->surfaceEventType()
            == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
        m_ofWindow = nullptr;
    return false;
}

std::shared_ptr<LayerShell> LayerShell::shared()
{
    static std::weak_ptr<LayerShell> instance;
    std::shared_ptr<LayerShell> shell = instance.lock();
    if (!shell) {
        shell.reset(new LayerShell);
        instance = shell;
    }
    return shell;
}

struct LayerShell::Registry
{
    static void add(void *data, wl_registry *registry, quint32 name, const char *interface,
                    quint32 version)
    {
        auto *const self = static_cast<LayerShell *>(data);
        self->m_outputs.add(registry, name, interface, version);
        if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0)
            self->m_shell = static_cast<zwlr_layer_shell_v1 *>(wl_registry_bind(
                registry, name, &zwlr_layer_shell_v1_interface, std::min(version, knownVersion)));
    }
    static void remove(void *data, wl_registry *, quint32 name)
    {
        static_cast<LayerShell *>(data)->m_outputs.remove(name);
    }
    static constexpr wl_registry_listener callbacks { add, remove };
};

LayerShell::LayerShell()
{
    if (!QGuiApplication::platformName().startsWith(u"wayland"))
        return;
    m_display = qtsurfaces::display();
    if (m_display)
        bind();
}

LayerShell::~LayerShell()
{
    if (m_shell)
        wl_proxy_destroy(reinterpret_cast<wl_proxy *>(m_shell));
    m_outputs.clear();
    if (m_registry)
        wl_registry_destroy(m_registry);
    if (m_queue)
        wl_event_queue_destroy(m_queue);
}

bool LayerShell::roundTrip()
{
    auto *const wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(m_display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), m_queue);
    wl_callback *const callback = wl_display_sync(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    bool isDone = false;
    wl_callback_add_listener(callback, &callbackListener, &isDone);
    const QDeadlineTimer deadline(answerLimit);
    while (!isDone && !deadline.hasExpired()) {
        if (!readEvents(m_display, m_queue,
                        std::chrono::milliseconds(std::max<qint64>(deadline.remainingTime(), 0))))
            break;
    }
    wl_callback_destroy(callback);
    return isDone;
}

void LayerShell::bind()
{
    m_queue = wl_display_create_queue(m_display);
    auto *const wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(m_display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), m_queue);
    m_registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(m_registry, &Registry::callbacks, this);
    if (!roundTrip())
        qCCritical(logger, "The Wayland compositor does not answer");
}

wl_output *LayerShell::outputOf(const QScreen *screen)
{
    // Screens may have come and gone since the last time.
    wl_display_dispatch_queue_pending(m_display, m_queue);
    if (!screen || (m_outputs.awaitsNames() && !roundTrip()))
        return nullptr;
    return m_outputs.named(screen->name());
}

std::unique_ptr<LayerSurface> LayerShell::createSurface(QWindow &window, const LayerPlace &place,
                                                        Kind kind)
{
    if (!m_shell)
        return {};
    // With the shell integration that the application sets, Qt gives such a window no role.
    window.setFlag(Qt::BypassWindowManagerHint);
    // Left to itself, Qt makes a surface for a window that was hidden only when it is shown again,
    // which is too late.
    wl_surface *const surface = qtsurfaces::recreate(window);
    if (!surface)
        return {};
    std::unique_ptr<LayerSurface> layer(new LayerSurface(
        window, surface,
        zwlr_layer_shell_v1_get_layer_surface(m_shell, surface, outputOf(window.screen()),
                                              layerOf(kind), "ferrin")));
    layer->apply(place);
    constexpr int overPanels = -1;
    if (kind == Kind::Cover)
        zwlr_layer_surface_v1_set_exclusive_zone(layer->m_surface, overPanels);
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        layer->m_surface,
        kind == Kind::Popover ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
                              : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    wl_surface_commit(surface);
    // A buffer may follow only the first configure event; later events are for Qt's own queue.
    if (!roundTrip())
        return {};
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(layer->m_surface), nullptr);
    return layer;
}

} // namespace ferrin
