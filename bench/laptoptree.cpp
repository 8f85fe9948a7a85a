// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "bench/laptoptree.h"

#include <QDir>
#include <QFile>

namespace ferrin::bench {

using namespace Qt::StringLiterals;

LaptopTree::LaptopTree(int batteries)
{
    addMains();
    for (int i = 0; i < batteries; ++i)
        addBattery(i);
}

void LaptopTree::set(const QString &supply, const QString &attribute, const QByteArray &value) const
{
    const QString folder = m_folder.filePath(u"class/power_supply/"_s + supply);
    QDir().mkpath(folder);
    QFile file(folder + u'/' + attribute);
    if (!file.open(QIODevice::WriteOnly) || file.write(value + '\n') < 0)
        qFatal("Cannot write %s", qPrintable(file.fileName()));
}

void LaptopTree::remove(const QString &supply, const QString &attribute) const
{
    QFile::remove(m_folder.filePath(u"class/power_supply/"_s + supply + u'/' + attribute));
}

void LaptopTree::addMains() const
{
    set(u"AC"_s, u"type"_s, "Mains");
    set(u"AC"_s, u"online"_s, "0");
}

void LaptopTree::addBattery(int number) const
{
    const std::pair<const char *, const char *> attributes[] {
        { "type", "Battery" },
        { "present", "1" },
        { "status", "Discharging" },
        { "capacity", "37" },
        { "energy_now", "18500000" },
        { "energy_full", "47000000" },
        { "energy_full_design", "50000000" },
        { "voltage_min_design", "11400000" },
        { "voltage_now", "11800000" },
        { "power_now", "6200000" },
        { "cycle_count", "123" },
        { "health", "Good" },
        { "technology", "Li-ion" },
        { "model_name", "DELL 70N2F95" },
        { "manufacturer", "SMP" },
        { "serial_number", "4711" },
    };
    for (const auto &[name, value] : attributes)
        set(u"BAT"_s + QString::number(number), QString::fromLatin1(name), value);
}

} // namespace ferrin::bench
