// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QRect>

namespace ferrin {

/// Where a status item stands, for what opens beside it. Logical pixels of the desktop.
struct ItemPlace
{
    /// The item, or the spot of it that was clicked. Null where it is not known.
    QRect item {};
    /// The panel that holds the item and that nothing may cover. Null where it is not known.
    QRect panel {};

    bool operator==(const ItemPlace &) const = default;
};

} // namespace ferrin
