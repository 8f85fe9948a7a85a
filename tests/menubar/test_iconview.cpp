// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "menubar/iconview.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using enum BatteryChargingStatus;

namespace {

bool isRedSomewhere(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 64 && color.red() > 128 && color.green() < 64)
                return true;
        }
    }
    return false;
}

bool isRed(Icon icon, double charge, BatteryChargingStatus status)
{
    return isRedSomewhere(painted(IconView { icon, charge, status }, 4));
}

const Icon withoutBolt[] = { Icon::battery1V,      Icon::battery1H,         Icon::battery2V,
                             Icon::battery2H,      Icon::battery2VInverted, Icon::battery2HInverted,
                             Icon::battery2VBlack, Icon::battery2HBlack };
const Icon withBolt[] = { Icon::battery1HWithBolt, Icon::battery2HWithBolt,
                          Icon::battery2HInvertedWithBolt, Icon::battery2HBlackWithBolt };

} // namespace

class IconViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsRedWhileDischargingAtTenPercentOrLess()
    {
        for (const Icon icon : withoutBolt) {
            QVERIFY(isRed(icon, 10, discharging));
            QVERIFY(isRed(icon, 3, discharging));
        }
    }

    void isNotRedJustAboveTenPercent()
    {
        for (const Icon icon : withoutBolt)
            QVERIFY(!isRed(icon, 10.5, discharging));
    }

    void isNeverRedUnlessDischarging()
    {
        for (const BatteryChargingStatus status : { charging, charged, finishingCharge, unknown }) {
            for (const Icon icon : withoutBolt)
                QVERIFY(!isRed(icon, 5, status));
        }
    }

    void isNeverRedWithABolt()
    {
        for (const Icon icon : withBolt)
            QVERIFY(!isRed(icon, 3, discharging));
    }

    void keepsItsOutlineInTheTextColorWhenLow()
    {
        const QImage image = painted(IconView { Icon::battery2H, 3, discharging }, 4);
        QCOMPARE(image.pixelColor(image.width() / 2, 1).red(), 0);
    }

    void drawsEveryIcon_data()
    {
        QTest::addColumn<Icon>("icon");
        for (const Icon icon : allIcons())
            QTest::newRow(qPrintable(rawValue(icon))) << icon;
    }

    void drawsEveryIcon()
    {
        QFETCH(Icon, icon);
        const AnyView view = IconView { icon, 37, charging };
        const QSizeF size = view.idealSize(blackOnClear);
        QVERIFY(size.width() >= 6 && size.width() <= 24);
        QVERIFY(size.height() <= 18);
        QVERIFY(!inkedRect(painted(view)).isEmpty());
    }

    void drawsNoTwoIconsAlike()
    {
        QList<QImage> pictures;
        for (const Icon icon : allIcons()) {
            const QImage picture = painted(IconView { icon, 37, charging }, { 26, 22 }, 2);
            QVERIFY2(!pictures.contains(picture), qPrintable(rawValue(icon)));
            pictures.append(picture);
        }
    }

    void drawsSymbolsAtTheirHeightWhateverTheCharge()
    {
        for (const Icon icon : allIcons()) {
            if (isGlyph(icon))
                continue;
            const AnyView view = IconView { icon, 5, discharging };
            QCOMPARE(view.idealSize(blackOnClear).height(), 16.5);
            QCOMPARE(painted(view, { 24, 22 }),
                     painted(IconView { icon, 100, charged }, { 24, 22 }));
        }
    }

    void drawsSymbolsAsStrongAsText()
    {
        const QImage image
            = painted(IconView { Icon::arrowUpSquareFill, 50, charging }, { 22, 22 }, 2);
        QVERIFY(near(opacityAt(image, 14, 22), 0.875, 0.01));
    }

    void glyphsFollowTheCharge()
    {
        for (const Icon icon : allIcons()) {
            if (isGlyph(icon))
                QVERIFY(painted(IconView { icon, 30, charging }, 2)
                        != painted(IconView { icon, 80, charging }, 2));
        }
    }
};

FERRIN_TEST(QGuiApplication, IconViewTest)
#include "test_iconview.moc"
