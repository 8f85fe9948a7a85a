// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/windows.h"
#include "dashboard/dashboardwindow.h"
#include "settingswindow/settingswindow.h"

#include <QObject>

namespace ferrin {

namespace {

/// Both windows on one engine, each made when it is first opened.
class QuickWindows final : public Windows
{
public:
    void showDashboard(const QRect &item, const QPoint &pointer) override
    {
        m_dashboard = std::make_unique<DashboardWindow>();
        QObject::connect(m_dashboard.get(), &DashboardWindow::dismissed, m_dashboard.get(), [this] {
            if (dashboardClosed)
                dashboardClosed();
        });
        m_dashboard->openAt(item, pointer);
    }

    void hideDashboard() override
    {
        // The window may be in the middle of telling that it closed.
        if (m_dashboard)
            m_dashboard.release()->deleteLater();
    }

    void openWindow(const QString &identifier) override
    {
        if (identifier != SettingsWindow::identifier())
            return;
        if (!m_settings)
            m_settings = std::make_unique<SettingsWindow>();
        m_settings->open();
    }

private:
    std::unique_ptr<DashboardWindow> m_dashboard;
    std::unique_ptr<SettingsWindow> m_settings;
};

} // namespace

class WindowsPlugin final : public QObject, public WindowsFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FerrinWindowsFactory_iid)
    Q_INTERFACES(ferrin::WindowsFactory)

public:
    [[nodiscard]] std::unique_ptr<Windows> create() override
    {
        return std::make_unique<QuickWindows>();
    }
};

} // namespace ferrin

#include "windowsplugin.moc"
