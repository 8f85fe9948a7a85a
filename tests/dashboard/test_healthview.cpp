// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class HealthViewTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void standsInTwoRowsOfTwo();
    void showsTheMaximumCapacityAsAGaugeAndANumber();
    void showsTheCyclesBesideThoseOfTheDesign();
    void writesNumbersAsPlainDigits();
    void saysTheConditionInAWord_data();
    void saysTheConditionInAWord();
    void hasAnUnknownCardWithoutAPopoverForAnUnknownCondition();
    void reducesTheLifespanForCapacityBelow80();
    void keepsTheLifespanGoodForTooManyCyclesAlone();
    void keepsTheLifespanGoodAtExactlyTheDesignCycles();
    void reducesTheLifespanForBoth();
    void hasUnknownCardsForUnknownDesignCyclesAlone();
    void hasAnUnknownLifespanForEachMissingValue();
    void saysEachCardInWords();
    void changesOnlyTheCardsOfAValue();

private:
    [[nodiscard]] QQuickItem *cardOf(const char *type) { return card(m_stage->item.get(), type); }
    void setBattery(qint64 capacity, qint64 cycles, qint64 design);
    [[nodiscard]] bool isUnknown(const char *type);

    std::unique_ptr<Stage> m_stage;
};

void HealthViewTest::init()
{
    m_stage = std::make_unique<Stage>();
    m_stage->show("HealthView {}");
}

void HealthViewTest::cleanup()
{
    m_stage.reset();
}

void HealthViewTest::setBattery(qint64 capacity, qint64 cycles, qint64 design)
{
    m_stage->data.setMaxCapacity(capacity);
    m_stage->data.setChargeCycles(cycles);
    m_stage->data.setDesignCycles(design);
}

bool HealthViewTest::isUnknown(const char *type)
{
    QQuickItem *const tile = cardOf(type);
    return textsOf(tile).mid(1) == QStringList { u"Unknown"_s }
    && imagesOf(tile)
        == QStringList { u"questionmark.circle 18 "_s + m_stage->colorNamed("unknownColor") }
    && !moreInfoButton(tile);
}

void HealthViewTest::standsInTwoRowsOfTwo()
{
    const QList<QQuickItem *> cards = itemsOfType(m_stage->item.get(), "CardView");
    QStringList titles;
    QList<QPointF> places;
    for (QQuickItem *tile : cards) {
        titles.append(textsOf(tile).constFirst());
        places.append(tile->mapToScene(QPointF()));
    }
    QCOMPARE(titles,
             QStringList({ u"Max capacity"_s, u"Charge cycles"_s, u"Health"_s, u"Lifespan"_s }));
    QCOMPARE(places, QList<QPointF>({ { 0, 0 }, { 110, 0 }, { 0, 110 }, { 110, 110 } }));
}

void HealthViewTest::showsTheMaximumCapacityAsAGaugeAndANumber()
{
    m_stage->data.setMaxCapacity(91);
    QQuickItem *const tile = cardOf("MaxCapacityView");
    QCOMPARE(textsOf(tile), QStringList({ u"Max capacity"_s, u"91"_s, u"%"_s }));
    QCOMPARE(imagesOf(tile), QStringList { u"gauge 0.91"_s });
    QVERIFY(moreInfoButton(tile));
    m_stage->data.setMaxCapacity({});
    QVERIFY(isUnknown("MaxCapacityView"));
}

void HealthViewTest::showsTheCyclesBesideThoseOfTheDesign()
{
    m_stage->data.setChargeCycles(312);
    m_stage->data.setDesignCycles(1000);
    QQuickItem *const tile = cardOf("CyclesView");
    QCOMPARE(textsOf(tile), QStringList({ u"Charge cycles"_s, u"312"_s, u"/"_s, u"1000"_s }));
    QCOMPARE(imagesOf(tile),
             QStringList { u"arrow.clockwise 21 "_s + m_stage->colorNamed("yellowIcon") });
    QVERIFY(moreInfoButton(tile));
    m_stage->data.setChargeCycles({});
    QVERIFY(isUnknown("CyclesView"));
}

void HealthViewTest::writesNumbersAsPlainDigits()
{
    m_stage->data.setChargeCycles(1234567);
    m_stage->data.setDesignCycles(4294967295);
    QCOMPARE(textsOf(cardOf("CyclesView")).mid(1),
             QStringList({ u"1234567"_s, u"/"_s, u"4294967295"_s }));
}

void HealthViewTest::saysTheConditionInAWord_data()
{
    QTest::addColumn<BatteryHealth>("health");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("normal") << BatteryHealth::normal << u"checkmark.circle 18 "_s
                            << QByteArray("greenIcon") << u"Normal"_s;
    QTest::newRow("service") << BatteryHealth::service
                             << u"checkmark.circle.trianglebadge.exclamationmark 17 "_s
                             << QByteArray("redIcon") << u"Service recommended"_s;
}

void HealthViewTest::saysTheConditionInAWord()
{
    QFETCH(BatteryHealth, health);
    QFETCH(QString, symbol);
    QFETCH(QByteArray, color);
    QFETCH(QString, text);
    m_stage->data.setHealth(health);
    QQuickItem *const tile = cardOf("HealthStatusView");
    QCOMPARE(textsOf(tile), QStringList({ u"Health"_s, text }));
    QCOMPARE(imagesOf(tile), QStringList { symbol + m_stage->colorNamed(color) });
    QVERIFY(moreInfoButton(tile));
}

void HealthViewTest::hasAnUnknownCardWithoutAPopoverForAnUnknownCondition()
{
    QVERIFY(isUnknown("HealthStatusView"));
    m_stage->data.setHealth(BatteryHealth::normal);
    QVERIFY(!isUnknown("HealthStatusView"));
    m_stage->data.setHealth(BatteryHealth::unknown);
    QVERIFY(isUnknown("HealthStatusView"));
}

void HealthViewTest::reducesTheLifespanForCapacityBelow80()
{
    setBattery(79, 500, 1000);
    QQuickItem *const tile = cardOf("LifespanView");
    QCOMPARE(textsOf(tile), QStringList({ u"Lifespan"_s, u"Reduced"_s }));
    QCOMPARE(imagesOf(tile),
             QStringList { u"checkmark.circle.trianglebadge.exclamationmark 17 "_s
                           + m_stage->colorNamed("redIcon") });
    QCOMPARE(
        tile->property("text").toString(),
        u"As you have done less than 1000 charge cycles but your maximum capacity is 79% (less "
        "than 80%), the lifespan of your battery is **reduced**. You may want to consider "
        "replacing the battery."_s);
}

void HealthViewTest::keepsTheLifespanGoodForTooManyCyclesAlone()
{
    setBattery(80, 1200, 1000);
    QQuickItem *const tile = cardOf("LifespanView");
    QCOMPARE(textsOf(tile), QStringList({ u"Lifespan"_s, u"Good"_s }));
    QCOMPARE(imagesOf(tile),
             QStringList { u"checkmark.circle 18 "_s + m_stage->colorNamed("greenIcon") });
    QCOMPARE(
        tile->property("text").toString(),
        u"As your maximum capacity is still 80% and you have done more than 1000 charge cycles, "
        "the lifespan of your battery is still **good**."_s);
    QCOMPARE(textsOf(cardOf("CyclesView")).mid(1), QStringList({ u"1200"_s, u"/"_s, u"1000"_s }));
}

void HealthViewTest::keepsTheLifespanGoodAtExactlyTheDesignCycles()
{
    setBattery(70, 1000, 1000);
    QQuickItem *const tile = cardOf("LifespanView");
    QCOMPARE(textsOf(tile), QStringList({ u"Lifespan"_s, u"Good"_s }));
    QCOMPARE(
        tile->property("text").toString(),
        u"As your maximum capacity is still 70% and you have done less than 1000 charge cycles, "
        "the lifespan of your battery is **good**."_s);
}

void HealthViewTest::reducesTheLifespanForBoth()
{
    setBattery(70, 1200, 1000);
    QQuickItem *const tile = cardOf("LifespanView");
    QCOMPARE(textsOf(tile), QStringList({ u"Lifespan"_s, u"Reduced"_s }));
    QCOMPARE(
        tile->property("text").toString(),
        u"As your maximum capacity is 70% (less than 80%) and you have done more than 1000 charge "
        "cycles, the lifespan of your battery is reduced. You may want to consider replacing the "
        "battery."_s);
}

void HealthViewTest::hasUnknownCardsForUnknownDesignCyclesAlone()
{
    m_stage->data.setMaxCapacity(91);
    m_stage->data.setChargeCycles(312);
    m_stage->data.setHealth(BatteryHealth::normal);
    QVERIFY(isUnknown("CyclesView"));
    QVERIFY(isUnknown("LifespanView"));
    QVERIFY(!isUnknown("MaxCapacityView"));
    QVERIFY(!isUnknown("HealthStatusView"));
}

void HealthViewTest::hasAnUnknownLifespanForEachMissingValue()
{
    setBattery(91, 312, 1000);
    QVERIFY(!isUnknown("LifespanView"));
    m_stage->data.setMaxCapacity({});
    QVERIFY(isUnknown("LifespanView"));
    QCOMPARE(cardOf("LifespanView")->property("text").toString(), QString());
    QCOMPARE(cardOf("LifespanView")->property("imageName").toString(), QString());
    QCOMPARE(cardOf("LifespanView")->property("imageColor").value<QColor>().name(),
             m_stage->colorNamed("redIcon"));
    setBattery(91, 312, 1000);
    m_stage->data.setChargeCycles({});
    QVERIFY(isUnknown("LifespanView"));
}

void HealthViewTest::saysEachCardInWords()
{
    QCOMPARE(spokenNameOf(cardOf("MaxCapacityView")), u"Max capacity: Unknown"_s);
    setBattery(91, 312, 1000);
    m_stage->data.setHealth(BatteryHealth::service);
    QCOMPARE(spokenNameOf(cardOf("MaxCapacityView")), u"Max capacity: 91%"_s);
    QCOMPARE(spokenNameOf(cardOf("CyclesView")), u"Charge cycles: 312 of 1000"_s);
    QCOMPARE(spokenNameOf(cardOf("HealthStatusView")), u"Health: Service recommended"_s);
    QCOMPARE(spokenNameOf(cardOf("LifespanView")), u"Lifespan: Good"_s);
}

void HealthViewTest::changesOnlyTheCardsOfAValue()
{
    setBattery(91, 312, 1000);
    m_stage->data.setHealth(BatteryHealth::normal);
    const QList<QQuickItem *> items = itemsOfType(m_stage->item.get(), "QQuickItem");
    const QImage before = m_stage->picture();

    m_stage->data.setChargeCycles(313);

    QCOMPARE(itemsOfType(m_stage->item.get(), "QQuickItem"), items);
    const QImage after = m_stage->picture();
    const QRect cycles(110, 0, 100, 100);
    QVERIFY(after.copy(cycles) != before.copy(cycles));
    const QRect left(0, 0, 110, 210);
    QCOMPARE(after.copy(left), before.copy(left));
    const QRect below(0, 100, 210, 110);
    QCOMPARE(after.copy(below), before.copy(below));
}

FERRIN_TEST(QGuiApplication, HealthViewTest)
#include "test_healthview.moc"
