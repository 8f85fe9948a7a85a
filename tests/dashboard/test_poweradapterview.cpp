// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class PowerAdapterViewTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasUnknownCardsForAnUnknownSource();
    void readsNotConnectedBeforeAnyAdapterWasSeen();
    void readsGettingInfoUntilTheAdapterIsRecorded();
    void explainsANameThatHasNoRoomByAllOfIt();
    void readsNotAvailableForZeroAndEmpty();
    void waitsForBothOfVoltsAndAmps();
    void showsWhatTheAdapterSaysOfItself();
    void keepsTheLastAdapterOnceItIsUnplugged();
    void showsVoltsAndAmpsWithTwoDecimalsAtMost();
    void showsTheAppleForAMakerInAnyCase();
    void showsABadgeForOtherMakers();
    void showsNamesFromOutsideAsTheyAre();
    void saysEachCardInWords();
    void hasNoPopovers();

private:
    [[nodiscard]] QQuickItem *cardOf(const char *type) { return card(m_stage->item.get(), type); }
    [[nodiscard]] QStringList valuesOf(const char *type) { return textsOf(cardOf(type)).mid(1); }
    void plugIn();

    std::unique_ptr<Stage> m_stage;
};

namespace {

constexpr std::array cardTypes { "AdapterWattsView", "AdapterDataView", "AdapterNameView",
                                 "AdapterManufacturerView" };

}

void PowerAdapterViewTest::init()
{
    m_stage = std::make_unique<Stage>();
    m_stage->show("PowerAdapterView {}");
}

void PowerAdapterViewTest::cleanup()
{
    m_stage.reset();
}

void PowerAdapterViewTest::plugIn()
{
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->stored.setAdapterWatts(65);
    m_stage->stored.setAdapterVoltage(20.0F);
    m_stage->stored.setAdapterCurrent(3.251F);
    m_stage->stored.setAdapterName(u"65W USB-C Power Adapter"_s);
    m_stage->stored.setAdapterManufacturer(u"Apple Inc."_s);
    QTRY_COMPARE(valuesOf("AdapterManufacturerView"), QStringList { u"Apple Inc."_s });
}

void PowerAdapterViewTest::hasUnknownCardsForAnUnknownSource()
{
    plugIn();
    m_stage->data.setPowerSource(PowerSource::unknown);
    QCOMPARE(textsOf(m_stage->item.get()),
             QStringList({ u"Power"_s, u"Unknown"_s, u"Volts & amps"_s, u"Unknown"_s,
                           u"Description"_s, u"Unknown"_s, u"Manufacturer"_s, u"Unknown"_s }));
    for (const char *type : cardTypes)
        QCOMPARE(
            imagesOf(cardOf(type)),
            QStringList { u"questionmark.circle 18 "_s + m_stage->colorNamed("unknownColor") });
}

void PowerAdapterViewTest::readsNotConnectedBeforeAnyAdapterWasSeen()
{
    m_stage->data.setPowerSource(PowerSource::battery);
    for (const char *type : cardTypes)
        QCOMPARE(valuesOf(type), QStringList { u"Not connected"_s });
}

void PowerAdapterViewTest::readsGettingInfoUntilTheAdapterIsRecorded()
{
    m_stage->data.setPowerSource(PowerSource::external);
    for (const char *type : cardTypes)
        QCOMPARE(valuesOf(type), QStringList { u"Getting info..."_s });
    m_stage->stored.setAdapterWatts(65);
    QTRY_COMPARE(valuesOf("AdapterWattsView"), QStringList({ u"65"_s, u"watts"_s }));
    QCOMPARE(valuesOf("AdapterNameView"), QStringList { u"Getting info..."_s });
}

void PowerAdapterViewTest::explainsANameThatHasNoRoomByAllOfIt()
{
    plugIn();
    QVERIFY(!moreInfoButton(cardOf("AdapterManufacturerView")));
    const QString maker = u"Shenzhen Huntkey Electric Company Limited of *Guangdong*"_s;
    m_stage->stored.setAdapterManufacturer(maker);
    QTRY_VERIFY(moreInfoButton(cardOf("AdapterManufacturerView")));
    m_stage->click(moreInfoButton(cardOf("AdapterManufacturerView")));
    QTRY_VERIFY(openPopover());
    QCOMPARE(textsOf(openPopover()->contentItem()), QStringList { maker });
}

void PowerAdapterViewTest::readsNotAvailableForZeroAndEmpty()
{
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->stored.setAdapterWatts(0);
    m_stage->stored.setAdapterVoltage(0.0F);
    m_stage->stored.setAdapterCurrent(3.0F);
    m_stage->stored.setAdapterName(QString(u""_s));
    m_stage->stored.setAdapterManufacturer(QString(u""_s));
    for (const char *type : cardTypes)
        QTRY_COMPARE(valuesOf(type), QStringList { u"Not available"_s });
    m_stage->stored.setAdapterVoltage(20.0F);
    QTRY_COMPARE(valuesOf("AdapterDataView").size(), 4);
    m_stage->stored.setAdapterCurrent(0.0F);
    QTRY_COMPARE(valuesOf("AdapterDataView"), QStringList { u"Not available"_s });
    m_stage->data.setPowerSource(PowerSource::battery);
    QCOMPARE(valuesOf("AdapterDataView"), QStringList { u"Not available"_s });
}

void PowerAdapterViewTest::waitsForBothOfVoltsAndAmps()
{
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->stored.setAdapterVoltage(20.0F);
    QTRY_VERIFY(m_stage->adapter.voltage().isValid());
    QCOMPARE(valuesOf("AdapterDataView"), QStringList { u"Getting info..."_s });
    m_stage->data.setPowerSource(PowerSource::battery);
    QCOMPARE(valuesOf("AdapterDataView"), QStringList { u"Not connected"_s });
}

void PowerAdapterViewTest::showsWhatTheAdapterSaysOfItself()
{
    plugIn();
    QCOMPARE(textsOf(cardOf("AdapterWattsView")), QStringList({ u"Power"_s, u"65"_s, u"watts"_s }));
    QCOMPARE(imagesOf(cardOf("AdapterWattsView")),
             QStringList { u"bolt.circle 19 "_s + m_stage->colorNamed("yellowIcon") });
    QCOMPARE(textsOf(cardOf("AdapterDataView")),
             QStringList({ u"Volts & amps"_s, u"20"_s, u"volts"_s, u"3.25"_s, u"amps"_s }));
    QCOMPARE(imagesOf(cardOf("AdapterDataView")),
             QStringList { u"waveform 18 "_s + m_stage->colorNamed("blueIcon") });
    QCOMPARE(textsOf(cardOf("AdapterNameView")),
             QStringList({ u"Description"_s, u"65W USB-C Power Adapter"_s }));
    QCOMPARE(imagesOf(cardOf("AdapterNameView")),
             QStringList { u"text.bubble 18 "_s + m_stage->colorNamed("greenIcon") });
    QCOMPARE(textsOf(cardOf("AdapterManufacturerView")),
             QStringList({ u"Manufacturer"_s, u"Apple Inc."_s }));
}

void PowerAdapterViewTest::keepsTheLastAdapterOnceItIsUnplugged()
{
    plugIn();
    const QStringList texts = textsOf(m_stage->item.get());
    m_stage->data.setPowerSource(PowerSource::battery);
    QTest::qWait(0);
    QCOMPARE(textsOf(m_stage->item.get()), texts);
}

void PowerAdapterViewTest::showsVoltsAndAmpsWithTwoDecimalsAtMost()
{
    m_stage->data.setPowerSource(PowerSource::external);
    m_stage->stored.setAdapterVoltage(20.0F);
    m_stage->stored.setAdapterCurrent(2.999F);
    QTRY_COMPARE(valuesOf("AdapterDataView"),
                 QStringList({ u"20"_s, u"volts"_s, u"3"_s, u"amps"_s }));
    m_stage->stored.setAdapterCurrent(4.7F);
    QTRY_COMPARE(valuesOf("AdapterDataView").at(2), u"4.7"_s);
}

void PowerAdapterViewTest::showsTheAppleForAMakerInAnyCase()
{
    m_stage->data.setPowerSource(PowerSource::battery);
    for (const QString &maker : { u"Apple Inc."_s, u"apple inc."_s, u"The APPLE company"_s }) {
        m_stage->stored.setAdapterManufacturer(maker);
        QTRY_COMPARE(valuesOf("AdapterManufacturerView"), QStringList { maker });
        QVERIFY(imagesOf(cardOf("AdapterManufacturerView"))
                    .constFirst()
                    .startsWith(u"apple.logo 20 "_s));
    }
}

void PowerAdapterViewTest::showsABadgeForOtherMakers()
{
    m_stage->data.setPowerSource(PowerSource::battery);
    m_stage->stored.setAdapterManufacturer(u"Lenovo"_s);
    QTRY_COMPARE(valuesOf("AdapterManufacturerView"), QStringList { u"Lenovo"_s });
    QVERIFY(imagesOf(cardOf("AdapterManufacturerView"))
                .constFirst()
                .startsWith(u"person.text.rectangle 16 "_s));
}

void PowerAdapterViewTest::showsNamesFromOutsideAsTheyAre()
{
    constexpr int plainText = Qt::PlainText;
    m_stage->data.setPowerSource(PowerSource::battery);
    const QString name = u"<b>65W</b> &amp; **USB**"_s;
    m_stage->stored.setAdapterName(name);
    m_stage->stored.setAdapterManufacturer(name);
    QTRY_COMPARE(valuesOf("AdapterManufacturerView"), QStringList { name });
    const QList<QQuickItem *> texts = visibleItemsOfType(m_stage->item.get(), "QQuickText");
    for (const QQuickItem *text : texts)
        QCOMPARE(text->property("textFormat").toInt(), plainText);
}

void PowerAdapterViewTest::saysEachCardInWords()
{
    m_stage->data.setPowerSource(PowerSource::battery);
    QCOMPARE(spokenNameOf(cardOf("AdapterWattsView")), u"Power: Not connected"_s);
    plugIn();
    QCOMPARE(spokenNameOf(cardOf("AdapterWattsView")), u"Power: 65 watts"_s);
    QCOMPARE(spokenNameOf(cardOf("AdapterDataView")), u"Volts & amps: 20 volts, 3.25 amps"_s);
    QCOMPARE(spokenNameOf(cardOf("AdapterNameView")), u"Description: 65W USB-C Power Adapter"_s);
    QCOMPARE(spokenNameOf(cardOf("AdapterManufacturerView")), u"Manufacturer: Apple Inc."_s);
}

void PowerAdapterViewTest::hasNoPopovers()
{
    plugIn();
    for (const char *type : cardTypes) {
        QVERIFY(!moreInfoButton(cardOf(type)));
        m_stage->click(cardOf(type));
    }
    QVERIFY(!openPopover());
}

FERRIN_TEST(QGuiApplication, PowerAdapterViewTest)
#include "test_poweradapterview.moc"
