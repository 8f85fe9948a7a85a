// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/menubuttons.h"

namespace ferrin {

using namespace Qt::StringLiterals;

QString rawValue(DashboardMenuButton button)
{
    switch (button) {
    case DashboardMenuButton::status:
        return u"status"_s;
    case DashboardMenuButton::health:
        return u"health"_s;
    case DashboardMenuButton::adapter:
        return u"adapter"_s;
    case DashboardMenuButton::settings:
        return u"settings"_s;
    }
    Q_UNREACHABLE();
}

QString rawValue(SettingsMenuButton button)
{
    switch (button) {
    case SettingsMenuButton::general:
        return u"general"_s;
    case SettingsMenuButton::icon:
        return u"icon"_s;
    case SettingsMenuButton::support:
        return u"support"_s;
    case SettingsMenuButton::about:
        return u"about"_s;
    case SettingsMenuButton::quit:
        return u"quit"_s;
    }
    Q_UNREACHABLE();
}

} // namespace ferrin
