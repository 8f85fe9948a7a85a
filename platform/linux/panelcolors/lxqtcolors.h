// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/panelcolors/filecolors.h"

namespace ferrin {

/// The colour of text on LXQt's panel: what the user set on the panel itself, else what the
/// desktop's theme says of it.
class LxqtColors final : public FileColors
{
    Q_OBJECT

public:
    using FileColors::FileColors;

private:
    [[nodiscard]] QStringList files() const override;
    [[nodiscard]] std::optional<QColor> readText() const override;
};

} // namespace ferrin
