// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/breakablelaptop.h"
#include "tests/support/testmain.h"

#include <QDir>

#include <array>

using namespace ferrin;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace test;

/// A broken sysfs: single figures become absent, and nothing else happens.
class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesOneFigureWithOneBrokenFile_data();
    void losesOneFigureWithOneBrokenFile();
    void livesWithEveryFileBroken_data();
    void livesWithEveryFileBroken();
    void livesWithoutThePowerSupplyClass();
    void takesNoNumberOutOfDamagedText_data();
    void takesNoNumberOutOfDamagedText();
    void leaksNoFileWhateverItMeets();
};

namespace {

using Breaker = void (*)(FakeSysfs &, const QString &);

struct Fault
{
    const char *name;
    Breaker apply;
};

void replaceBy(FakeSysfs &sysfs, const QString &file, const QByteArray &text)
{
    sysfs.remove(file);
    sysfs.write(file, text);
}

constexpr std::array faults {
    Fault { "missing", [](FakeSysfs &sysfs, const QString &file) { sysfs.remove(file); } },
    Fault { "a directory",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeDirectory(file);
            } },
    Fault { "a link to nothing",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/nothing/there");
            } },
    Fault { "a link to itself",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, sysfs.path(file).toUtf8());
            } },
    Fault { "a pipe",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writePipe(file);
            } },
    // Reading address 0 of the process's own memory fails with EIO.
    Fault { "an input/output error",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/proc/self/mem");
            } },
    // Opening the terminal of a process without one fails with ENXIO; with one, reading gives
    // nothing.
    Fault { "a device that is gone",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/dev/tty");
            } },
    Fault { "empty", [](FakeSysfs &sysfs, const QString &file) { replaceBy(sysfs, file, ""); } },
    Fault {
        "not UTF-8",
        [](FakeSysfs &sysfs, const QString &file) { replaceBy(sysfs, file, "\xff\xfe\x80 5"); } },
    Fault { "megabytes",
            [](FakeSysfs &sysfs, const QString &file) {
                replaceBy(sysfs, file, QByteArray(4 << 20, '9'));
            } },
    Fault { "endless",
            [](FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/dev/zero");
            } },
};

const QString battery = u"class/power_supply/BAT0/"_s;

qsizetype openFiles()
{
    return QDir(u"/proc/self/fd"_s)
        .entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

void addFaultRows()
{
    QTest::addColumn<int>("fault");
    for (int index = 0; index < static_cast<int>(faults.size()); ++index)
        QTest::newRow(faults[static_cast<std::size_t>(index)].name) << index;
}

} // namespace

void FaultsTest::losesOneFigureWithOneBrokenFile_data()
{
    addFaultRows();
}

void FaultsTest::losesOneFigureWithOneBrokenFile()
{
    QFETCH(int, fault);
    const auto breakFile = faults[static_cast<std::size_t>(fault)].apply;
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    breakFile(laptop.sysfs, battery + u"power_now"_s);
    breakFile(laptop.sysfs, battery + u"temp"_s);
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QVERIFY(laptop.absent(u"Temperature"));
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.said(u"CycleCount").toInt(), 123);
    breakFile(laptop.sysfs, battery + u"capacity"_s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    breakFile(laptop.sysfs, battery + u"energy_now"_s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    laptop.pass(30s);
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    QVERIFY(!laptop.said(u"MaxCapacity").isValid());
    QCOMPARE(laptop.said(u"AppleRawMaxCapacity").toInt(), 5000);
}

void FaultsTest::livesWithEveryFileBroken_data()
{
    addFaultRows();
}

void FaultsTest::livesWithEveryFileBroken()
{
    QFETCH(int, fault);
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    const QDir folder(laptop.sysfs.path(battery));
    for (const QString &file : folder.entryList(QDir::Files)) {
        faults[static_cast<std::size_t>(fault)].apply(laptop.sysfs, battery + file);
        expectSanity(laptop);
    }
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    laptop.sysfs.removeSupply(u"BAT0"_s);
    makeLaptop(laptop.sysfs);
    expectTheLaptop(laptop);
}

void FaultsTest::livesWithoutThePowerSupplyClass()
{
    Laptop laptop;
    laptop.sysfs.remove(u"class"_s);
    QCOMPARE(laptop.registry().matchingService({ u"AppleSmartBattery"_s }), 0U);
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    QVERIFY(laptop.absent(u"ExternalConnected"));
    laptop.sysfs.write(u"class/power_supply"_s, "a file in the place of the folder");
    QVERIFY(laptop.absent(u"CurrentCapacity"));
}

void FaultsTest::takesNoNumberOutOfDamagedText_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : { "", " ", "-", "+50", "5 0", "50%", "50.0", "0x32", "fifty", "1e2",
                              "--5", "9223372036854775808", "-9223372036854775809",
                              "99999999999999999999999999", "\xff", "5\xff", "nan", "inf" })
        QTest::newRow(*text ? text : "empty") << QByteArray(text);
    QTest::newRow("a zero byte within") << QByteArray("5\0000", 3);
}

void FaultsTest::takesNoNumberOutOfDamagedText()
{
    QFETCH(QByteArray, text);
    Laptop laptop;
    laptop.sysfs.supply(
        u"BAT0"_s, { { "type", "Battery" }, { "status", "Discharging" }, { "capacity", text } });
    QVERIFY(laptop.absent(u"CurrentCapacity"));
}

void FaultsTest::leaksNoFileWhateverItMeets()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    expectSanity(laptop);
    const qsizetype before = openFiles();
    for (const Fault &fault : faults) {
        fault.apply(laptop.sysfs, battery + u"capacity"_s);
        expectSanity(laptop);
    }
    laptop.sysfs.removeSupply(u"BAT0"_s);
    expectSanity(laptop);
    QCOMPARE(openFiles(), before);
}

FERRIN_TEST(QCoreApplication, FaultsTest)
#include "test_faults.moc"
