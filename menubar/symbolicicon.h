// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

#include <QByteArray>

namespace ferrin {

/// The icon as an SVG image of 24 by 24 pixels that a toolkit may recolour: shapes that are filled
/// and not stroked, in one colour but for the class "error" of a nearly empty battery's fill.
[[nodiscard]] QByteArray symbolicIcon(const IconElement &icon);

} // namespace ferrin
