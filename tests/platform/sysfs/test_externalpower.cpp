// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/externalpower.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;

class ExternalPowerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isUnknownWithoutSupplies();
    void goesByTheBatteriesWithoutASupplyThatReports_data();
    void goesByTheBatteriesWithoutASupplyThatReports();
    void ignoresASupplyWithoutOnline();
    void doesNotTakeAPackThatFeedsAnotherForExternalPower();
    void goesByTheBatteriesWhereMainsDisagree_data();
    void goesByTheBatteriesWhereMainsDisagree();
    void isExternalWhileABatteryDischargesOnAWeakCharger();
    void doesNotLetAPortThatStaysOnlineOutvoteTheRest();
};

namespace {

BatterySupply battery(ChargeStatus status)
{
    BatterySupply made;
    made.status = status;
    return made;
}

AdapterSupply adapter(SupplyType type, Reading online)
{
    AdapterSupply made;
    made.type = type;
    made.online = online;
    return made;
}

constexpr auto discharging = ChargeStatus::Discharging;

} // namespace

void ExternalPowerTest::isUnknownWithoutSupplies()
{
    QVERIFY(!externalConnected({}));
}

void ExternalPowerTest::goesByTheBatteriesWithoutASupplyThatReports_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("expected");
    QTest::newRow("charging") << int(ChargeStatus::Charging) << 1;
    QTest::newRow("full") << int(ChargeStatus::Full) << 1;
    QTest::newRow("not charging") << int(ChargeStatus::NotCharging) << 1;
    QTest::newRow("discharging") << int(ChargeStatus::Discharging) << 0;
    QTest::newRow("unknown") << int(ChargeStatus::Unknown) << -1;
}

void ExternalPowerTest::goesByTheBatteriesWithoutASupplyThatReports()
{
    QFETCH(int, status);
    PowerSupplies supplies;
    supplies.batteries = { battery(static_cast<ChargeStatus>(status)) };
    const std::optional<bool> external = externalConnected(supplies);
    QTEST(external ? int(*external) : -1, "expected");
}

void ExternalPowerTest::ignoresASupplyWithoutOnline()
{
    PowerSupplies supplies;
    supplies.adapters = { adapter(SupplyType::Mains, {}) };
    QVERIFY(!externalConnected(supplies));
    supplies.adapters.push_back(adapter(SupplyType::Wireless, 1));
    QCOMPARE(externalConnected(supplies), true);
    supplies.adapters.back().online = 0;
    QCOMPARE(externalConnected(supplies), false);
}

void ExternalPowerTest::doesNotTakeAPackThatFeedsAnotherForExternalPower()
{
    PowerSupplies supplies;
    supplies.adapters = { adapter(SupplyType::Mains, 0) };
    supplies.batteries = { battery(ChargeStatus::Charging), battery(discharging) };
    QCOMPARE(externalConnected(supplies), false);
}

void ExternalPowerTest::goesByTheBatteriesWhereMainsDisagree_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("expected");
    QTest::newRow("charging") << int(ChargeStatus::Charging) << true;
    QTest::newRow("not charging") << int(ChargeStatus::NotCharging) << true;
    QTest::newRow("unknown") << int(ChargeStatus::Unknown) << true;
    QTest::newRow("discharging") << int(discharging) << false;
}

void ExternalPowerTest::goesByTheBatteriesWhereMainsDisagree()
{
    QFETCH(int, status);
    PowerSupplies supplies;
    supplies.adapters = { adapter(SupplyType::Mains, 0), adapter(SupplyType::Mains, 1) };
    supplies.batteries = { battery(static_cast<ChargeStatus>(status)) };
    QTEST(externalConnected(supplies).value(), "expected");
}

void ExternalPowerTest::isExternalWhileABatteryDischargesOnAWeakCharger()
{
    PowerSupplies supplies;
    supplies.adapters = { adapter(SupplyType::Usb, 2) };
    supplies.batteries = { battery(discharging) };
    QCOMPARE(externalConnected(supplies), true);
    supplies.adapters = { adapter(SupplyType::Mains, 1), adapter(SupplyType::Usb, 2) };
    QCOMPARE(externalConnected(supplies), true);
}

void ExternalPowerTest::doesNotLetAPortThatStaysOnlineOutvoteTheRest()
{
    PowerSupplies supplies;
    supplies.adapters = { adapter(SupplyType::Mains, 0), adapter(SupplyType::Usb, 1) };
    supplies.batteries = { battery(discharging) };
    QCOMPARE(externalConnected(supplies), false);
    supplies.batteries = { battery(ChargeStatus::NotCharging) };
    QCOMPARE(externalConnected(supplies), true);
}

FERRIN_TEST(QCoreApplication, ExternalPowerTest)
#include "test_externalpower.moc"
