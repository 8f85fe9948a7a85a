// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/settings.h"

#include "quick/quickengine.h"
#include "state/appstatus.h"

namespace ferrin {

Settings::Settings(AppStatus &status, QObject *parent)
    : QObject(parent)
    , m_status(status)
    , m_follower(
          status.bindableSettingsItemSelected().addNotifier([this] { Q_EMIT selectedChanged(); }))
{
}

Settings *Settings::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<Settings>(*engine);
}

Settings::MenuButton Settings::selected() const
{
    return MenuButton(m_status.settingsItemSelected());
}

void Settings::setSelected(MenuButton button)
{
    m_status.setSettingsItemSelected(SettingsMenuButton(button));
}

} // namespace ferrin
