// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

/// The cards as they are painted, at the scale that the environment asks for.
class CardPixelsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isPaintedAtTheScaleOfTheScreen();
    void hasASharpOutlineTwoPixelsWide();
    void keepsItsPartsApart_data();
    void keepsItsPartsApart();
    void hasItsImageInTheMiddle_data();
    void hasItsImageInTheMiddle();
    void looksTheSameInDarkWithOtherColors();

private:
    void show(const QByteArray &section);
    /// What of this part of a card, in its own logical pixels, is neither ground nor outline.
    [[nodiscard]] QRectF inkIn(const QQuickItem &card, const QRectF &part);

    Stage m_stage;
};

namespace {

void addSections()
{
    QTest::addColumn<QByteArray>("section");
    QTest::newRow("status") << QByteArray("StatusView {}");
    QTest::newRow("health") << QByteArray("HealthView {}");
    QTest::newRow("adapter") << QByteArray("PowerAdapterView {}");
}

} // namespace

void CardPixelsTest::show(const QByteArray &section)
{
    m_stage.data.setCharge(100);
    m_stage.data.setChargingStatus(BatteryChargingStatus::finishingCharge);
    m_stage.data.setPowerSource(PowerSource::battery);
    m_stage.data.setTimeRemaining({ 20, 48 });
    m_stage.data.setMaxCapacity(100);
    m_stage.data.setChargeCycles(10000);
    m_stage.data.setDesignCycles(10000);
    m_stage.data.setHealth(BatteryHealth::service);
    m_stage.stored.setAdapterWatts(140);
    m_stage.stored.setAdapterVoltage(20.25F);
    m_stage.stored.setAdapterCurrent(3.25F);
    m_stage.stored.setAdapterName(u"140W USB-C Power Adapter"_s);
    m_stage.stored.setAdapterManufacturer(u"Shenzhen Huntkey Electric"_s);
    m_stage.show(section);
    QTRY_COMPARE(m_stage.adapter.manufacturer().toString(), u"Shenzhen Huntkey Electric"_s);
}

QRectF CardPixelsTest::inkIn(const QQuickItem &card, const QRectF &part)
{
    const QImage image = m_stage.picture();
    const qreal scale = m_stage.window.effectiveDevicePixelRatio();
    const QPointF corner = card.mapToScene(QPointF()) * scale;
    const QRgb ground = QColor(m_stage.colorNamed("cardColor")).rgb();
    QRect ink;
    for (int y = qRound(part.top() * scale); y < qRound(part.bottom() * scale); ++y) {
        for (int x = qRound(part.left() * scale); x < qRound(part.right() * scale); ++x) {
            if (image.pixel(corner.toPoint() + QPoint(x, y)) != ground)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return QRectF(QPointF(ink.topLeft()) / scale, QSizeF(ink.size()) / scale);
}

void CardPixelsTest::isPaintedAtTheScaleOfTheScreen()
{
    show("StatusView {}");
    const QByteArray asked = qgetenv("QT_SCALE_FACTOR");
    const int scale = asked.isEmpty() ? 1 : asked.toInt();
    QCOMPARE(m_stage.picture().size(), QSize(210, 210) * scale);
}

void CardPixelsTest::hasASharpOutlineTwoPixelsWide()
{
    show("StatusView {}");
    const QImage image = m_stage.picture();
    const int scale = int(m_stage.window.effectiveDevicePixelRatio());
    const QColor outline(m_stage.colorNamed("greyIcon"));
    const QColor ground(m_stage.colorNamed("cardColor"));
    for (int i = 0; i < 2 * scale; ++i) {
        QCOMPARE(image.pixelColor(i, 50 * scale), outline);
        QCOMPARE(image.pixelColor(50 * scale, i), outline);
        QCOMPARE(image.pixelColor(100 * scale - 1 - i, 50 * scale), outline);
    }
    QCOMPARE(image.pixelColor(2 * scale, 50 * scale), ground);
    QCOMPARE(image.pixelColor(50 * scale, 2 * scale), ground);
}

void CardPixelsTest::keepsItsPartsApart_data()
{
    addSections();
}

void CardPixelsTest::keepsItsPartsApart()
{
    QFETCH(QByteArray, section);
    show(section);
    const QList<QQuickItem *> cards = itemsOfType(m_stage.item.get(), "CardView");
    for (const QQuickItem *tile : cards) {
        const QByteArray name = tile->metaObject()->className();
        // Nothing on the margins...
        QVERIFY2(inkIn(*tile, QRectF(10, 2, 80, 7)).isEmpty(), name);
        QVERIFY2(inkIn(*tile, QRectF(2, 10, 2.5, 80)).isEmpty(), name);
        QVERIFY2(inkIn(*tile, QRectF(95.5, 10, 2.5, 80)).isEmpty(), name);
        QVERIFY2(inkIn(*tile, QRectF(10, 91, 80, 7)).isEmpty(), name);
        // ...nor between title, image, text and button.
        QVERIFY2(inkIn(*tile, QRectF(4, 25, 92, 6)).isEmpty(), name);
        QVERIFY2(inkIn(*tile, QRectF(66, 31, 14, 26)).isEmpty(), name);
        QVERIFY2(!inkIn(*tile, QRectF(4, 9, 92, 16)).isEmpty(), name);
        QVERIFY2(!inkIn(*tile, QRectF(30, 31, 36, 28)).isEmpty(), name);
        QVERIFY2(!inkIn(*tile, QRectF(4, 75, 92, 15)).isEmpty(), name);
    }
}

void CardPixelsTest::hasItsImageInTheMiddle_data()
{
    addSections();
}

void CardPixelsTest::hasItsImageInTheMiddle()
{
    QFETCH(QByteArray, section);
    show(section);
    const QList<QQuickItem *> cards = itemsOfType(m_stage.item.get(), "CardView");
    for (const QQuickItem *tile : cards) {
        const QPointF middle = inkIn(*tile, QRectF(30, 31, 40, 25)).center();
        QVERIFY2(qAbs(middle.x() - 50) <= 2, tile->metaObject()->className());
        QVERIFY2(qAbs(middle.y() - 45) <= 3, tile->metaObject()->className());
    }
}

void CardPixelsTest::looksTheSameInDarkWithOtherColors()
{
    show("HealthView {}");
    const QQuickItem *const tile = card(m_stage.item.get(), "CyclesView");
    const QRectF light = inkIn(*tile, QRectF(4, 4, 92, 92));
    m_stage.appearance.setAppearance(Appearance::dark);
    QTest::qWait(0);
    QCOMPARE(m_stage.picture().pixelColor(10, 50), QColor(m_stage.colorNamed("cardColor")));
    const QRectF dark = inkIn(*tile, QRectF(4, 4, 92, 92));
    QVERIFY(!light.isEmpty());
    QVERIFY(qAbs(dark.width() - light.width()) <= 1 && qAbs(dark.height() - light.height()) <= 1);
    m_stage.appearance.setAppearance(Appearance::light);
}

FERRIN_TEST(QGuiApplication, CardPixelsTest)
#include "test_cardpixels.moc"
