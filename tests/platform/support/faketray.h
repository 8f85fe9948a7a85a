// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QPoint>
#include <QSize>

#include <optional>
#include <span>
#include <xcb/xcb.h>

namespace ferrin::test {

/// A bar with a tray in it: a client of the X server of its own. It ends with this object, and what
/// is docked in it is left as such bars leave it.
class FakeTray
{
public:
    explicit FakeTray(const QColor &ground = Qt::black);
    ~FakeTray();
    FakeTray(const FakeTray &) = delete;
    FakeTray &operator=(const FakeTray &) = delete;

    /// Takes the tray for itself and tells everybody.
    void own();
    void announceText(const QColor &text);
    void announceOrientation(Qt::Orientation orientation);
    /// Wants windows whose pixels have an alpha.
    void announceBlending();

    /// The window that has asked to be taken in since; absent for none.
    [[nodiscard]] std::optional<xcb_window_t> request();
    void takeIn(xcb_window_t icon, QSize size);
    void resize(xcb_window_t icon, QSize size);
    /// Puts it back on the screen, as a bar that ends properly.
    void letGo(xcb_window_t icon);
    /// Sends what a button over the window would.
    void press(xcb_window_t icon, int button);
    void release(xcb_window_t icon, int button, QPoint at = { 3, 3 });
    /// Sends what a pointer that comes over the window would, or a grab under it that ends.
    void enter(xcb_window_t icon, xcb_notify_mode_t mode = XCB_NOTIFY_MODE_NORMAL);

    [[nodiscard]] xcb_window_t window() const { return m_bar; }
    [[nodiscard]] QColor pixel(xcb_window_t icon, QPoint at) const;
    [[nodiscard]] int depthOf(xcb_window_t icon) const;
    /// The least size that the window asks for; empty for none.
    [[nodiscard]] QSize leastSizeOf(xcb_window_t icon) const;
    [[nodiscard]] bool isThere(xcb_window_t icon) const;

private:
    [[nodiscard]] xcb_atom_t atom(const char *name) const;
    [[nodiscard]] const xcb_screen_t &screen() const;
    void announce(const char *name, xcb_atom_t type, std::span<const quint32> values);
    void sendButton(quint8 type, xcb_window_t icon, int button, QPoint at);

    xcb_connection_t *m_connection;
    xcb_window_t m_bar;
};

} // namespace ferrin::test
