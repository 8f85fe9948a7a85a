// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/itemplace.h"
#include "settingswindow/support/vendor.h"

#include <QtPlugin>

#include <functional>
#include <memory>

class QWindow;

namespace ferrin {

class LinkOpener;
class LoginItem;
class PopoverDesktop;

/// The windows of the application: the dashboard's popover, the settings window and the window of
/// updates. They live in a module of their own that is loaded when the first of them opens, so that
/// the status item, which stands all day, pays for no scene graph.
class Windows
{
public:
    virtual ~Windows() = default;

    /// Opens the dashboard at the item.
    virtual void showDashboard(const ItemPlace &place) = 0;
    virtual void hideDashboard() = 0;
    /// Whether this is the dashboard, or a window that belongs to it.
    [[nodiscard]] virtual bool isOfDashboard(const QWindow &window) const = 0;

    /// Opens the window with this identifier; an open one comes to the front.
    virtual void openWindow(const QString &identifier) = 0;

    /// Whether any of them can be seen.
    [[nodiscard]] virtual bool isAnyShown() const = 0;

    /// Called when the dashboard closes by itself: Escape, its own settings item, its screen gone.
    /// Set before anything is opened, as the others.
    std::function<void()> dashboardClosed;
    /// Called when the dashboard has lost the focus, which leaves it open.
    std::function<void()> dashboardLostFocus;
};

/// What the windows need of the desktop, which outlives them, and of the installation.
struct WindowsPlatform
{
    PopoverDesktop &popovers;
    LoginItem &loginItem;
    LinkOpener &links;
    Vendor vendor;
};

/// What the module offers.
class WindowsFactory
{
public:
    virtual ~WindowsFactory() = default;
    [[nodiscard]] virtual std::unique_ptr<Windows> create(const WindowsPlatform &platform) = 0;
};

} // namespace ferrin

#define FerrinWindowsFactory_iid "org.ferrin.Ferrin.WindowsFactory/5"
Q_DECLARE_INTERFACE(ferrin::WindowsFactory, FerrinWindowsFactory_iid)
