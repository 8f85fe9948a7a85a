// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/designcycles.h"
#include "tests/support/fakesysfs.h"
#include "tests/support/testmain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class DesignCyclesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsWhatMakersPublish_data();
    void knowsWhatMakersPublish();
    void givesEveryRowASource();
    void readsWhoMadeTheMachine();
    void readsTheDeviceTreeWhereThereIsNoDmi();
    void hasNoFigureWithoutATable();
};

void DesignCyclesTest::knowsWhatMakersPublish_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("chassis");
    QTest::addColumn<int>("cycles");
    QTest::newRow("Apple") << u"Apple Inc."_s << u"MacBookPro16,1"_s << 9 << 1000;
    QTest::newRow("Apple of 2008") << u"Apple Inc."_s << u"MacBookPro5,1"_s << 10 << 500;
    QTest::newRow("Apple before") << u"Apple Inc."_s << u"MacBook4,1"_s << 10 << 300;
    QTest::newRow("Apple silicon") << QString() << u"Apple MacBook Air (M1, 2020)"_s << -1 << 1000;
    QTest::newRow("Framework 16") << u"Framework"_s << u"Laptop 16 (AMD Ryzen 7040 Series)"_s << 10
                                  << 1000;
    QTest::newRow("Framework 13") << u"Framework"_s << u"Laptop 13 (AMD Ryzen 7040Series)"_s << 10
                                  << 300;
    QTest::newRow("any notebook") << u"LENOVO"_s << u"20L5CTO1WW"_s << 10 << 300;
    QTest::newRow("nobody says") << QString() << QString() << -1 << 300;
    QTest::newRow("a tablet") << u"Microsoft Corporation"_s << u"Surface Pro 7"_s << 30 << 300;
    QTest::newRow("a desktop") << u"ACME"_s << u"Tower"_s << 3 << 0;
    QTest::newRow("a desktop of Apple") << u"Apple Inc."_s << u"iMac18,3"_s << 13 << 0;
}

void DesignCyclesTest::knowsWhatMakersPublish()
{
    QFETCH(QString, vendor);
    QFETCH(QString, product);
    QFETCH(int, chassis);
    MachineIdentity machine { vendor, product, {} };
    if (chassis >= 0)
        machine.chassisType = chassis;
    QTEST(static_cast<int>(designCycles(machine, designCyclesTable()).value_or(0)), "cycles");
}

void DesignCyclesTest::givesEveryRowASource()
{
    const QJsonObject table = QJsonDocument::fromJson(designCyclesTable()).object();
    const QJsonArray machines = table["machines"_L1].toArray();
    QVERIFY(!machines.isEmpty());
    for (const QJsonValue &row : machines)
        QVERIFY(!row["source"_L1].toString().isEmpty());
    QVERIFY(!table["notebooks"_L1]["source"_L1].toString().isEmpty());
}

void DesignCyclesTest::readsWhoMadeTheMachine()
{
    test::FakeSysfs sysfs;
    QCOMPARE(readMachineIdentity(sysfs.root()), MachineIdentity());
    sysfs.write(u"class/dmi/id/sys_vendor"_s, "Framework");
    sysfs.write(u"class/dmi/id/product_name"_s, "Laptop 16 (AMD Ryzen 7040 Series)");
    sysfs.write(u"class/dmi/id/chassis_type"_s, "10");
    const MachineIdentity expected { u"Framework"_s, u"Laptop 16 (AMD Ryzen 7040 Series)"_s, 10 };
    QCOMPARE(readMachineIdentity(sysfs.root()), expected);
}

void DesignCyclesTest::readsTheDeviceTreeWhereThereIsNoDmi()
{
    test::FakeSysfs sysfs;
    sysfs.write(u"firmware/devicetree/base/model"_s,
                QByteArray("Apple MacBook Air (M1, 2020)\0", 29));
    QCOMPARE(readMachineIdentity(sysfs.root()).product, u"Apple MacBook Air (M1, 2020)"_s);
}

void DesignCyclesTest::hasNoFigureWithoutATable()
{
    QVERIFY(!designCycles({}, {}));
    QVERIFY(!designCycles({}, "not JSON"));
    QVERIFY(!designCycles({}, R"({"notebooks": {"cycles": "300"}})"));
}

FERRIN_TEST(QCoreApplication, DesignCyclesTest)
#include "test_designcycles.moc"
