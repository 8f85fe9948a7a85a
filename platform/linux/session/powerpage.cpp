// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/powerpage.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

struct Page
{
    const char *desktop;
    const char *program;
    /// Null where the program shows nothing else.
    const char *argument;
};

// Of one desktop, the newer program first.
constexpr Page pages[] = {
    { "Budgie", "budgie-control-center", "power" },
    { "Budgie", "gnome-control-center", "power" },
    { "GNOME", "gnome-control-center", "power" },
    { "KDE", "systemsettings", "kcm_powerdevilprofilesconfig" },
    { "KDE", "systemsettings5", "powerdevilprofilesconfig" },
    { "KDE", "kcmshell6", "kcm_powerdevilprofilesconfig" },
    { "KDE", "kcmshell5", "kcm_powerdevilprofilesconfig" },
    { "LXQt", "lxqt-config-powermanagement", nullptr },
    { "MATE", "mate-power-preferences", nullptr },
    { "Unity", "unity-control-center", "power" },
    { "Unity", "gnome-control-center", "power" },
    { "X-Cinnamon", "cinnamon-settings", "power" },
    { "XFCE", "xfce4-power-manager-settings", nullptr },
};

} // namespace

QList<CommandLine> powerPagesOf(const QStringList &desktops)
{
    QList<CommandLine> programs;
    for (const QString &desktop : desktops) {
        for (const Page &page : pages) {
            if (desktop.compare(QLatin1String(page.desktop), Qt::CaseInsensitive) != 0)
                continue;
            CommandLine command { QString::fromLatin1(page.program), {} };
            if (page.argument)
                command.arguments.append(QString::fromLatin1(page.argument));
            if (!programs.contains(command))
                programs.append(command);
        }
    }
    return programs;
}

} // namespace ferrin
