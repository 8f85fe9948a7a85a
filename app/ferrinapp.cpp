// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/ferrinapp.h"

#include "menubar/menubarextraaccess.h"
#include "menubar/statusitem.h"
#include "state/appcolorscheme.h"
#include "state/appcolorschemeprovider.h"
#include "updates/appupdater.h"

#include <utility>

namespace ferrin {

FerrinApp::FerrinApp(Parts parts)
    : m_parts(std::move(parts))
    , m_appColor(AppColor::shared())
    , m_dismissal(m_parts.presses, [this](const QWindow &window) {
        return m_windows && m_windows->isOfDashboard(window);
    })
{
    connect(&AppUpdater::shared().controller()->updater()->session(),
            &UpdateSession::presentationRequested, this,
            [this] { openWindow(QStringLiteral("FerrinUpdate")); });
    connect(&m_dismissal, &PopoverDismissal::dismissed, this, [this] { setDashboardShown(false); });
    connect(this, &FerrinApp::isDashboardShownChanged, this, &FerrinApp::showOrHideDashboard);
}

FerrinApp::~FerrinApp() = default;

void FerrinApp::useStatusBar(StatusBar &bar)
{
    m_statusBar = &bar;
    m_menuBarExtra = std::make_unique<MenuBarExtraAccess>(
        bar, [this](StatusItem &item) { takeStatusItem(item); });

    MenuBarExtraAccess *const extra = m_menuBarExtra.get();
    extra->setClickFilter([this] { return m_dismissal.isNewClick(); });
    extra->setMenuPresented(isDashboardShown());
    connect(extra, &MenuBarExtraAccess::isMenuPresentedChanged, this,
            [this, extra] { setDashboardShown(extra->isMenuPresented()); });
    connect(this, &FerrinApp::isDashboardShownChanged, extra,
            [this, extra] { extra->setMenuPresented(isDashboardShown()); });
    extra->setUp();
}

void FerrinApp::takeStatusItem(StatusItem &item)
{
    AppColorSchemeProvider().apply(m_appColor.scheme());
    connect(&item, &StatusItem::settingsRequested, this, &FerrinApp::openSettings);
    m_parts.fillStatusItem(item);
}

void FerrinApp::showOrHideDashboard()
{
    if (!isDashboardShown()) {
        m_dismissal.popoverHidden();
        if (m_windows)
            m_windows->hideDashboard();
        return;
    }
    if (!windows()) {
        setDashboardShown(false);
        return;
    }
    m_windows->showDashboard(itemPlace());
    m_dismissal.popoverShown();
}

void FerrinApp::openSettings()
{
    setDashboardShown(false);
    openWindow(QStringLiteral("FerrinSettings"));
}

bool FerrinApp::isInUse() const
{
    return isDashboardShown() || (m_windows && m_windows->isAnyShown());
}

void FerrinApp::openWindow(const QString &identifier)
{
    if (Windows *const all = windows())
        all->openWindow(identifier, itemPlace());
}

ItemPlace FerrinApp::itemPlace() const
{
    const StatusItem *const item = m_statusBar ? m_statusBar->item() : nullptr;
    return item ? item->place() : ItemPlace();
}

Windows *FerrinApp::windows()
{
    if (!m_windows && m_parts.loadWindows) {
        m_windows = m_parts.loadWindows();
        if (m_windows) {
            m_windows->dashboardClosed = [this] { setDashboardShown(false); };
            m_windows->dashboardLostFocus = [this] { m_dismissal.focusLost(); };
        }
    }
    return m_windows.get();
}

} // namespace ferrin
