// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/chargecurve.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

double ChargeCurve::share(double charge) const
{
    return charge <= knee ? 1 : (100 - charge + tail) / (100 - knee + tail);
}

Hours ChargeCurve::between(double from, double to, double rate) const
{
    const double level = std::max(0.0, std::min(knee, to) - from);
    const double start = std::max(knee, from);
    if (to <= start)
        return Hours(level / rate);
    const double faded = (100 - knee + tail) * std::log((100 - start + tail) / (100 - to + tail));
    return Hours((level + faded) / rate);
}

} // namespace ferrin
