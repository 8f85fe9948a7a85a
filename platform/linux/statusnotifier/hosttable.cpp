// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hosttable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

using enum ItemForm;

// A host that does not choose takes the first, others the smallest that fits or the largest.
constexpr std::array unknownPictures { OfferedPicture { Square, 22 }, OfferedPicture { Square, 16 },
                                       OfferedPicture { Square, 24 }, OfferedPicture { Square, 32 },
                                       OfferedPicture { Square, 48 } };
// Xfce draws 22 px whatever the height of its panel and takes the largest picture, which it then
// shrinks softly: so this one alone.
constexpr std::array xfcePictures { OfferedPicture { Square, 22 } };
constexpr std::array panelSquares { OfferedPicture { Square, 22 }, OfferedPicture { Square, 24 },
                                    OfferedPicture { Square, 32 }, OfferedPicture { Square, 48 } };
// swaybar takes the square nearest to its height, which follows the user's font.
constexpr std::array swaybarPictures {
    OfferedPicture { Square, 16 }, OfferedPicture { Square, 18 }, OfferedPicture { Square, 20 },
    OfferedPicture { Square, 22 }, OfferedPicture { Square, 24 }, OfferedPicture { Square, 28 },
    OfferedPicture { Square, 32 }, OfferedPicture { Square, 36 }, OfferedPicture { Square, 40 },
    OfferedPicture { Square, 48 }
};
// Waybar takes the largest area and draws it at its icon-size, 16 unless configured. Twice that
// reads well shrunk to 16 and at the larger sizes that people set; a picture of 16 is a blur there.
constexpr std::array waybarPictures { OfferedPicture { OneLine, 16, 2 } };
// MATE takes the tallest that is no higher than its panel: every usual height, most usual first.
constexpr std::array matePictures { OfferedPicture { Wide, 24 }, OfferedPicture { Wide, 25 },
                                    OfferedPicture { Wide, 26 }, OfferedPicture { Wide, 22 },
                                    OfferedPicture { Wide, 28 }, OfferedPicture { Wide, 30 },
                                    OfferedPicture { Wide, 23 }, OfferedPicture { Wide, 27 },
                                    OfferedPicture { Wide, 20 }, OfferedPicture { Wide, 29 },
                                    OfferedPicture { Wide, 21 }, OfferedPicture { Wide, 36 } };
// A standing panel of MATE's makes every picture as wide as itself.
constexpr std::array mateStandingPictures {
    OfferedPicture { Square, 24 }, OfferedPicture { Square, 28 }, OfferedPicture { Square, 32 },
    OfferedPicture { Square, 36 }, OfferedPicture { Square, 48 }
};
// Budgie takes the first and brings it to two thirds of its panel's height, but to 24 px at the
// most, which is what a panel of the usual height gives it.
constexpr std::array budgiePictures { OfferedPicture { Square, 24 }, OfferedPicture { Square, 32 },
                                      OfferedPicture { Square, 48 } };
constexpr std::array cinnamonPictures { OfferedPicture { Wide, 24, 1 },
                                        OfferedPicture { Wide, 24, 2 } };
constexpr std::array cinnamonStandingPictures { OfferedPicture { Square, 24, 1 },
                                                OfferedPicture { Square, 24, 2 } };
constexpr std::array gnomePictures { OfferedPicture { Glyph, 16, 1 },
                                     OfferedPicture { Glyph, 16, 2 } };

// Named, because the rows below and the rules further down share them.
constexpr auto xfce = "xfce4-panel"_L1;
constexpr auto cinnamon = "xapp-sn-watcher"_L1;
constexpr auto xappElsewhere = "xapp-sn-watcher outside Cinnamon"_L1;
constexpr auto indicatorPanel = "indicator panel"_L1;

const std::array profiles {
    HostProfile { .name = "unknown"_L1, .pictures = unknownPictures, .menu = MenuUse::EveryClick },
    HostProfile { .name = xfce,
                  .pictures = xfcePictures,
                  .scale = ScalePolicy::DesktopOnly,
                  .trustedClicks = true },
    HostProfile { .name = "plasmashell"_L1,
                  .pictures = panelSquares,
                  .scale = ScalePolicy::DesktopOnly,
                  .trustedClicks = true },
    HostProfile { .name = "lxqt-panel"_L1,
                  .pictures = panelSquares,
                  .scale = ScalePolicy::DesktopOnly,
                  .trustedClicks = true },
    HostProfile { .name = "swaybar"_L1,
                  .pictures = swaybarPictures,
                  .text = PanelText::Light,
                  .premultiplied = true,
                  .trustedClicks = true },
    HostProfile {
        .name = "waybar"_L1, .pictures = waybarPictures, .scale = ScalePolicy::DesktopOnly },
    HostProfile { .name = "notification-area-applet"_L1,
                  .pictures = matePictures,
                  .standingPictures = mateStandingPictures,
                  .panelHeights = true },
    HostProfile { .name = cinnamon,
                  .pictures = cinnamonPictures,
                  .standingPictures = cinnamonStandingPictures },
    // The watcher of the XApp applets, which fit everything into a square everywhere but on
    // Cinnamon.
    HostProfile { .name = xappElsewhere, .pictures = panelSquares },
    HostProfile { .name = "gnome-shell"_L1,
                  .pictures = gnomePictures,
                  .scale = ScalePolicy::DesktopOnly,
                  .text = PanelText::Light,
                  .label = true,
                  .menu = MenuUse::EveryClick },
    HostProfile { .name = "budgie-panel"_L1,
                  .pictures = budgiePictures,
                  .menu = MenuUse::IndicatorsOnEveryClick },
    HostProfile {
        .name = "enlightenment"_L1, .pictures = panelSquares, .menu = MenuUse::EveryClick },
    HostProfile { .name = "qtile"_L1,
                  .pictures = unknownPictures,
                  .premultiplied = true,
                  .menu = MenuUse::EveryClick },
    // The indicator service reads the item, and passes its name and label on to an applet in a
    // panel's process, which reads nothing but the menu.
    HostProfile { .name = "ayatana-indicator-application"_L1,
                  .label = true,
                  .iconName = true,
                  .menu = MenuUse::EveryClick },
    HostProfile { .name = indicatorPanel, .pictures = panelSquares, .menu = MenuUse::EveryClick },
};

const HostProfile &rowNamed(QLatin1StringView name)
{
    return *std::ranges::find(profiles, name, &HostProfile::name);
}

// The kernel cuts the name of a process.
constexpr qsizetype longestName = 15;

// A program goes by its own name, or, where its package wraps it, by ".NAME-wrapped".
bool isProcess(QStringView processName, QLatin1StringView program)
{
    const QString whole = program;
    const QString wrapped = u"."_s + program + u"-wrapped"_s;
    return processName == QStringView(whole).left(longestName)
        || processName == QStringView(wrapped).left(longestName);
}

// Up to 4.18 Xfce names the process of a panel plugin "panel-7-systray".
bool isXfcePlugin(QStringView processName, const QString &plugin)
{
    constexpr auto prefix = "panel-"_L1;
    const QString suffix = u'-' + plugin;
    if (!processName.startsWith(prefix))
        return false;
    const auto *numberEnd = std::find_if_not(processName.begin() + prefix.size(), processName.end(),
                                             [](QChar c) { return c >= u'0' && c <= u'9'; });
    const QStringView rest(numberEnd, processName.end());
    const bool hasNumber = numberEnd != processName.begin() + prefix.size();
    const bool isCut = processName.size() == longestName;
    return hasNumber && (isCut ? !rest.isEmpty() && suffix.startsWith(rest) : rest == suffix);
}

// From 4.20 on the process keeps the wrapper's name, and its second word is the plugin's library.
bool isXfceWrapperOf(const HostProcess &process, QLatin1StringView library)
{
    return process.name.startsWith("wrapper-"_L1)
        && process.arguments.value(1).endsWith(u'/' + library);
}

bool isIndicatorPanel(const HostProcess &process)
{
    return isProcess(process.name, "mate-indicator-applet"_L1)
        || isProcess(process.name, "mate-indicator-applet-complete"_L1)
        || isXfcePlugin(process.name, u"indicator-plugin"_s)
        || isXfceWrapperOf(process, "libindicator-plugin.so"_L1);
}

bool isCinnamon(const QStringList &desktops)
{
    return desktops.contains("X-Cinnamon"_L1) || desktops.contains("Cinnamon"_L1);
}

} // namespace

const HostProfile &profileFor(const HostProcess &process, const QStringList &desktops)
{
    if (isXfcePlugin(process.name, u"systray"_s) || isXfceWrapperOf(process, "libsystray.so"_L1))
        return rowNamed(xfce);
    if (isIndicatorPanel(process))
        return rowNamed(indicatorPanel);
    if (isProcess(process.name, cinnamon) && !isCinnamon(desktops))
        return rowNamed(xappElsewhere);
    const auto row
        = std::find_if(profiles.begin() + 1, profiles.end(), [&](const HostProfile &profile) {
              return isProcess(process.name, profile.name);
          });
    return row == profiles.end() ? unknownProfile() : *row;
}

const HostProfile &unknownProfile()
{
    return profiles.front();
}

std::span<const HostProfile> allHostProfiles()
{
    return profiles;
}

} // namespace ferrin
