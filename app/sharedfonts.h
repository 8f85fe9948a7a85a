// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QFont>

namespace ferrin {

/// The six fonts that views use by role, each the desktop's interface font. Sizes are logical
/// pixels.
struct SharedFonts
{
    QFont heavy13;
    QFont bold14;
    QFont regular12;
    QFont regular10;
    QFont regular8;
    QFont regular13;

    [[nodiscard]] static SharedFonts ofFamily(const QString &family);
};

} // namespace ferrin
