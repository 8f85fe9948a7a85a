// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QPoint>
#include <QRect>
#include <QtPlugin>

#include <functional>
#include <memory>

namespace ferrin {

/// The two windows of the application, the dashboard's popover and the settings window. They live
/// in a module of their own that is loaded when the first of them opens, so that the status item,
/// which stands all day, pays for no scene graph.
class Windows
{
public:
    virtual ~Windows() = default;

    /// Opens the dashboard at the item. `item` is the item's place on the screen, null where the
    /// host does not tell; `pointer` is where the click was, null where that is not known.
    virtual void showDashboard(const QRect &item, const QPoint &pointer) = 0;
    virtual void hideDashboard() = 0;

    /// Opens the window with this identifier; an open one comes to the front.
    virtual void openWindow(const QString &identifier) = 0;

    /// Called when the dashboard closes by itself: a click elsewhere, Escape, the focus lost, its own
    /// settings item. Set before anything is opened.
    std::function<void()> dashboardClosed;
};

/// What the module offers.
class WindowsFactory
{
public:
    virtual ~WindowsFactory() = default;
    [[nodiscard]] virtual std::unique_ptr<Windows> create() = 0;
};

} // namespace ferrin

#define FerrinWindowsFactory_iid "org.ferrin.Ferrin.WindowsFactory/1"
Q_DECLARE_INTERFACE(ferrin::WindowsFactory, FerrinWindowsFactory_iid)
