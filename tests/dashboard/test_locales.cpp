// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QLocale>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

qreal middleOf(const QQuickItem *item)
{
    return item->mapRectToScene(item->boundingRect()).center().x();
}

QQuickItem *textOf(QQuickItem *root, const QString &text)
{
    const QList<QQuickItem *> texts = visibleItemsOfType(root, "QQuickText");
    const auto found = std::ranges::find_if(
        texts, [&](const QQuickItem *item) { return item->property("text") == text; });
    return found == texts.end() ? nullptr : *found;
}

} // namespace

class LocalesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesCardsInTheDigitsOfTheLocale_data();
    void writesCardsInTheDigitsOfTheLocale();
    void writesVoltsAndAmpsAlikeInEveryLocale();
    void writesExplanationsInPlainDigitsInEveryLocale();
    void isMirroredWhereOneReadsFromRightToLeft();
    void keepsFiguresBeforeTheirUnits();
    void leadsTheFocusWhereTheArrowKeysPoint();
    void alignsExplanationsAtTheSideWhereReadingBegins();

private:
    [[nodiscard]] QQuickItem *cardOf(const char *type) { return card(m_stage->item.get(), type); }
    /// The texts of a card without its title.
    [[nodiscard]] QString valueOf(const char *type)
    {
        return textsOf(cardOf(type)).sliced(1).join(u' ');
    }

    std::unique_ptr<Stage> m_stage;
};

void LocalesTest::init()
{
    m_stage = std::make_unique<Stage>();
    m_stage->data.setCharge(41);
    m_stage->data.setChargingStatus(BatteryChargingStatus::held);
    m_stage->data.setChargeLimit(80);
    m_stage->data.setTimeRemaining({ .hours = 10, .minutes = 1 });
    m_stage->data.setMaxCapacity(91);
    m_stage->data.setChargeCycles(1200);
    m_stage->data.setDesignCycles(300);
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->stored.setAdapterWatts(65);
    m_stage->stored.setAdapterVoltage(20.0F);
    m_stage->stored.setAdapterCurrent(3.25F);
}

void LocalesTest::cleanup()
{
    m_stage.reset();
    QLocale::setDefault(QLocale::system());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void LocalesTest::writesCardsInTheDigitsOfTheLocale_data()
{
    QTest::addColumn<QString>("charge");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("cycles");
    QTest::addColumn<QString>("watts");
    QTest::newRow("C") << u"41 %"_s << u"10 h 1 m"_s << u"Held at 80%"_s << u"1200 / 300"_s
                       << u"65 watts"_s;
    QTest::newRow("en_US") << u"41 %"_s << u"10 h 1 m"_s << u"Held at 80%"_s << u"1,200 / 300"_s
                           << u"65 watts"_s;
    QTest::newRow("de_DE") << u"41 %"_s << u"10 h 1 m"_s << u"Held at 80%"_s << u"1.200 / 300"_s
                           << u"65 watts"_s;
    QTest::newRow("ar_EG") << u"٤١ %"_s << u"١٠ h ١ m"_s << u"Held at ٨٠%"_s << u"١٬٢٠٠ / ٣٠٠"_s
                           << u"٦٥ watts"_s;
    QTest::newRow("fa_IR") << u"۴۱ %"_s << u"۱۰ h ۱ m"_s << u"Held at ۸۰%"_s << u"۱٬۲۰۰ / ۳۰۰"_s
                           << u"۶۵ watts"_s;
}

void LocalesTest::writesCardsInTheDigitsOfTheLocale()
{
    QLocale::setDefault(QLocale(QString::fromLatin1(QTest::currentDataTag())));
    m_stage->show("StatusView {}");
    QTEST(valueOf("ChargeNowView"), "charge");
    QTEST(valueOf("TimeToView"), "time");
    QTEST(valueOf("CurrentlyView"), "held");
    QFETCH(QString, charge);
    QCOMPARE(spokenNameOf(cardOf("ChargeNowView")), u"Charge now: "_s + charge.remove(u' '));
    m_stage->show("HealthView {}");
    QTEST(valueOf("CyclesView"), "cycles");
    m_stage->show("PowerAdapterView {}");
    QTEST(valueOf("AdapterWattsView"), "watts");
}

void LocalesTest::writesVoltsAndAmpsAlikeInEveryLocale()
{
    for (const auto locale : { "C", "en_US", "de_DE", "ar_EG", "fa_IR" }) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        m_stage->show("PowerAdapterView {}");
        QCOMPARE(valueOf("AdapterDataView"), u"20 volts 3.25 amps"_s);
    }
}

void LocalesTest::writesExplanationsInPlainDigitsInEveryLocale()
{
    for (const auto locale : { "C", "en_US", "de_DE", "ar_EG", "fa_IR" }) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        m_stage->show("CyclesToMoreInfoView { currentCycles: 1200; designCycles: 1300 }");
        QVERIFY(textsOf(m_stage->item.get()).value(2).contains(u"**1200 charge cycles**"_s));
    }
}

void LocalesTest::isMirroredWhereOneReadsFromRightToLeft()
{
    m_stage->show("DashboardView {}");
    QQuickItem *const menu = card(m_stage->item.get(), "MainMenuView");
    const qreal middle = m_stage->item->width() / 2;
    QVERIFY(middleOf(menu) < middle);
    QVERIFY(middleOf(cardOf("ChargeNowView")) < middleOf(cardOf("TimeToView")));
    QQuickItem *const symbol = visibleItemsOfType(menu, "ferrin::Symbol").constFirst();
    QVERIFY(middleOf(symbol) < middleOf(menu));

    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(middleOf(menu) > middle);
    QVERIFY(middleOf(cardOf("ChargeNowView")) > middleOf(cardOf("TimeToView")));
    QVERIFY(middleOf(symbol) > middleOf(menu));
    QQuickItem *const more = moreInfoButton(cardOf("TimeToView"));
    QVERIFY(more && middleOf(more) < middleOf(cardOf("TimeToView")));
}

void LocalesTest::keepsFiguresBeforeTheirUnits()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    m_stage->show("DashboardView {}");
    qreal last = 0;
    for (const auto &text : { u"10"_s, u"h"_s, u"1"_s, u"m"_s }) {
        QQuickItem *const part = textOf(cardOf("TimeToView"), text);
        QVERIFY2(part && middleOf(part) > last, qPrintable(text));
        last = middleOf(part);
    }
}

void LocalesTest::leadsTheFocusWhereTheArrowKeysPoint()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    m_stage->show("DashboardView {}");
    cardOf("ChargeNowView")->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_stage->window, Qt::Key_Left);
    QCOMPARE(m_stage->window.activeFocusItem(), cardOf("TimeToView"));
    QTest::keyClick(&m_stage->window, Qt::Key_Right);
    QCOMPARE(m_stage->window.activeFocusItem(), cardOf("ChargeNowView"));
}

void LocalesTest::alignsExplanationsAtTheSideWhereReadingBegins()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    m_stage->show("CyclesToMoreInfoView { currentCycles: 1200; designCycles: 1300 }");
    QVERIFY(middleOf(textOf(m_stage->item.get(), u"YOUR BATTERY"_s)) > 200);
    const QQuickItem *const paragraph = itemsOfType(m_stage->item.get(), "MoreInfoText").value(0);
    QCOMPARE(paragraph->property("effectiveHorizontalAlignment").toInt(), int(Qt::AlignRight));
}

FERRIN_TEST(QGuiApplication, LocalesTest)
#include "test_locales.moc"
