// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/iconview.h"
#include "quick/iconitem.h"
#include "tests/menubar/ink.h"
#include "tests/quick/stage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

/// An icon in a frame that is larger than it, on white.
struct Picture
{
    explicit Picture(const QByteArray &lines)
    {
        stage.window.setColor(Qt::white);
        item = qobject_cast<IconItem *>(stage.show(
            "IconView { width: 40; height: 30; fontFamily: 'DejaVu Sans'; textColor: 'black';"
            " redColor: '#ff0000'; "
            + lines + '}'));
    }

    SceneStage stage { {} };
    IconItem *item = nullptr;
};

QImage onWhite(const IconView &view, qreal scale)
{
    const QImage ink = painted(AnyView(view), QSizeF(40, 30), scale);
    QImage image(ink.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, ink);
    return image;
}

} // namespace

class IconItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheMenuBarsOwnPictureInTheMiddleOfItsFrame_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::newRow("glyph") << u"battery2H"_s;
        QTest::newRow("glyph with bolt") << u"battery1HWithBolt"_s;
        QTest::newRow("symbol") << u"bolt.circle"_s;
    }

    void isTheMenuBarsOwnPictureInTheMiddleOfItsFrame()
    {
        QFETCH(QString, icon);
        Picture f("icon: '" + icon.toUtf8() + "'; charge: 78; status: ChargingStatus.Charging");
        const IconView view { *iconFromRawValue(icon), 78, BatteryChargingStatus::charging };
        QVERIFY(*f.item->view().as<IconView>() == view);
        const QImage shown = f.stage.picture().convertToFormat(QImage::Format_RGB32);
        const QImage expected = onWhite(view, f.stage.window.devicePixelRatio());
        QCOMPARE(shown.size(), expected.size());
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x)
                QVERIFY(qAbs(qGray(shown.pixel(x, y)) - qGray(expected.pixel(x, y))) <= 4);
        }
    }

    void isRedInsideWhenLowOnly()
    {
        Picture f("icon: 'battery1H'; charge: 10; status: ChargingStatus.Discharging");
        const auto isRed = [&f] {
            const QImage picture = f.stage.picture();
            const QColor at
                = picture.pixelColor(QPoint(11, 15) * f.stage.window.devicePixelRatio());
            return at.red() > 150 && at.green() < 100;
        };
        QVERIFY(isRed());
        f.item->setStatus(ChargingStatuses::Charging);
        QVERIFY(!isRed());
        f.item->setStatus(ChargingStatuses::Discharging);
        f.item->setCharge(11);
        QVERIFY(!isRed());
    }

    void isInkedInItsTextColor()
    {
        Picture f("icon: 'bolt.square.fill'");
        const auto middle = [&f] {
            const QImage picture = f.stage.picture();
            return picture.pixelColor(QPoint(14, 15) * f.stage.window.devicePixelRatio());
        };
        QVERIFY(middle().lightness() < 60);
        f.item->setTextColor(Qt::blue);
        QVERIFY(middle().blue() > 240 && middle().red() < 60);
    }

    void isAsLargeAsItsViewUnlessItIsGivenAFrame()
    {
        Picture f("icon: 'battery2H'");
        QCOMPARE(f.item->implicitWidth(), 23.0);
        QCOMPARE(f.item->implicitHeight(), 11.0);
        f.item->setIcon(u"bolt"_s);
        QCOMPARE(f.item->implicitHeight(), 17.0);
    }

    void showsNothingForATextThatIsNoIcons()
    {
        Picture f("icon: 'battery3'");
        QVERIFY(f.item->view().isEmpty());
        f.item->setIcon(u"bolt"_s);
        QVERIFY(!f.item->view().isEmpty());
        f.item->setIcon(QString());
        QVERIFY(f.item->view().isEmpty());
        QCOMPARE(f.item->implicitWidth(), 0.0);
    }
};

FERRIN_TEST(QGuiApplication, IconItemTest)
#include "test_iconitem.moc"
