// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// What was learned of the batteries, whatever the file holds: the times that are made with it are
// times, and what is kept can be read again.

#include "platform/linux/power/forecast/forecast.h"
#include "tests/fuzz/fuzzing.h"

#include <QDir>
#include <QJsonDocument>

namespace ferrin::fuzz {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

void checkTime(std::optional<std::chrono::minutes> time)
{
    require(!time || (*time >= 0min && *time <= 48h), "a time is 0 to 48 hours");
}

PackMoment momentOf(int percent, PackMoment::Flow flow)
{
    PackMoment pack;
    pack.key = "known";
    pack.flow = flow;
    pack.now = 0.5 * percent;
    pack.full = 50;
    pack.rate = 20;
    return pack;
}

/// An hour on the cord, an hour off it, an hour of rest.
void live(Forecast &forecast)
{
    using Flow = PackMoment::Flow;
    int minute = 0;
    for (const Flow flow : { Flow::Charging, Flow::Discharging, Flow::Resting }) {
        std::optional<Direction> direction;
        if (flow != Flow::Resting)
            direction = flow == Flow::Charging ? Direction::ToFull : Direction::ToEmpty;
        for (const int end = minute + 60; minute < end; minute += 5) {
            const PackMoment pack = momentOf(60 + minute / 10, flow);
            const Hours time { double(minute) / 60 };
            checkTime(
                forecast.update({ pack }, direction, flow != Flow::Discharging, { time, time }));
            checkTime(forecast.available());
            const auto limit = forecast.limit({ pack });
            require(!limit || (*limit >= 1 && *limit <= 99), "a limit is 1 to 99");
        }
    }
}

} // namespace

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    const QString folder = newFolder();
    const QString path = folder + u"/batteries.json"_s;
    const QByteArray before = bytesOf(data, size);
    write(path, before);
    {
        ferrin::Forecast forecast(path);
        live(forecast);
    }
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "the file is still there");
    const QByteArray after = file.readAll();
    require(after == before || QJsonDocument::fromJson(after).isObject(),
            "what is kept can be read again");
    QDir(folder).removeRecursively();
    return 0;
}
