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
class PanelAppearanceSource;
class PopoverDesktop;

/// The windows of the application: the dashboard's popover, the settings window and the window of
/// updates. They live in a module of their own that is loaded when the first of them opens, so that
/// the status item, which runs all day, does not pay for a scene graph.
class Windows
{
public:
    virtual ~Windows() = default;

    /// Opens the dashboard at the item.
    virtual void showDashboard(const ItemPlace &place) = 0;
    virtual void hideDashboard() = 0;
    /// Whether this is the dashboard, or a window that belongs to it.
    [[nodiscard]] virtual bool isOfDashboard(const QWindow &window) const = 0;

    /// Opens the window with this identifier on the item's screen; an open one comes to the front.
    virtual void openWindow(const QString &identifier, const ItemPlace &place) = 0;

    /// Whether any of them is visible.
    [[nodiscard]] virtual bool isAnyShown() const = 0;

    /// Called when the dashboard closes by itself: on Escape, by its settings entry, or because its
    /// screen is gone. All callbacks must be set before a window is opened.
    std::function<void()> dashboardClosed;
    /// Called when the dashboard has lost the focus; it stays open.
    std::function<void()> dashboardLostFocus;
};

/// What the windows need from the desktop, which outlives them, and from the installation.
struct WindowsPlatform
{
    PopoverDesktop &popovers;
    PanelAppearanceSource &panel;
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

#define FerrinWindowsFactory_iid "org.ferrin.Ferrin.WindowsFactory/7"
Q_DECLARE_INTERFACE(ferrin::WindowsFactory, FerrinWindowsFactory_iid)
