// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/waylandoutputs.h"

#include <QMargins>
#include <QObject>
#include <QRect>
#include <Qt>
#include <QtGlobal>

#include <memory>

class QScreen;
class QWindow;
struct wl_display;
struct wl_event_queue;
struct wl_registry;
struct wl_surface;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;

namespace ferrin {

/// Where a layer surface stands: at these edges of its screen, off the panels there. At all four it
/// fills what the panels leave.
struct LayerPlace
{
    Qt::Edges edges {};
    /// Between the surface and each of those edges.
    QMargins margins {};

    bool operator==(const LayerPlace &) const = default;
};

/// The place of a window that stands at `frame` of a screen: at the edges that it is nearest to.
[[nodiscard]] LayerPlace layerPlaceFor(const QRect &frame, const QRect &screen);

/// A window as a surface in the topmost layers of a Wayland desktop. It belongs to the window, and
/// has to go before the window's platform surface does.
class LayerSurface : public QObject
{
public:
    ~LayerSurface() override;
    LayerSurface(const LayerSurface &) = delete;
    LayerSurface &operator=(const LayerSurface &) = delete;

    void move(const LayerPlace &place);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class LayerShell;
    LayerSurface(QWindow &window, wl_surface *ofWindow, zwlr_layer_surface_v1 *surface);
    void apply(const LayerPlace &place);

    struct Listener;
    QWindow &m_window;
    /// Null once Qt has destroyed it.
    wl_surface *m_ofWindow;
    zwlr_layer_surface_v1 *m_surface;
};

/// The layers of a Wayland desktop, by wlr-layer-shell. False where the program does not run on
/// Wayland, and where the compositor has no layers.
class LayerShell
{
public:
    enum class Kind {
        /// Has the keyboard while it is shown, and is above everything.
        Popover,
        /// Never has it, and is above all but full-screen windows.
        Bar,
        /// Never has it, and is above everything, panels as well, which it does not keep off.
        Cover,
    };

    /// The one of the process, made when it is first asked for and kept while anybody has it.
    [[nodiscard]] static std::shared_ptr<LayerShell> shared();

    ~LayerShell();
    LayerShell(const LayerShell &) = delete;
    LayerShell &operator=(const LayerShell &) = delete;

    explicit operator bool() const noexcept { return m_shell != nullptr; }

    /// Makes the hidden window show as a layer surface, as large as it is now. Call before each
    /// showing; destroy the surface before the window is hidden. Null where there are no layers,
    /// and when the compositor does not answer in time.
    [[nodiscard]] std::unique_ptr<LayerSurface> createSurface(QWindow &window,
                                                              const LayerPlace &place, Kind kind);

private:
    LayerShell();
    void bind();
    [[nodiscard]] bool roundTrip();
    /// Null leaves the choice to the compositor.
    [[nodiscard]] wl_output *outputOf(const QScreen *screen);

    struct Registry;

    wl_display *m_display = nullptr;
    wl_event_queue *m_queue = nullptr;
    wl_registry *m_registry = nullptr;
    WaylandOutputs m_outputs;
    zwlr_layer_shell_v1 *m_shell = nullptr;
};

} // namespace ferrin
