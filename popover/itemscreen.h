// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QScreen;

namespace ferrin {

struct ItemPlace;

/// The screen of an item, or the primary one for an item whose place is not known. Null where there
/// is no screen.
[[nodiscard]] QScreen *screenOf(const ItemPlace &place);

} // namespace ferrin
