// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/dashboard.h"

#include "quick/quickengine.h"
#include "state/appstatus.h"

namespace ferrin {

Dashboard::Dashboard(AppStatus &status, QObject *parent)
    : QObject(parent)
    , m_status(status)
    , m_follower(
          status.bindableDashboardItemSelected().addNotifier([this] { Q_EMIT selectedChanged(); }))
{
}

Dashboard *Dashboard::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<Dashboard>(*engine);
}

Dashboard::MenuButton Dashboard::selected() const
{
    return MenuButton(m_status.dashboardItemSelected());
}

void Dashboard::setSelected(MenuButton button)
{
    m_status.setDashboardItemSelected(DashboardMenuButton(button));
}

} // namespace ferrin
