// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Runs a recording of a laptop through the program's own code and prints the time that would have
// been on show at each of its rows:
//   replay [--memory FILE] RECORDING.csv
// A recording has the columns t_s, percent, energy_full_wh, energy_now_wh, power_w (empty where the
// machine reports none) and status (the kernel's word); the first line names them. Each row becomes
// the files of a power supply, read at the row's time, in order. Rows further apart than ten
// minutes have a sleep between them. What is learned is kept in FILE, else only for this run.
//
// Prints "t_s,minutes" for each row, with nothing after the comma where there is no time.

#include "bench/laptoptree.h"
#include "platform/linux/power/sysfs/sysfsregistry.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace ferrin;

namespace {

constexpr double longestPause = 600;

struct Row
{
    QByteArray stamp;
    double seconds = 0;
    double percent = 0;
    QByteArray full;
    QByteArray now;
    QByteArray power;
    QByteArray status;
};

QByteArray micro(const QByteArray &number)
{
    return QByteArray::number(qRound64(number.toDouble() * 1e6));
}

std::optional<Row> rowOf(const QByteArray &line)
{
    const QList<QByteArray> cells = line.trimmed().split(',');
    bool isNumber = false;
    if (cells.size() < 6)
        return std::nullopt;
    Row row { cells[0], cells[0].toDouble(&isNumber), 0, cells[2], cells[3], cells[4], cells[5] };
    if (!isNumber || cells[1].isEmpty())
        return std::nullopt;
    row.percent = cells[1].toDouble(&isNumber);
    return isNumber ? std::optional(row) : std::nullopt;
}

/// A laptop that lives through a recording.
class Player
{
public:
    explicit Player(const QString &memory)
        : m_registry({ .root = m_laptop.root().toStdString(),
                       .usbVendors = {},
                       .now = [this] { return std::chrono::steady_clock::time_point(m_awake); },
                       .elapsed = [this] { return m_elapsed; },
                       .memoryPath = memory })
    {
        m_laptop.remove(u"BAT0"_s, u"power_now"_s);
    }

    std::optional<int> play(const Row &row)
    {
        pass(row.seconds);
        m_laptop.set(u"BAT0"_s, u"status"_s, row.status);
        m_laptop.set(u"BAT0"_s, u"capacity"_s, QByteArray::number(int(row.percent)));
        if (!row.full.isEmpty())
            m_laptop.set(u"BAT0"_s, u"energy_full"_s, micro(row.full));
        if (!row.now.isEmpty())
            m_laptop.set(u"BAT0"_s, u"energy_now"_s, micro(row.now));
        if (!row.power.isEmpty())
            m_laptop.set(u"BAT0"_s, u"power_now"_s, micro(row.power));
        else
            m_laptop.remove(u"BAT0"_s, u"power_now"_s);
        // The adapter is not recorded. The status tells of it, but for an unknown one.
        if (row.status != "Unknown")
            m_laptop.set(u"AC"_s, u"online"_s, row.status == "Discharging" ? "0" : "1");
        m_registry.expire();
        const QVariant time = m_registry.createProperty(1, u"TimeRemaining"_s);
        return time.isValid() ? std::optional(time.toInt()) : std::nullopt;
    }

private:
    void pass(double seconds)
    {
        const double pause = m_last ? std::max(0.0, seconds - *m_last) : 0;
        const auto span = std::chrono::nanoseconds(qRound64(pause * 1e9));
        m_last = seconds;
        m_elapsed += span;
        m_awake += pause > longestPause ? std::chrono::nanoseconds(0) : span;
    }

    bench::LaptopTree m_laptop { 1 };
    std::optional<double> m_last;
    std::chrono::nanoseconds m_awake { std::chrono::hours(1) };
    std::chrono::nanoseconds m_elapsed { std::chrono::hours(1) };
    SysfsRegistry m_registry;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(u"stats*=false"_s);
    const QStringList words = QCoreApplication::arguments();
    const bool remembers = words.size() == 4 && words[1] == "--memory"_L1;
    QFile recording(words.last());
    if ((words.size() != 2 && !remembers) || !recording.open(QIODevice::ReadOnly)) {
        std::fputs("usage: replay [--memory FILE] RECORDING.csv\n", stderr);
        return EXIT_FAILURE;
    }
    Player player(remembers ? words[2] : QString());
    while (!recording.atEnd()) {
        const std::optional<Row> row = rowOf(recording.readLine());
        if (!row)
            continue;
        const std::optional<int> minutes = player.play(*row);
        std::printf("%s,%s\n", row->stamp.constData(),
                    minutes ? QByteArray::number(*minutes).constData() : "");
    }
    return EXIT_SUCCESS;
}
