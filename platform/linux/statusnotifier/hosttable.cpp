// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hosttable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

using enum ItemForm;

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
                                    OfferedPicture { Wide, 20 }, OfferedPicture { Wide, 24, 2 },
                                    OfferedPicture { Wide, 29 }, OfferedPicture { Wide, 21 } };
constexpr std::array cinnamonPictures { OfferedPicture { Wide, 24, 1 },
                                        OfferedPicture { Wide, 24, 2 } };
constexpr std::array gnomePictures { OfferedPicture { Glyph, 16, 1 },
                                     OfferedPicture { Glyph, 16, 2 } };
// Wide ones first, for hosts that take the first; the widest has the largest area, for hosts that
// take the largest; squares for hosts that refuse anything else.
constexpr std::array mixedPictures {
    OfferedPicture { Wide, 22, 1 }, OfferedPicture { Wide, 24, 1 }, OfferedPicture { Wide, 24, 2 },
    OfferedPicture { Square, 16 },  OfferedPicture { Square, 22 },  OfferedPicture { Square, 24 },
    OfferedPicture { Square, 32 },  OfferedPicture { Square, 48 }
};

const std::array profiles {
    HostProfile { .name = "mixed"_L1, .pictures = mixedPictures },
    HostProfile { .name = "xfce4-panel"_L1,
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
    HostProfile { .name = "notification-area-applet"_L1, .pictures = matePictures },
    HostProfile { .name = "xapp-sn-watcher"_L1, .pictures = cinnamonPictures },
    HostProfile { .name = "gnome-shell"_L1,
                  .pictures = gnomePictures,
                  .scale = ScalePolicy::DesktopOnly,
                  .text = PanelText::Light,
                  .label = true,
                  .clickOpensMenu = true },
};

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

// Xfce runs each panel plugin as a process of its own, "panel-7-systray".
bool isXfceSystrayPlugin(QStringView processName)
{
    constexpr auto prefix = "panel-"_L1;
    const QString suffix = u"-systray"_s;
    if (!processName.startsWith(prefix))
        return false;
    const auto *numberEnd = std::find_if_not(processName.begin() + prefix.size(), processName.end(),
                                             [](QChar c) { return c >= u'0' && c <= u'9'; });
    const QStringView rest(numberEnd, processName.end());
    const bool hasNumber = numberEnd != processName.begin() + prefix.size();
    const bool isCut = processName.size() == longestName;
    return hasNumber && (isCut ? !rest.isEmpty() && suffix.startsWith(rest) : rest == suffix);
}

} // namespace

const HostProfile &profileForProcess(QStringView processName)
{
    if (isXfceSystrayPlugin(processName))
        return profileForProcess(u"xfce4-panel");
    const auto row = std::find_if(
        profiles.begin() + 1, profiles.end(),
        [processName](const HostProfile &profile) { return isProcess(processName, profile.name); });
    return row == profiles.end() ? mixedProfile() : *row;
}

const HostProfile &mixedProfile()
{
    return profiles.front();
}

std::span<const HostProfile> allHostProfiles()
{
    return profiles;
}

} // namespace ferrin
