// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// Whether a panel's text is light or dark unless its user changed it.
enum class PanelText { Unknown, Light, Dark };

/// One kind of panel, as far as its colours are concerned.
struct PanelKind
{
    /// The name of the panel's process.
    QLatin1StringView name {};
    PanelText usualText = PanelText::Unknown;
};

} // namespace ferrin
