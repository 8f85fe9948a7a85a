// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/itempictures.h"
#include "tests/platform/support/contents.h"
#include "tests/support/testmain.h"

#include <QImage>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const ViewContext context { .text = Qt::white, .red = Qt::red, .fontFamily = u"DejaVu Sans"_s };
const ItemContent usual = dischargingAt(37, u"4:29"_s);

IconPixmapList paintedFor(const QString &process, qreal scale = 1,
                          const ItemContent &content = usual)
{
    ItemPictures pictures;
    return pictures.pictures(profileFor({ .name = process }), content, context,
                             { .desktopScale = scale });
}

QList<int> heightsOf(const IconPixmapList &pictures)
{
    QList<int> heights;
    for (const IconPixmap &picture : pictures)
        heights.append(picture.height);
    return heights;
}

} // namespace

class ItemPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesPixelsInNetworkByteOrder();
    void premultipliesWhereTheHostTakesThemSo();
    void offersPlasmaOnlyTheDesktopsScale();
    void paintsAtOneTwoAndThree();
    void roundsAFractionalScaleToWhole();
    void neverPaintsDenserThanThree();
    void staysSmallForEveryHostAtEveryScale();
    void offersAtLeastOnePictureWhateverTheContent();
    void offersMateTheHeightsOfThePanelsThatAreThere();
    void offersSquaresToAPanelThatStands();
    void paintsLargerTextOnTallerPanels();
    void paintsSmallTextAsStronglyForAHostThatEnlargesIt();
    void keepsItsWidthWhileTheStateLasts();
    void paintsAgainOnlyWhenSomethingChanged();
};

void ItemPicturesTest::carriesPixelsInNetworkByteOrder()
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0x80112233);
    image.setPixel(1, 0, 0xff445566);
    const IconPixmap pixmap = toIconPixmap(image, false);
    QCOMPARE(pixmap.width, 2);
    QCOMPARE(pixmap.height, 1);
    QCOMPARE(pixmap.pixels.toHex(), "80112233ff445566"_ba);
}

void ItemPicturesTest::premultipliesWhereTheHostTakesThemSo()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0x80ffffff);
    QCOMPARE(toIconPixmap(image, true).pixels.toHex(), "80808080"_ba);

    const auto isPremultiplied = [](const IconPixmap &picture) {
        for (qsizetype i = 0; i < picture.pixels.size(); i += 4) {
            if (uchar(picture.pixels[i + 1]) > uchar(picture.pixels[i]))
                return false;
        }
        return true;
    };
    for (const IconPixmap &picture : paintedFor(u"swaybar"_s))
        QVERIFY(isPremultiplied(picture));
    QVERIFY(!isPremultiplied(paintedFor(u"xfce4-panel"_s).constFirst()));
}

void ItemPicturesTest::offersPlasmaOnlyTheDesktopsScale()
{
    QCOMPARE(heightsOf(paintedFor(u"plasmashell"_s, 1)), (QList { 22, 24, 32, 48 }));
    const auto doubled = heightsOf(paintedFor(u"plasmashell"_s, 2));
    QCOMPARE(doubled.first(3), (QList { 44, 48, 64 }));
}

void ItemPicturesTest::paintsAtOneTwoAndThree()
{
    for (const int scale : { 1, 2, 3 }) {
        const IconPixmap picture = paintedFor(u"xfce4-panel"_s, scale).constFirst();
        QCOMPARE(picture.height, 22 * scale);
        QCOMPARE(picture.width, 22 * scale);
        QCOMPARE(picture.pixels.size(), picture.width * picture.height * 4);
    }
}

void ItemPicturesTest::roundsAFractionalScaleToWhole()
{
    QCOMPARE(heightsOf(paintedFor(u"xfce4-panel"_s, 1.25)), QList { 22 });
    QCOMPARE(heightsOf(paintedFor(u"xfce4-panel"_s, 1.5)), QList { 44 });
    QCOMPARE(heightsOf(paintedFor(u"xfce4-panel"_s, 1.75)), QList { 44 });
}

void ItemPicturesTest::neverPaintsDenserThanThree()
{
    QCOMPARE(heightsOf(paintedFor(u"xfce4-panel"_s, 40)), QList { 66 });
    QCOMPARE(heightsOf(paintedFor(u"xfce4-panel"_s, 0)), QList { 22 });
}

void ItemPicturesTest::staysSmallForEveryHostAtEveryScale()
{
    const ItemContent widest = dischargingAt(100, u"12:34"_s);
    for (const HostProfile &profile : allHostProfiles()) {
        for (const qreal scale : { 1.0, 2.0, 3.0 }) {
            ItemPictures pictures;
            qsizetype bytes = 0;
            for (const IconPixmap &picture :
                 pictures.pictures(profile, widest, context, { .desktopScale = scale }))
                bytes += picture.pixels.size();
            QVERIFY2(bytes < 62 * 1024, profile.name.data());
        }
    }
}

void ItemPicturesTest::offersAtLeastOnePictureWhateverTheContent()
{
    ItemContent endless;
    endless.charge = QString(2000, u'8');
    for (const HostProfile &profile : allHostProfiles()) {
        QVERIFY(!paintedFor(profile.name, 1, {}).isEmpty());
        QCOMPARE(paintedFor(profile.name, 3, endless).isEmpty(), false);
    }
}

void ItemPicturesTest::offersMateTheHeightsOfThePanelsThatAreThere()
{
    const HostProfile &mate = profileFor({ .name = u"notification-ar"_s });
    for (const int height : { 24, 31, 34, 36, 44, 48 }) {
        ItemPictures pictures;
        const auto heights = heightsOf(
            pictures.pictures(mate, usual, context, { .panelHeights = { height, 200 } }));
        QCOMPARE(heights.constFirst(), height);
        QCOMPARE(heights.count(height), 1);
        QVERIFY(!heights.contains(200));
    }
}

void ItemPicturesTest::offersSquaresToAPanelThatStands()
{
    ItemPictures pictures;
    for (const HostProcess &host : { HostProcess { .name = u"notification-ar"_s },
                                     HostProcess { .name = u"xapp-sn-watcher"_s } }) {
        const HostProfile &profile = profileFor(host, { u"X-Cinnamon"_s });
        const IconPixmapList lying = pictures.pictures(profile, usual, context, {});
        QVERIFY(lying.constFirst().width > lying.constFirst().height);
        const IconPixmapList standing
            = pictures.pictures(profile, usual, context, { .isPanelStanding = true });
        for (const IconPixmap &picture : standing)
            QCOMPARE(picture.width, picture.height);
    }
}

void ItemPicturesTest::paintsLargerTextOnTallerPanels()
{
    const HostProfile &mate = profileFor({ .name = u"notification-ar"_s });
    int widthBefore = 0;
    for (const int height : { 24, 30, 36, 44, 48 }) {
        ItemPictures pictures;
        const IconPixmap picture
            = pictures.pictures(mate, usual, context, { .panelHeights = { height } }).constFirst();
        QVERIFY(picture.width > widthBefore);
        widthBefore = picture.width;
    }
}

void ItemPicturesTest::paintsSmallTextAsStronglyForAHostThatEnlargesIt()
{
    const auto picture
        = [](qreal scale) { return paintedFor(u"notification-ar"_s, scale).constFirst().pixels; };
    QCOMPARE(picture(2), picture(1));
}

void ItemPicturesTest::keepsItsWidthWhileTheStateLasts()
{
    for (const QString &process : { u"notification-ar"_s, u"waybar"_s }) {
        ItemPictures pictures;
        const HostProfile &profile = profileFor({ .name = process });
        const auto widthOf = [&](const ItemContent &content) {
            return pictures.pictures(profile, content, context, {}).constFirst().width;
        };
        const int atFirst = widthOf(dischargingAt(100, u"10:00"_s));
        QCOMPARE(widthOf(dischargingAt(99, u"10:00"_s)), atFirst);
        QCOMPARE(widthOf(dischargingAt(100, u"9:59"_s)), atFirst);
        ItemContent charging = dischargingAt(99, u"9:59"_s);
        charging.status = BatteryChargingStatus::charging;
        QVERIFY(widthOf(charging) < atFirst);
    }
}

void ItemPicturesTest::paintsAgainOnlyWhenSomethingChanged()
{
    ItemPictures pictures;
    const HostProfile &profile = profileFor({ .name = u"xfce4-panel"_s });
    const auto paint = [&](const ItemContent &content, const ViewContext &colors, qreal scale) {
        return pictures.pictures(profile, content, colors, { .desktopScale = scale });
    };
    const IconPixmapList first = paint(usual, context, 1);
    QVERIFY(paint(usual, context, 1).constFirst().pixels.isSharedWith(first.constFirst().pixels));
    QVERIFY(paint(dischargingAt(36, u"4:29"_s), context, 1) != first);
    ViewContext dark = context;
    dark.text = Qt::black;
    QVERIFY(paint(usual, dark, 1) != first);
    QVERIFY(paint(usual, context, 2) != first);
    QCOMPARE(paint(usual, context, 1), first);
}

FERRIN_TEST(QGuiApplication, ItemPicturesTest)
#include "test_itempictures.moc"
