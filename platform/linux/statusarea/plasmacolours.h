// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/statusarea/filecolours.h"

namespace ferrin {

/// The colour of text on Plasma's panel, as Plasma's own settings tell: that of the panel's theme,
/// or, where the theme leaves the colours to the user, that of the user's colour scheme.
class PlasmaColours final : public FileColours
{
    Q_OBJECT

public:
    using FileColours::FileColours;

private:
    [[nodiscard]] QStringList files() const override;
    [[nodiscard]] std::optional<QColor> readText() const override;
};

} // namespace ferrin
