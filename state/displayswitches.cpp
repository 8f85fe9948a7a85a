// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/displayswitches.h"

#include "state/defaultsstore.h"
#include "state/shareddefaults.h"

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const std::array keys {
    u"showIconWhenDischarging"_s, u"showChargeWhenDischarging"_s, u"showTimeWhenDischarging"_s,
    u"showIconWhenCharging"_s,    u"showChargeWhenCharging"_s,    u"showTimeWhenCharging"_s,
    u"showIconWhenCharged"_s,     u"showChargeWhenCharged"_s,     u"showTimeWhenCharged"_s,
};

} // namespace

DisplaySwitches &DisplaySwitches::shared()
{
    static DisplaySwitches switches(sharedDefaults());
    return switches;
}

DisplaySwitches::DisplaySwitches(DefaultsStore &defaults)
    : m_defaults(defaults)
{
    static_assert(keys.size() == count);
    connect(&m_defaults, &DefaultsStore::changed, this, &DisplaySwitches::readFromStore);
    std::ranges::for_each(keys, [this](const QString &key) { readFromStore(key); });
}

void DisplaySwitches::set(DisplaySwitch which, bool on)
{
    m_defaults.setObject(keys[index(which)], on);
}

void DisplaySwitches::readFromStore(const QString &key)
{
    const auto *const found = std::ranges::find(keys, key);
    if (found != keys.end())
        m_on[static_cast<std::size_t>(found - keys.begin())]
            = m_defaults.boolean(key).value_or(true);
}

} // namespace ferrin
