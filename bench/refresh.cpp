// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Runs a number of refreshes and nothing else, to count instructions:
//   bench_refresh ours|plain|bare|changing COUNT BATTERIES
// `ours` is a refresh in which nothing changed. `plain` and `bare` are baselines: they only list
// the supplies and read the files that a refresh reads, `plain` with QFile as most programs would,
// `bare` with system calls. `changing` writes new figures before each refresh and prints the memory
// of the process after the first thousand and at the end.

#include "bench/laptoptree.h"
#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "platform/linux/power/sysfs/sysfsregistry.h"
#include "sources/powersourcesservice.h"
#include "sources/processlauncher.h"
#include "tests/support/memorydefaultsstore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace ferrin;

namespace {

/// The files that a refresh reads of each discharging battery, according to strace.
constexpr std::array batteryFiles { "type",        "scope",
                                    "present",     "status",
                                    "capacity",    "energy_now",
                                    "energy_full", "voltage_min_design",
                                    "voltage_now", "power_now" };
constexpr std::array mainsFiles { "type", "scope", "online" };

/// UPower sends signals: a refresh reads the local copy and makes no call.
class KeptPowerSources final : public PowerSourcesService
{
public:
    Snapshot copyInfo() override { return m_snapshot; }
    std::optional<QList<SourceHandle>> copyList(const Snapshot &) override { return m_list; }
    QVariant description(const Snapshot &, SourceHandle) override { return m_description; }

private:
    Snapshot m_snapshot = std::make_shared<int>(0);
    QList<SourceHandle> m_list { 0 };
    QVariant m_description = QVariantMap { { u"Type"_s, u"InternalBattery"_s },
                                           { u"Time to Empty"_s, 179 },
                                           { u"Time to Full Charge"_s, 0 } };
};

class NoLauncher final : public ProcessLauncher
{
public:
    std::optional<QByteArray> output(const QString &, const QStringList &) override { return {}; }
};

/// A provider that reads the laptop's files, without a desktop.
struct Subject
{
    explicit Subject(const QString &root)
        : registry({ .root = root.toStdString(), .usbVendors = {} })
    {
    }

    void refresh()
    {
        registry.expire();
        provider.updatePeriodicData();
    }

    SysfsRegistry registry;
    KeptPowerSources powerSources;
    NoLauncher launcher;
    test::MemoryDefaultsStore store;
    StoredData stored { store };
    BatteryDataProvider provider { { registry, powerSources, launcher,
                                     [this]() -> StoredData & { return stored; } } };
};

void refreshPlainly(const QString &supplies)
{
    const QDir folder(supplies);
    const QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const auto read = [&](const char *attribute) {
            QFile file(supplies + u'/' + name + u'/' + QLatin1String(attribute));
            if (file.open(QIODevice::ReadOnly))
                (void)file.readAll();
        };
        if (name.startsWith("BAT"_L1)) {
            for (const char *attribute : batteryFiles)
                read(attribute);
        } else {
            for (const char *attribute : mainsFiles)
                read(attribute);
        }
    }
}

void refreshBarely(const std::string &supplies, int batteries)
{
    const auto read = [&](const std::string &name, const char *attribute) {
        const int file = ::open((supplies + '/' + name + '/' + attribute).c_str(), O_RDONLY);
        if (file < 0)
            return;
        std::array<char, 4096> text;
        if (::read(file, text.data(), text.size()) < 0)
            std::abort();
        ::close(file);
    };
    for (const char *attribute : mainsFiles)
        read("AC", attribute);
    for (int i = 0; i < batteries; ++i) {
        for (const char *attribute : batteryFiles)
            read("BAT" + std::to_string(i), attribute);
    }
}

/// Bytes that are allocated at the moment.
std::size_t heldBytes()
{
    return ::mallinfo2().uordblks;
}

void refreshWithChanges(const bench::LaptopTree &laptop, Subject &subject, int count)
{
    for (int i = 0; i < count; ++i) {
        const int percent = 100 - i % 100;
        laptop.set(u"BAT0"_s, u"capacity"_s, QByteArray::number(percent));
        laptop.set(u"BAT0"_s, u"energy_now"_s, QByteArray::number(470000 * percent));
        if (i % 25 == 0)
            laptop.set(u"AC"_s, u"online"_s, QByteArray::number(i / 25 % 2));
        subject.refresh();
        if (i == 999)
            std::printf("first thousand: %zu\n", heldBytes());
    }
    std::printf("end: %zu\n", heldBytes());
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(u"stats*=false"_s);
    if (argc != 4)
        return EXIT_FAILURE;
    const QByteArray mode = argv[1];
    const int count = std::atoi(argv[2]);
    const int batteries = std::atoi(argv[3]);

    const bench::LaptopTree laptop(batteries);
    const QString supplies = laptop.root() + u"/class/power_supply"_s;
    if (mode == "plain") {
        for (int i = 0; i < count; ++i)
            refreshPlainly(supplies);
    } else if (mode == "bare") {
        for (int i = 0; i < count; ++i)
            refreshBarely(supplies.toStdString(), batteries);
    } else {
        Subject subject(laptop.root());
        if (mode == "changing") {
            refreshWithChanges(laptop, subject, count);
        } else {
            for (int i = 0; i < count; ++i)
                subject.refresh();
        }
    }
    return EXIT_SUCCESS;
}
