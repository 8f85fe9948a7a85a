// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/dashboard.h"

#include "quick/quickengine.h"
#include "state/appstatus.h"

#include <QLocale>

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

QString Dashboard::integerText(qlonglong count)
{
    QLocale locale;
    // As the locale C is, but not where it is the system's.
    if (locale.language() == QLocale::C)
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(count);
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
