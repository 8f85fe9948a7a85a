// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"
#include "platform/linux/statusnotifier/hosttable.h"
#include "platform/linux/statusnotifier/statusnotifiertypes.h"

#include <QHash>

#include <map>
#include <utility>

namespace ferrin {

/// Paints what a host is offered and keeps it, so that a host that reads everything anew costs no
/// painting. A wide picture keeps its width while little changes. Holds only the pictures of hosts
/// that asked.
class ItemPictures
{
public:
    struct Surroundings
    {
        /// Device pixels to a logical one.
        qreal desktopScale = 1;
        /// The thickness of the panels on the screen, in device pixels.
        QList<int> panelHeights {};
        /// The host's panel stands at a side of the screen.
        bool isPanelStanding = false;

        bool operator==(const Surroundings &) const = default;
    };

    /// The pictures of the content for such a host, in the order in which they are offered.
    [[nodiscard]] const IconPixmapList &pictures(const HostProfile &profile,
                                                 const ItemContent &content,
                                                 const ViewContext &context,
                                                 const Surroundings &surroundings);

    /// Drops the pictures for such hosts.
    void forget(const HostProfile &profile) { m_painted.remove(&profile); }

private:
    struct Painted
    {
        ItemContent content;
        ViewContext context;
        /// Of no desktop before the first painting.
        Surroundings surroundings { .desktopScale = 0 };
        /// Of the forms at their heights, logical pixels; for as long as the battery's state lasts.
        std::map<std::pair<ItemForm, int>, qreal> widths;
        IconPixmapList pictures;
    };

    static qreal keptWidth(Painted &painted, const OfferedPicture &offer,
                           const ViewContext &context);
    static IconPixmapList paintAll(const HostProfile &profile, Painted &painted);

    QHash<const HostProfile *, Painted> m_painted;
};

} // namespace ferrin
