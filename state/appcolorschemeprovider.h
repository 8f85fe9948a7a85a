// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/appcolorscheme.h"

namespace ferrin {

/// Applies a colour scheme to the whole application. Stateless; it stores nothing.
class AppColorSchemeProvider
{
public:
    /// Valid until the next call. Calling it before the application has started is a programming
    /// error and stops the process.
    void apply(AppColorScheme scheme) const;
};

} // namespace ferrin
