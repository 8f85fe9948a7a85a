// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/quick/stage.h"
#include "tests/support/testmain.h"

using namespace ferrin;

namespace {

constexpr QRgb red = 0xffff0000;
constexpr QRgb blue = 0xff0000ff;

class Picture
{
public:
    explicit Picture(const QByteArray &properties, qreal scale = 1)
    {
        m_stage.window.setColor(Qt::white);
        m_stage.show("Item { width: 100; height: 100; RoundedRect { transformOrigin: Item.TopLeft;"
                     "scale: "
                     + QByteArray::number(scale) + "; x: 10; y: 10; width: 40; height: 20; "
                     + properties + " } }");
        m_image = m_stage.picture();
        m_image.setDevicePixelRatio(1);
    }

    [[nodiscard]] QRgb at(int x, int y) const { return m_image.pixel(x, y); }
    [[nodiscard]] bool isWhite(int x, int y) const { return at(x, y) == 0xffffffff; }

private:
    test::SceneStage m_stage { QByteArrayList() };
    QImage m_image;
};

} // namespace

class RoundedRectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsItsAreaButItsCorners()
    {
        const Picture picture("radius: 8; color: '#ff0000'");
        QVERIFY(picture.isWhite(10, 10));
        QVERIFY(picture.isWhite(49, 29));
        QCOMPARE(picture.at(30, 10), red);
        QCOMPARE(picture.at(10, 20), red);
        QVERIFY(picture.isWhite(9, 20));
        QVERIFY(picture.isWhite(50, 20));
    }

    void hasItsBorderInside()
    {
        const Picture picture(
            "radius: 4; color: '#ff0000'; borderWidth: 2; borderColor: '#0000ff'");
        QVERIFY(picture.isWhite(9, 20));
        QCOMPARE(picture.at(10, 20), blue);
        QCOMPARE(picture.at(11, 20), blue);
        QCOMPARE(picture.at(12, 20), red);
    }

    void fadesFromTheTopToItsEnd()
    {
        const Picture picture("color: '#ff0000'; endColor: '#0000ff'; endsAt: 0.5");
        QVERIFY(qRed(picture.at(30, 10)) > qBlue(picture.at(30, 10)));
        QCOMPARE(picture.at(30, 25), blue);
    }

    void keepsItsEdgesOnWholePixelsWhereTheSceneIsScaled()
    {
        // 10 to 62.5 across, 10 to 36.25 down, with a line of 1.3125 pixels.
        const Picture picture("color: '#ff0000'; borderWidth: 1; borderColor: '#0000ff'", 1.3125);
        QVERIFY(picture.isWhite(9, 20));
        QCOMPARE(picture.at(10, 20), blue);
        QCOMPARE(picture.at(11, 20), red);
        QCOMPARE(picture.at(30, 35), blue);
        QVERIFY(picture.isWhite(30, 36));
    }

    void isSeenThroughByItsOpacityOnce()
    {
        const Picture picture(
            "color: '#ff0000'; borderWidth: 2; borderColor: '#ff0000'; opacity: 0.5");
        // Painters round the half differently.
        QVERIFY(qAbs(qGreen(picture.at(30, 20)) - 128) <= 1);
        QCOMPARE(picture.at(30, 10), picture.at(30, 20));
    }
};

FERRIN_TEST(QGuiApplication, RoundedRectTest)
#include "test_roundedrect.moc"
