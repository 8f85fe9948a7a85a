// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"
#include "state/menubuttons.h"

#include <QObject>
#include <QProperty>

namespace ferrin {

/// Which section is selected in the dashboard and in the settings window. Every start begins with
/// the same two; nothing of it is persisted. One instance serves the process.
class AppStatus : public QObject
{
    Q_OBJECT

public:
    /// The process's, made on first use.
    [[nodiscard]] static AppStatus &shared();

    using QObject::QObject;

    [[nodiscard]] DashboardMenuButton dashboardItemSelected() const { return m_dashboardItem; }
    void setDashboardItemSelected(DashboardMenuButton item) { m_dashboardItem = item; }
    [[nodiscard]] Bindable<DashboardMenuButton> bindableDashboardItemSelected()
    {
        return &m_dashboardItem;
    }

    [[nodiscard]] SettingsMenuButton settingsItemSelected() const { return m_settingsItem; }
    void setSettingsItemSelected(SettingsMenuButton item) { m_settingsItem = item; }
    [[nodiscard]] Bindable<SettingsMenuButton> bindableSettingsItemSelected()
    {
        return &m_settingsItem;
    }

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppStatus, DashboardMenuButton, m_dashboardItem,
                                         DashboardMenuButton::status)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppStatus, SettingsMenuButton, m_settingsItem,
                                         SettingsMenuButton::icon)
};

} // namespace ferrin
