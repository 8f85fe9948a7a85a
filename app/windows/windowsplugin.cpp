// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/windows.h"
#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "dashboard/adapter.h"
#include "dashboard/battery.h"
#include "dashboard/dashboard.h"
#include "dashboard/dashboardwindow.h"
#include "popover/itemscreen.h"
#include "quick/quickengine.h"
#include "settingswindow/general/colortheme.h"
#include "settingswindow/general/launchatlogin.h"
#include "settingswindow/menubaricon/menubaricon.h"
#include "settingswindow/settings.h"
#include "settingswindow/settingswindow.h"
#include "settingswindow/support/links.h"
#include "settingswindow/updates/softwareupdates.h"
#include "settingswindow/updates/updatewindow.h"
#include "state/appcolorscheme.h"
#include "state/appstatus.h"
#include "state/displayswitches.h"
#include "state/settingsdata.h"
#include "state/shareddefaults.h"
#include "updates/appupdater.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace ferrin {

namespace {

/// All windows on one engine, each created when it is first opened.
class QuickWindows final : public Windows
{
public:
    explicit QuickWindows(const WindowsPlatform &platform)
        : m_engine(platform.popovers)
        , m_battery(*BatteryDataProvider::shared().data(), &m_engine)
        , m_adapter(StoredData::shared(), *BatteryDataProvider::shared().data(), &m_engine)
        , m_dashboardState(AppStatus::shared(), &m_engine)
        , m_colorTheme(AppColor::shared(), &m_engine)
        , m_launchAtLogin(platform.loginItem, LaunchAtLoginObservable::shared(), &m_engine)
        , m_links(platform.links, platform.vendor, &m_engine)
        , m_menuBarIcon({ *BatteryDataProvider::shared().data(), SettingsData::shared(),
                          DisplaySwitches::shared(), &platform.panel },
                        &m_engine)
        , m_settingsState(AppStatus::shared(), &m_engine)
        , m_updates(*AppUpdater::shared().controller()->updater(), &m_engine)
    {
        QObject::connect(&m_dashboardState, &Dashboard::closeRequested, &m_engine,
                         [this] { dashboardClosed(); });
        // Creating the window takes less time than moving from hovering its entry to clicking it.
        m_preparation.setSingleShot(true);
        m_preparation.setInterval(litEntry);
        QObject::connect(&m_dashboardState, &Dashboard::settingsExpected, &m_preparation,
                         qOverload<>(&QTimer::start));
        QObject::connect(&m_preparation, &QTimer::timeout, &m_engine, [this] { settings(); });
        QObject::connect(&m_dashboardState, &Dashboard::settingsRequested, &m_engine,
                         [this] { openWindow(SettingsWindow::identifier(), m_item); });
        QObject::connect(&m_dashboardState, &Dashboard::helpRequested, &m_engine,
                         [this] { m_links.open(m_links.faq()); });
        QObject::connect(&m_settingsState, &Settings::dismissRequested, &m_engine,
                         [this] { m_settings->close(); });
        QObject::connect(&m_settingsState, &Settings::quitRequested, qApp, &QCoreApplication::quit);
    }

    void showDashboard(const ItemPlace &place) override
    {
        m_item = place;
        m_dashboard = std::make_unique<DashboardWindow>(m_engine);
        QObject::connect(m_dashboard.get(), &DashboardWindow::dismissed, &m_engine,
                         [this] { dashboardClosed(); });
        QObject::connect(m_dashboard.get(), &DashboardWindow::focusLost, &m_engine,
                         [this] { dashboardLostFocus(); });
        // The report tool blocks, so it runs only after the first frame.
        QObject::connect(m_dashboard.get(), &DashboardWindow::firstFrameShown,
                         &BatteryDataProvider::shared(), &BatteryDataProvider::updateStaticData);
        m_dashboard->openAt(place);
    }

    void hideDashboard() override
    {
        if (!m_dashboard)
            return;
        // The window may be emitting its own closing signal.
        DashboardWindow *const window = m_dashboard.release();
        window->disconnect(&m_engine);
        window->hide();
        window->deleteLater();
    }

    [[nodiscard]] bool isOfDashboard(const QWindow &window) const override
    {
        return m_dashboard && (&window == m_dashboard.get() || m_dashboard->isAncestorOf(&window));
    }

    void openWindow(const QString &identifier, const ItemPlace &place) override
    {
        QScreen *const screen = screenOf(place);
        if (identifier == SettingsWindow::identifier()) {
            settings().open(screen);
        } else if (identifier == UpdateWindow::identifier()) {
            if (!m_updateWindow)
                m_updateWindow = std::make_unique<UpdateWindow>(m_engine, m_updates);
            m_updateWindow->open(
                screen, m_settings && m_settings->isVisible() ? m_settings.get() : nullptr);
        }
    }

    [[nodiscard]] bool isAnyShown() const override
    {
        return m_dashboard || (m_settings && m_settings->isVisible())
            || (m_updateWindow && m_updateWindow->isVisible());
    }

private:
    /// Lets the hovered entry be painted first.
    static constexpr std::chrono::milliseconds litEntry { 30 };

    SettingsWindow &settings()
    {
        if (!m_settings)
            m_settings = std::make_unique<SettingsWindow>(m_engine, sharedDefaults());
        return *m_settings;
    }

    // Destroyed in reverse order: the windows before the objects that they are bound to, the engine
    // last.
    QuickEngine m_engine;
    Battery m_battery;
    Adapter m_adapter;
    Dashboard m_dashboardState;
    ColorTheme m_colorTheme;
    LaunchAtLogin m_launchAtLogin;
    Links m_links;
    MenuBarIcon m_menuBarIcon;
    Settings m_settingsState;
    SoftwareUpdates m_updates;
    /// Where the dashboard was last opened.
    ItemPlace m_item;
    std::unique_ptr<DashboardWindow> m_dashboard;
    std::unique_ptr<SettingsWindow> m_settings;
    std::unique_ptr<UpdateWindow> m_updateWindow;
    QTimer m_preparation;
};

} // namespace

class WindowsPlugin final : public QObject, public WindowsFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FerrinWindowsFactory_iid)
    Q_INTERFACES(ferrin::WindowsFactory)

public:
    [[nodiscard]] std::unique_ptr<Windows> create(const WindowsPlatform &platform) override
    {
        return std::make_unique<QuickWindows>(platform);
    }
};

} // namespace ferrin

#include "windowsplugin.moc"
