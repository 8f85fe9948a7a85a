// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/applicationsetup.h"

#include <QGuiApplication>

namespace ferrin {

void setUpApplication()
{
    // Naming another theme does not help: on a GTK desktop Qt tries the GTK theme's plugin after
    // any name that it does not know, and the portal's theme wraps it. It costs 68 MB.
    QGuiApplication::setDesktopSettingsAware(false);
}

} // namespace ferrin
