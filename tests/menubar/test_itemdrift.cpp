// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemdrift.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

ItemContent at(const QString &charge, const QString &time,
               BatteryChargingStatus status = BatteryChargingStatus::discharging)
{
    return { .status = status,
             .icon = IconElement { .charge = charge.toDouble(), .status = status },
             .charge = charge,
             .time = time };
}

const ItemContent before = at(u"37"_s, u"1:02"_s);

} // namespace

class ItemDriftTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresThatMoveOnAreDrift()
    {
        QVERIFY(isDrift(before, before));
        QVERIFY(isDrift(before, at(u"36"_s, u"1:02"_s)));
        QVERIFY(isDrift(before, at(u"36"_s, u"0:58"_s)));
    }

    void whatAUserWaitsForIsNone_data()
    {
        using enum BatteryChargingStatus;
        QTest::addColumn<ItemContent>("now");
        QTest::addRow("plugged in") << at(u"37"_s, u"1:02"_s, charging);
        QTest::addRow("another battery") << at(u"87"_s, u"1:02"_s);
        QTest::addRow("another load") << at(u"37"_s, u"0:40"_s);
        QTest::addRow("a time that became known") << at(u"37"_s, u"?:??"_s);
        ItemContent now = before;
        now.time.reset();
        QTest::addRow("another mix") << now;
        now = before;
        now.icon.reset();
        QTest::addRow("no icon") << now;
        now = before;
        now.icon->icon = Icon::battery2H;
        QTest::addRow("another icon") << now;
        now = before;
        now.icon->fault = true;
        QTest::addRow("a fault") << now;
        now = before;
        now.hasBattery = false;
        QTest::addRow("no battery") << now;
    }

    void whatAUserWaitsForIsNone()
    {
        QFETCH(ItemContent, now);
        QVERIFY(!isDrift(before, now));
        QVERIFY(!isDrift(now, before));
    }

    void turningRedIsNone()
    {
        QVERIFY(!isDrift(at(u"11"_s, u"0:30"_s), at(u"10"_s, u"0:29"_s)));
        QVERIFY(isDrift(at(u"10"_s, u"0:29"_s), at(u"9"_s, u"0:28"_s)));
    }
};

FERRIN_TEST(QCoreApplication, ItemDriftTest)
#include "test_itemdrift.moc"
