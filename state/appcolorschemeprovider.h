// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/appcolorscheme.h"

namespace ferrin {

/// Applies a colour scheme to the whole application. It holds nothing, persists nothing.
class AppColorSchemeProvider
{
public:
    /// Stands until the next one. Before the application has started it is a programming error and
    /// stops the process.
    void apply(AppColorScheme scheme) const;
};

} // namespace ferrin
