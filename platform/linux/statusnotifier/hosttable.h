// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemform.h"
#include "platform/linux/panelcolors/panelkind.h"
#include "platform/linux/statusnotifier/hostprocess.h"

#include <QStringList>

#include <span>

namespace ferrin {

/// Which device scales a host's pictures are painted at.
enum class ScalePolicy {
    /// The sizes of the table and nothing else: the host counts in device pixels.
    Never,
    /// All of them at the desktop's scale and none at 1x: the host takes the first that fits, and
    /// would scale up a small one.
    DesktopOnly,
};

/// When a host opens the item's menu.
enum class MenuUse {
    /// On the secondary click; the primary one activates the item.
    Secondary,
    /// On every click, so that the menu has to lead to the windows too.
    EveryClick,
    /// As `Secondary` for an item of its own, as `EveryClick` for one that an indicator service
    /// has passed on to it.
    IndicatorsOnEveryClick,
};

/// One picture that a host is offered: its height in logical pixels, painted at `density` device
/// pixels each (48 px high is 24 at density 2, with text twice as large).
struct OfferedPicture
{
    ItemForm form = ItemForm::Square;
    int height = 22;
    int density = 1;

    bool operator==(const OfferedPicture &) const = default;
};

/// How one kind of host wants its item.
struct HostProfile
{
    /// The name of the host's process; for tests and logs, and for its panel's colours.
    QLatin1StringView name {};
    /// In the order in which they are offered. Empty for a host that draws `IconName` alone.
    std::span<const OfferedPicture> pictures {};
    /// In their place where the host's panel stands at a side of the screen; empty where that makes
    /// no difference.
    std::span<const OfferedPicture> standingPictures {};
    ScalePolicy scale = ScalePolicy::Never;
    PanelText text = PanelText::Unknown;
    /// The host draws a text label beside the icon.
    bool label = false;
    /// The host draws icons by their names, in its panel's own colour.
    bool iconName = false;
    /// The pictures are offered at the heights of the screen's panels too.
    bool panelHeights = false;
    /// The host takes the pixels for premultiplied ones.
    bool premultiplied = false;
    MenuUse menu = MenuUse::Secondary;
    /// The host's click coordinates are places on the screen.
    bool trustedClicks = false;

    [[nodiscard]] std::span<const OfferedPicture> picturesFor(bool isPanelStanding) const
    {
        return isPanelStanding && !standingPictures.empty() ? standingPictures : pictures;
    }
    [[nodiscard]] PanelKind panel() const { return { .name = name, .usualText = text }; }
};

/// The profile of a process on a desktop with these names (`XDG_CURRENT_DESKTOP`); for a process
/// that the table does not have `unknownProfile()`. Profiles live as long as the program and may be
/// compared by address.
[[nodiscard]] const HostProfile &profileFor(const HostProcess &process,
                                            const QStringList &desktops = {});

/// The profile of a caller of which nothing is known: squares, which no host distorts, and the menu
/// that leads everywhere.
[[nodiscard]] const HostProfile &unknownProfile();

/// Every row of the table.
[[nodiscard]] std::span<const HostProfile> allHostProfiles();

} // namespace ferrin
