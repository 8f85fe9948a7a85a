// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemform.h"
#include "platform/linux/panelcolors/panelkind.h"

#include <QStringView>

#include <span>

namespace ferrin {

/// Which device scales a host's pictures are painted at.
enum class ScalePolicy {
    /// The sizes of the table and nothing else: the host counts in device pixels.
    Never,
    /// All of them at the desktop's scale and none at 1x: the host takes the first that fits, and
    /// would blow up a small one.
    DesktopOnly,
};

/// One picture that a host is offered: its height in logical pixels, painted at `density` device
/// pixels each (48 px high is 24 at density 2, with text twice as large).
struct OfferedPicture
{
    ItemForm form = ItemForm::Wide;
    int height = 22;
    int density = 1;

    bool operator==(const OfferedPicture &) const = default;
};

/// How one kind of host wants its item. A host is known by the name of its process.
struct HostProfile
{
    /// For tests and logs.
    QLatin1StringView name {};
    /// In the order in which they are offered.
    std::span<const OfferedPicture> pictures {};
    ScalePolicy scale = ScalePolicy::Never;
    PanelText text = PanelText::Unknown;
    /// The host draws a text label beside the icon.
    bool label = false;
    /// The host takes the pixels for premultiplied ones.
    bool premultiplied = false;
    /// A click opens the item's menu, whatever the item says.
    bool clickOpensMenu = false;
    /// The host's click coordinates are places on the screen.
    bool trustedClicks = false;

    [[nodiscard]] PanelKind panel() const { return { .name = name, .usualText = text }; }
};

/// The profile of a process by its whole name, as the kernel tells it (at most 15 characters); an
/// unknown name gets the mixed list, which is right in all hosts but the pickiest. The answers live
/// for ever and may be compared by address.
[[nodiscard]] const HostProfile &profileForProcess(QStringView processName);

/// The profile for a caller of whom nothing is known.
[[nodiscard]] const HostProfile &mixedProfile();

/// Every row of the table.
[[nodiscard]] std::span<const HostProfile> allHostProfiles();

} // namespace ferrin
