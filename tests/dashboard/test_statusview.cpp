// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class StatusViewTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void standsInTwoRowsOfTwo();
    void showsTheChargeAsAGaugeAndANumber_data();
    void showsTheChargeAsAGaugeAndANumber();
    void hasAnUnknownCardForAnUnknownCharge();
    void showsTheTimeToEmptyWithoutAPopover();
    void showsTheTimeToFullWithoutAPopover();
    void showsTheTimeAvailableOnAFullBatteryWithItsExplanation_data();
    void showsTheTimeAvailableOnAFullBatteryWithItsExplanation();
    void showsBothPartsOfATimeAlways();
    void hasAnUnknownCardTitledTimeForAnUnknownTime();
    void hasAnUnknownCardTitledTimeForAnUnknownStatus();
    void saysWhatTheBatteryIsDoing_data();
    void saysWhatTheBatteryIsDoing();
    void saysWhereABatteryIsHeld();
    void readsChargedOnAFullBattery();
    void showsTheAdapterAsABolt();
    void showsTheBatteryWithItsCharge();
    void showsABatteryOfUnknownChargeHalfFull();
    void hasAnUnknownCardForAnUnknownSource();
    void saysEachCardInWords();
    void changesOnlyTheCardOfAValue();

private:
    [[nodiscard]] QQuickItem *cardOf(const char *type) { return card(m_stage->item.get(), type); }

    std::unique_ptr<Stage> m_stage;
};

void StatusViewTest::init()
{
    m_stage = std::make_unique<Stage>();
    m_stage->show("StatusView {}");
}

void StatusViewTest::cleanup()
{
    m_stage.reset();
}

void StatusViewTest::standsInTwoRowsOfTwo()
{
    const QList<QQuickItem *> cards = itemsOfType(m_stage->item.get(), "CardView");
    QCOMPARE(cards.size(), 4);
    QVERIFY(isOfType(*cards[0], "ChargeNowView"));
    QVERIFY(isOfType(*cards[1], "TimeToView"));
    QVERIFY(isOfType(*cards[2], "CurrentlyView"));
    QVERIFY(isOfType(*cards[3], "PowerSourceView"));
    QList<QPointF> places;
    for (const QQuickItem *tile : cards) {
        places.append(tile->mapToScene(QPointF()));
        QCOMPARE(QSizeF(tile->width(), tile->height()), QSizeF(100, 100));
    }
    QCOMPARE(places, QList<QPointF>({ { 0, 0 }, { 110, 0 }, { 0, 110 }, { 110, 110 } }));
}

void StatusViewTest::showsTheChargeAsAGaugeAndANumber_data()
{
    QTest::addColumn<qint64>("charge");
    QTest::addColumn<QString>("gauge");
    QTest::newRow("empty") << qint64(0) << u"gauge 0"_s;
    QTest::newRow("one") << qint64(1) << u"gauge 0.01"_s;
    QTest::newRow("some") << qint64(37) << u"gauge 0.37"_s;
    QTest::newRow("full") << qint64(100) << u"gauge 1"_s;
}

void StatusViewTest::showsTheChargeAsAGaugeAndANumber()
{
    QFETCH(qint64, charge);
    QFETCH(QString, gauge);
    m_stage->data.setCharge(charge);
    QQuickItem *const tile = cardOf("ChargeNowView");
    QCOMPARE(textsOf(tile), QStringList({ u"Charge now"_s, QString::number(charge), u"%"_s }));
    QCOMPARE(imagesOf(tile), QStringList { gauge });
    QVERIFY(!moreInfoButton(tile));
}

void StatusViewTest::hasAnUnknownCardForAnUnknownCharge()
{
    QQuickItem *const tile = cardOf("ChargeNowView");
    QCOMPARE(textsOf(tile), QStringList({ u"Charge now"_s, u"Unknown"_s }));
    QCOMPARE(imagesOf(tile),
             QStringList { u"questionmark.circle 18 "_s + m_stage->colorNamed("unknownColor") });
    QVERIFY(!moreInfoButton(tile));
}

void StatusViewTest::showsTheTimeToEmptyWithoutAPopover()
{
    m_stage->data.setChargingStatus(BatteryChargingStatus::discharging);
    m_stage->data.setTimeRemaining({ 4, 29 });
    QQuickItem *const tile = cardOf("TimeToView");
    QCOMPARE(textsOf(tile), QStringList({ u"Time to empty"_s, u"4"_s, u"h"_s, u"29"_s, u"m"_s }));
    QCOMPARE(imagesOf(tile), QStringList { u"clock 20 "_s + m_stage->colorNamed("yellowIcon") });
    QVERIFY(!moreInfoButton(tile));
}

void StatusViewTest::showsTheTimeToFullWithoutAPopover()
{
    m_stage->data.setChargingStatus(BatteryChargingStatus::charging);
    m_stage->data.setTimeRemaining({ 1, 5 });
    QQuickItem *const tile = cardOf("TimeToView");
    QCOMPARE(textsOf(tile), QStringList({ u"Time to full"_s, u"1"_s, u"h"_s, u"5"_s, u"m"_s }));
    QVERIFY(!moreInfoButton(tile));
}

void StatusViewTest::showsTheTimeAvailableOnAFullBatteryWithItsExplanation_data()
{
    QTest::addColumn<BatteryChargingStatus>("status");
    QTest::newRow("charged") << BatteryChargingStatus::charged;
    QTest::newRow("finishing") << BatteryChargingStatus::finishingCharge;
}

void StatusViewTest::showsTheTimeAvailableOnAFullBatteryWithItsExplanation()
{
    QFETCH(BatteryChargingStatus, status);
    m_stage->data.setChargingStatus(status);
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->data.setTimeRemaining({ 12, 0 });
    QQuickItem *const tile = cardOf("TimeToView");
    QCOMPARE(textsOf(tile), QStringList({ u"Time available"_s, u"12"_s, u"h"_s, u"0"_s, u"m"_s }));
    QQuickItem *const button = moreInfoButton(tile);
    QVERIFY(button);
    m_stage->click(button);
    QQuickWindow *const popover = openPopover();
    QVERIFY(popover);
    QQuickItem *const content = card(popover->contentItem(), "TimeToMoreInfoView");
    QCOMPARE(textsOf(content),
             QStringList { u"Time you can use your laptop approximately if the power adapter is "
                           "unplugged."_s });
    QCOMPARE(content->width(), 200);
    QCOMPARE(content->property("padding").toReal(), 10);
}

void StatusViewTest::showsBothPartsOfATimeAlways()
{
    m_stage->data.setChargingStatus(BatteryChargingStatus::charging);
    m_stage->data.setTimeRemaining({ 0, 52 });
    QCOMPARE(textsOf(cardOf("TimeToView")).mid(1),
             QStringList({ u"0"_s, u"h"_s, u"52"_s, u"m"_s }));
}

void StatusViewTest::hasAnUnknownCardTitledTimeForAnUnknownTime()
{
    for (const auto status :
         { BatteryChargingStatus::charging, BatteryChargingStatus::discharging,
           BatteryChargingStatus::charged, BatteryChargingStatus::finishingCharge }) {
        for (const BatteryTime &time :
             { BatteryTime {}, BatteryTime { 3, {} }, BatteryTime { {}, 3 } }) {
            m_stage->data.setChargingStatus(status);
            m_stage->data.setTimeRemaining(time);
            QQuickItem *const tile = cardOf("TimeToView");
            QCOMPARE(textsOf(tile), QStringList({ u"Time"_s, u"Unknown"_s }));
            QCOMPARE(
                imagesOf(tile),
                QStringList { u"questionmark.circle 18 "_s + m_stage->colorNamed("unknownColor") });
            QVERIFY(!moreInfoButton(tile));
        }
    }
}

void StatusViewTest::hasAnUnknownCardTitledTimeForAnUnknownStatus()
{
    m_stage->data.setTimeRemaining({ 4, 29 });
    QCOMPARE(textsOf(cardOf("TimeToView")), QStringList({ u"Time"_s, u"Unknown"_s }));
}

void StatusViewTest::saysWhatTheBatteryIsDoing_data()
{
    QTest::addColumn<BatteryChargingStatus>("status");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("discharging") << BatteryChargingStatus::discharging << u"arrow.down"_s
                                 << QByteArray("redIcon") << u"Discharging"_s;
    QTest::newRow("charging") << BatteryChargingStatus::charging << u"arrow.up"_s
                              << QByteArray("greenIcon") << u"Charging"_s;
    QTest::newRow("charged") << BatteryChargingStatus::charged << u"arrow.up.to.line"_s
                             << QByteArray("greenIcon") << u"Charged"_s;
    QTest::newRow("finishing") << BatteryChargingStatus::finishingCharge << u"arrow.up.to.line"_s
                               << QByteArray("greenIcon") << u"Finishing charge"_s;
    QTest::newRow("held") << BatteryChargingStatus::held << u"pause"_s << QByteArray("greenIcon")
                          << u"Not charging"_s;
    QTest::newRow("unknown") << BatteryChargingStatus::unknown << u"questionmark.circle"_s
                             << QByteArray("unknownColor") << u"Unknown"_s;
}

void StatusViewTest::saysWhatTheBatteryIsDoing()
{
    QFETCH(BatteryChargingStatus, status);
    QFETCH(QString, symbol);
    QFETCH(QByteArray, color);
    QFETCH(QString, text);
    m_stage->data.setChargingStatus(status);
    QQuickItem *const tile = cardOf("CurrentlyView");
    QCOMPARE(textsOf(tile), QStringList({ u"Battery is"_s, text }));
    QCOMPARE(imagesOf(tile), QStringList { symbol + u" 18 "_s + m_stage->colorNamed(color) });
    QVERIFY(!moreInfoButton(tile));
}

void StatusViewTest::saysWhereABatteryIsHeld()
{
    m_stage->data.setCharge(80);
    m_stage->data.setChargeLimit(80);
    m_stage->data.setChargingStatus(BatteryChargingStatus::held);
    m_stage->data.setTimeRemaining({ 5, 10 });
    QCOMPARE(textsOf(cardOf("CurrentlyView")), QStringList({ u"Battery is"_s, u"Held at 80%"_s }));
    QCOMPARE(textsOf(cardOf("TimeToView")).constFirst(), u"Time available"_s);
    QVERIFY(moreInfoButton(cardOf("TimeToView")));
}

void StatusViewTest::readsChargedOnAFullBattery()
{
    m_stage->data.setCharge(100);
    m_stage->data.setChargingStatus(BatteryChargingStatus::charged);
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->data.setTimeRemaining({ 9, 30 });
    QCOMPARE(textsOf(cardOf("CurrentlyView")), QStringList({ u"Battery is"_s, u"Charged"_s }));
    QCOMPARE(imagesOf(cardOf("CurrentlyView")),
             QStringList { u"arrow.up.to.line 18 "_s + m_stage->colorNamed("greenIcon") });
    QCOMPARE(textsOf(cardOf("TimeToView")).constFirst(), u"Time available"_s);
}

void StatusViewTest::showsTheAdapterAsABolt()
{
    m_stage->data.setPowerSource(PowerSource::external);
    QCOMPARE(textsOf(cardOf("PowerSourceView")), QStringList({ u"Power source"_s, u"AC Power"_s }));
    QCOMPARE(imagesOf(cardOf("PowerSourceView")),
             QStringList { u"bolt.fill 18 "_s + m_stage->colorNamed("blueIcon") });
}

void StatusViewTest::showsTheBatteryWithItsCharge()
{
    m_stage->data.setCharge(37);
    m_stage->data.setPowerSource(PowerSource::battery);
    QCOMPARE(textsOf(cardOf("PowerSourceView")), QStringList({ u"Power source"_s, u"Battery"_s }));
    QCOMPARE(imagesOf(cardOf("PowerSourceView")), QStringList { u"battery 37"_s });
}

void StatusViewTest::showsABatteryOfUnknownChargeHalfFull()
{
    m_stage->data.setPowerSource(PowerSource::battery);
    QCOMPARE(imagesOf(cardOf("PowerSourceView")), QStringList { u"battery 50"_s });
}

void StatusViewTest::hasAnUnknownCardForAnUnknownSource()
{
    m_stage->data.setCharge(37);
    QCOMPARE(textsOf(cardOf("PowerSourceView")), QStringList({ u"Power source"_s, u"Unknown"_s }));
    QCOMPARE(imagesOf(cardOf("PowerSourceView")),
             QStringList { u"questionmark.circle 18 "_s + m_stage->colorNamed("unknownColor") });
}

void StatusViewTest::saysEachCardInWords()
{
    QCOMPARE(spokenNameOf(cardOf("ChargeNowView")), u"Charge now: Unknown"_s);
    QCOMPARE(spokenNameOf(cardOf("TimeToView")), u"Time: Unknown"_s);
    QCOMPARE(spokenNameOf(cardOf("CurrentlyView")), u"Battery is: Unknown"_s);
    QCOMPARE(spokenNameOf(cardOf("PowerSourceView")), u"Power source: Unknown"_s);
    m_stage->data.setCharge(37);
    m_stage->data.setChargingStatus(BatteryChargingStatus::discharging);
    m_stage->data.setPowerSource(PowerSource::battery);
    m_stage->data.setTimeRemaining({ 4, 29 });
    QCOMPARE(spokenNameOf(cardOf("ChargeNowView")), u"Charge now: 37%"_s);
    QCOMPARE(spokenNameOf(cardOf("TimeToView")), u"Time to empty: 4 hours 29 minutes"_s);
    QCOMPARE(spokenNameOf(cardOf("CurrentlyView")), u"Battery is: Discharging"_s);
    QCOMPARE(spokenNameOf(cardOf("PowerSourceView")), u"Power source: Battery"_s);
    m_stage->data.setTimeRemaining({ 1, 1 });
    QCOMPARE(spokenNameOf(cardOf("TimeToView")), u"Time to empty: 1 hour 1 minute"_s);
}

void StatusViewTest::changesOnlyTheCardOfAValue()
{
    m_stage->data.setCharge(37);
    m_stage->data.setChargingStatus(BatteryChargingStatus::discharging);
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->data.setTimeRemaining({ 4, 29 });
    const QList<QQuickItem *> items = itemsOfType(m_stage->item.get(), "QQuickItem");
    const QStringList time = textsOf(cardOf("TimeToView"));
    const QImage before = m_stage->picture();

    m_stage->data.setCharge(36);

    QCOMPARE(itemsOfType(m_stage->item.get(), "QQuickItem"), items);
    QCOMPARE(textsOf(cardOf("TimeToView")), time);
    const QImage after = m_stage->picture();
    const QRect chargeNow(0, 0, 100, 100);
    QVERIFY(after.copy(chargeNow) != before.copy(chargeNow));
    const QRect right(100, 0, 110, 210);
    QCOMPARE(after.copy(right), before.copy(right));
    const QRect below(0, 100, 210, 110);
    QCOMPARE(after.copy(below), before.copy(below));
}

FERRIN_TEST(QGuiApplication, StatusViewTest)
#include "test_statusview.moc"
