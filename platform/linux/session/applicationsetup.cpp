// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/applicationsetup.h"

#include "base/logging.h"

#include <QDir>
#include <QGuiApplication>
#include <QLocale>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

constexpr auto bypassVariable = "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT";
constexpr auto positionsVariable = "QT_WAYLAND_DISABLE_FIXED_POSITIONS";

} // namespace

void setUpApplication()
{
    // Naming another theme does not help: on a GTK desktop Qt tries the GTK theme's plugin after
    // any name that it does not know, and the portal's theme wraps it. It costs 68 MB.
    QGuiApplication::setDesktopSettingsAware(false);

    // Qt's Wayland platform reads these for itself. By the one it makes no shell surface for a
    // window with that hint and lets it show all the same, in a layer of the desktop; by the other
    // it keeps the place that such a window was given.
    qputenv(bypassVariable, "1");
    qputenv(positionsVariable, "1");
}

Qt::LayoutDirection layoutDirectionFor(const QStringList &languages)
{
    return languages.isEmpty() ? Qt::LeftToRight : QLocale(languages.constFirst()).textDirection();
}

void followLayoutDirection()
{
    // Qt's option -reverse mirrors an application on any desktop.
    if (layoutDirectionFor(QLocale::system().uiLanguages()) == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}

void logMissingWaylandPlugin(const QString &pluginFolder)
{
    const QDir plugins(pluginFolder + u"/platforms"_s);
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !plugins.entryList({ u"libqwayland*"_s }).isEmpty())
        return;
    qCCritical(
        logger,
        "Qt's plugin for Wayland is missing (package qt6-wayland): windows cannot open at the "
        "item");
}

void withoutSetUp(QProcessEnvironment &environment)
{
    environment.remove(QString::fromLatin1(bypassVariable));
    environment.remove(QString::fromLatin1(positionsVariable));
}

} // namespace ferrin
