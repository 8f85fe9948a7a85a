// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/batterymemory.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr double longestDrawHours = 4;
constexpr double newestShare = 0.25;
// W, percent an hour.
constexpr double leastDraw = 0.1;
constexpr double greatestDraw = 300;
constexpr double leastRate = 1;
constexpr double greatestRate = 200;

std::optional<double> numberIn(const QJsonObject &object, const QString &key, double least,
                               double greatest)
{
    const double number = object.value(key).toDouble(std::nan(""));
    return number >= least && number <= greatest ? std::optional(number) : std::nullopt;
}

double blended(double before, double now, double share)
{
    return std::exp(std::log(before) * (1 - share) + std::log(now) * share);
}

// A figure that people may read, too.
double readable(double number)
{
    return std::round(number * 100) / 100;
}

} // namespace

void BatteryMemory::learnDraw(double energy, Hours span)
{
    const double kept = std::exp(-span.count() / longestDrawHours);
    const double total = draw.value_or(0) * drawHours * kept + energy;
    drawHours = drawHours * kept + span.count();
    if (drawHours > 0)
        draw = total / drawHours;
}

void BatteryMemory::learnCharge(const ChargeFit::Charge &shown)
{
    charges = std::min(charges + 1, 1000);
    const double share = charge ? std::max(newestShare, 1.0 / charges) : 1;
    const ChargeFit::Charge before = charge.value_or(shown);
    charge = ChargeFit::Charge {
        { before.curve.knee + share * (shown.curve.knee - before.curve.knee),
          blended(before.curve.tail, shown.curve.tail, share) },
        blended(before.rate, shown.rate, share),
    };
}

BatteryMemory memoryFromJson(const QJsonObject &object)
{
    BatteryMemory memory;
    memory.draw = numberIn(object, u"draw"_s, leastDraw, greatestDraw);
    memory.drawHours = numberIn(object, u"drawHours"_s, 0, longestDrawHours).value_or(0);
    if (memory.drawHours <= 0)
        memory.draw.reset();
    const auto knee = numberIn(object, u"knee"_s, 45, 97);
    const auto tail = numberIn(object, u"tail"_s, 0.5, 8);
    const auto rate = numberIn(object, u"rate"_s, leastRate, greatestRate);
    const auto charges = numberIn(object, u"charges"_s, 1, 1000);
    if (knee && tail && rate && charges) {
        memory.charge = ChargeFit::Charge { { *knee, *tail }, *rate };
        memory.charges = static_cast<int>(*charges);
    }
    if (const auto stop = numberIn(object, u"stop"_s, 1, 99))
        memory.stop = static_cast<int>(*stop);
    return memory;
}

QJsonObject toJson(const BatteryMemory &memory)
{
    QJsonObject object;
    if (memory.draw) {
        object.insert(u"draw"_s, readable(*memory.draw));
        object.insert(u"drawHours"_s, readable(memory.drawHours));
    }
    if (memory.charge) {
        object.insert(u"knee"_s, readable(memory.charge->curve.knee));
        object.insert(u"tail"_s, readable(memory.charge->curve.tail));
        object.insert(u"rate"_s, readable(memory.charge->rate));
        object.insert(u"charges"_s, memory.charges);
    }
    if (memory.stop)
        object.insert(u"stop"_s, *memory.stop);
    return object;
}

} // namespace ferrin
