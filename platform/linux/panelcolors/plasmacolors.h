// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/panelcolors/filecolors.h"

namespace ferrin {

/// The colour of text on Plasma's panel, by Plasma's own settings: that of the panel's theme,
/// or, where the theme leaves the colours to the user, that of the user's colour scheme.
class PlasmaColors final : public FileColors
{
    Q_OBJECT

public:
    using FileColors::FileColors;

private:
    [[nodiscard]] QStringList files() const override;
    [[nodiscard]] std::optional<QColor> readText() const override;
};

} // namespace ferrin
