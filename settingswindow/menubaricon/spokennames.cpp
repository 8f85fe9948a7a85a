// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/spokennames.h"

#include <array>

namespace ferrin {

namespace {

// In the order of the icons.
constexpr std::array names {
    u"Upright battery",
    u"Lying battery",
    u"Lying battery with a bolt",
    u"Upright battery with a faint outline",
    u"Lying battery with a faint outline",
    u"Lying battery with a faint outline and a bolt",
    u"Upright battery with a faint filling",
    u"Lying battery with a faint filling",
    u"Lying battery with a faint filling and a bolt",
    u"Upright battery with a strong outline",
    u"Lying battery with a strong outline",
    u"Lying battery with a strong outline and a bolt",
    u"Arrow up in a square",
    u"Arrow up in a filled square",
    u"Arrow up in a circle",
    u"Arrow up in a filled circle",
    u"Broad arrow up in a circle",
    u"Broad arrow up in a filled circle",
    u"Broad arrow up",
    u"Broad arrow up, filled",
    u"Triangle up in a circle",
    u"Triangle up in a filled circle",
    u"Triangle up in a square",
    u"Triangle up in a filled square",
    u"Arrow down in a square",
    u"Arrow down in a filled square",
    u"Arrow down in a circle",
    u"Arrow down in a filled circle",
    u"Broad arrow down in a circle",
    u"Broad arrow down in a filled circle",
    u"Broad arrow down",
    u"Broad arrow down, filled",
    u"Triangle down in a circle",
    u"Triangle down in a filled circle",
    u"Triangle down in a square",
    u"Triangle down in a filled square",
    u"Arrow up to a line in a circle",
    u"Arrow up to a line in a filled circle",
    u"Arrow up to a line in a square",
    u"Arrow up to a line in a filled square",
    u"Bolt",
    u"Bolt, filled",
    u"Bolt in a circle",
    u"Bolt in a filled circle",
    u"Bolt in a square",
    u"Bolt in a filled square",
    u"Power outlet of type A",
    u"Power outlet of type A, filled",
    u"Power outlet of type C",
    u"Power outlet of type C, filled",
    u"Power outlet of type G",
    u"Power outlet of type G, filled",
};
static_assert(names.size() == std::size_t(Icon::poweroutletTypeGFill) + 1);

} // namespace

QString spokenName(Icon icon)
{
    return QString::fromUtf16(names[std::size_t(icon)]);
}

} // namespace ferrin
