// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/applicationappearance.h"

namespace ferrin {

namespace {

ApplicationAppearance *current = nullptr;
}

ApplicationAppearance *ApplicationAppearance::shared() noexcept
{
    return current;
}

ApplicationAppearance::ApplicationAppearance()
{
    current = this;
}

ApplicationAppearance::~ApplicationAppearance()
{
    if (current == this)
        current = nullptr;
}

} // namespace ferrin
