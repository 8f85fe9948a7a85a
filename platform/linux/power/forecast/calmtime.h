// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/hours.h"

#include <optional>

namespace ferrin {

/// The remaining time as it is shown: a clock that runs down by itself, and is only set when what
/// was calculated has left it behind by more than a twentieth.
class CalmTime
{
public:
    /// What to show for a time that was calculated at this moment.
    [[nodiscard]] Hours show(Hours calculated, Hours moment);

    /// The next time is shown as it is.
    void restart() { m_end.reset(); }

private:
    std::optional<Hours> m_end;
};

} // namespace ferrin
