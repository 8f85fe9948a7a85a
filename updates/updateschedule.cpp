// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updateschedule.h"

#include <algorithm>

namespace ferrin::updateschedule {

namespace {

std::chrono::milliseconds untilDue(const std::optional<QDateTime> &lastCheck, const QDateTime &now)
{
    using std::chrono::milliseconds;
    if (!lastCheck || *lastCheck > now)
        return milliseconds(0);
    const milliseconds past(lastCheck->msecsTo(now));
    return std::max(milliseconds(betweenChecks) - past, milliseconds(0));
}

} // namespace

bool isDue(const std::optional<QDateTime> &lastCheck, const QDateTime &now)
{
    return untilDue(lastCheck, now).count() == 0;
}

std::chrono::milliseconds untilNextLook(const std::optional<QDateTime> &lastCheck,
                                        const QDateTime &now)
{
    return std::clamp<std::chrono::milliseconds>(untilDue(lastCheck, now), afterStart,
                                                 betweenLooks);
}

} // namespace ferrin::updateschedule
