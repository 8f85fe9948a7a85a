// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/fuzz/upowerinvariants.h"

#include "platform/linux/power/upower/upowerdescription.h"
#include "tests/fuzz/fuzzing.h"

namespace ferrin::fuzz {

using namespace Qt::StringLiterals;

namespace {

void checkTimes(const QVariantMap &source)
{
    for (const QString &key : { u"Time to Empty"_s, u"Time to Full Charge"_s }) {
        const QVariant time = source.value(key);
        require(!time.isValid() || (time.toInt() >= -1 && time.toInt() <= 2880),
                "a time is unknown, or 0 to 48 hours");
    }
    require(source.value(u"Time to Empty"_s).toInt() == 0
                || source.value(u"Time to Full Charge"_s).toInt() == 0,
            "a source has at most one time");
}

} // namespace

void checkPowerSources(const QList<UPowerDevice> &devices, std::optional<bool> external)
{
    const QList<UPowerDevice> sources = powerSourcesInOrder(devices, external);
    bool wasOther = false;
    for (const UPowerDevice &source : sources) {
        const QVariantMap description = describe(source, external);
        const QVariant charge = description.value(u"Current Capacity"_s);
        require(!charge.isValid() || (charge.toInt() >= 0 && charge.toInt() <= 100),
                "the charge is 0 to 100");
        require(description.value(u"Name"_s).toString().size() <= 256, "names are short");
        const bool isBattery = description.value(u"Type"_s) == u"InternalBattery"_s;
        require(!wasOther || !isBattery, "batteries come before others");
        wasOther = !isBattery;
        checkTimes(description);
        for (const std::optional<bool> &changedTo : { std::optional<bool>(), external })
            checkTimes(describeSettling(description, settlingFlowOf(source, external, changedTo)));
    }
}

} // namespace ferrin::fuzz
