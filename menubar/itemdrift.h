// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

namespace ferrin {

/// The one content became the other by a few minutes of the same life: the figures moved on, and
/// nothing happened that a user would wait to see.
[[nodiscard]] bool isDrift(const ItemContent &before, const ItemContent &now);

} // namespace ferrin
