// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/windows.h"
#include "popover/popoverdismissal.h"

#include <QObject>
#include <QProperty>

#include <functional>
#include <memory>

namespace ferrin {

class AppColor;
class MenuBarExtraAccess;
class PressWatcher;
class StatusBar;
class StatusItem;

/// The application: its two scenes, the menu-bar extra whose window is the dashboard and the window
/// "Ferrin Settings", and the state that they share. It makes nothing that they do not need at
/// once; the long-lived services are made by whoever asks for them first. Owned by `main`; knows no
/// platform.
class FerrinApp final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDashboardShown READ isDashboardShown WRITE setDashboardShown NOTIFY
                   isDashboardShownChanged)

public:
    struct Parts
    {
        /// Loads the module of the windows when the first of them opens; may answer null.
        std::function<std::unique_ptr<Windows>()> loadWindows;
        /// Watches presses that are meant for others; null where there is no way to. Outlives the
        /// application.
        PressWatcher *presses = nullptr;
        /// Puts the item into the process-wide provider of its content and has that built.
        std::function<void(StatusItem &)> fillStatusItem;
    };

    /// Binds the stored colour scheme, the first use of the defaults store, and starts the updater.
    explicit FerrinApp(Parts parts);
    ~FerrinApp() override;

    /// Declares the menu-bar extra on this bar, in the place of one on an earlier bar.
    void useStatusBar(StatusBar &bar);

    /// The dashboard is open. Not persisted.
    [[nodiscard]] bool isDashboardShown() const { return m_isDashboardShown; }
    void setDashboardShown(bool shown) { m_isDashboardShown = shown; }

    /// Opens the settings window, or brings it to the front; the dashboard closes.
    void openSettings();

    /// The user looks at one of the windows.
    [[nodiscard]] bool isInUse() const;

Q_SIGNALS:
    void isDashboardShownChanged();

private:
    void takeStatusItem(StatusItem &item);
    void showOrHideDashboard();
    void openWindow(const QString &identifier);
    [[nodiscard]] ItemPlace itemPlace() const;
    [[nodiscard]] Windows *windows();

    Parts m_parts;
    AppColor &m_appColor;
    PopoverDismissal m_dismissal;
    std::unique_ptr<Windows> m_windows;
    StatusBar *m_statusBar = nullptr;
    std::unique_ptr<MenuBarExtraAccess> m_menuBarExtra;
    Q_OBJECT_BINDABLE_PROPERTY(FerrinApp, bool, m_isDashboardShown,
                               &FerrinApp::isDashboardShownChanged)
};

} // namespace ferrin
