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
    /// With blanks between them; null where the program shows nothing else.
    const char *arguments;
};

// Of one desktop, the newer program first.
constexpr Page pages[] = {
    { "Budgie", "budgie-control-center", "power" },
    { "Budgie", "gnome-control-center", "power" },
    { "COSMIC", "cosmic-settings", "power" },
    { "DDE", "dde-control-center", "-s -p power" },
    { "Deepin", "dde-control-center", "-s -p power" },
    { "GNOME", "gnome-control-center", "power" },
    { "KDE", "systemsettings", "kcm_powerdevilprofilesconfig" },
    { "KDE", "systemsettings5", "powerdevilprofilesconfig" },
    { "KDE", "kcmshell6", "kcm_powerdevilprofilesconfig" },
    { "KDE", "kcmshell5", "kcm_powerdevilprofilesconfig" },
    { "LXQt", "lxqt-config-powermanagement", nullptr },
    { "MATE", "mate-power-preferences", nullptr },
    { "Pantheon", "io.elementary.settings", "settings://power" },
    { "Pantheon", "io.elementary.switchboard", "settings://power" },
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
            const CommandLine command {
                QString::fromLatin1(page.program),
                QString::fromLatin1(page.arguments).split(u' ', Qt::SkipEmptyParts)
            };
            if (!programs.contains(command))
                programs.append(command);
        }
    }
    return programs;
}

} // namespace ferrin
