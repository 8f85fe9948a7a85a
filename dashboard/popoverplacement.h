// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace ferrin {

/// The top-left corner of a popover of this size: centred on the item's middle, below an item in
/// the upper half of its screen and above one in the lower half, moved as little as needed to lie
/// wholly inside `available`. All in logical pixels of the desktop.
[[nodiscard]] QPoint popoverPosition(const QRect &item, const QSize &size, const QRect &available);

} // namespace ferrin
