// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "menubar/templateimageview.h"
#include "state/icon.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class TemplateImageViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void artworkStandsForEveryName_data()
    {
        QTest::addColumn<QString>("name");
        for (const Icon icon : allIcons()) {
            if (!isGlyph(icon))
                QTest::newRow(qPrintable(rawValue(icon))) << rawValue(icon);
        }
        for (const QString &name :
             { u"xmark"_s, u"vertBatt1Border"_s, u"horzBatt1Border"_s, u"vertBatt2Border.100"_s,
               u"vertBatt2Border.125"_s, u"horzBatt2Border.100"_s, u"horzBatt2Border.125"_s,
               u"horzBatt2Border.150"_s, u"customBoltMask"_s, u"customBolt"_s })
            QTest::newRow(qPrintable(name)) << name;
    }

    void artworkStandsForEveryName()
    {
        QFETCH(QString, name);
        const TemplateImageView view { .name = name };
        QVERIFY(!view.idealSize(blackOnClear).isEmpty());
        QVERIFY(!inkedRect(painted(view, { 30, 30 })).isEmpty());
    }

    void aNameWithoutArtworkPaintsNothing()
    {
        const TemplateImageView view { .name = u"no.such.symbol"_s, .height = 16.5 };
        QVERIFY(view.idealSize(blackOnClear).isEmpty());
        QVERIFY(inkedRect(painted(view, { 30, 30 })).isNull());
    }

    void keepsItsShapeAtAnyHeight()
    {
        const TemplateImageView natural { .name = u"bolt"_s };
        const TemplateImageView twice { .name = u"bolt"_s, .height = 33 };
        const QSizeF size = natural.idealSize(blackOnClear);
        QCOMPARE(size.height(), 16.5);
        QCOMPARE(twice.idealSize(blackOnClear), size * 2);
    }

    void isHeavierWhereTheWindowsWantItSemibold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("stroke");
        // Of ten pixels to a unit of the artwork.
        QTest::newRow("clock") << u"clock"_s << 15;
        QTest::newRow("question mark") << u"questionmark.circle"_s << 15;
        QTest::newRow("bubble") << u"text.bubble"_s << 15;
        QTest::newRow("check mark") << u"checkmark.circle"_s << 20;
        QTest::newRow("turning arrow") << u"arrow.clockwise"_s << 20;
    }

    void isHeavierWhereTheWindowsWantItSemibold()
    {
        QFETCH(QString, name);
        QFETCH(int, stroke);
        const TemplateImageView view { .name = name, .height = 180 };
        const QImage image = painted(view, { 220, 220 }, 1);
        int x = inkedRect(image).left() + 2;
        const int y = image.height() / 2;
        while (opacityAt(image, x, y) < 0.5)
            ++x;
        const int start = x;
        while (opacityAt(image, x, y) >= 0.5)
            ++x;
        QVERIFY2(qAbs(x - start - stroke) <= 3, qPrintable(QString::number(x - start)));
    }

    void isTintedInItsColorAndOpacity()
    {
        const TemplateImageView view { .name = u"arrow.up.square.fill"_s,
                                       .color = QColor(0, 0, 255),
                                       .opacity = 0.5 };
        const QColor inside = painted(view, { 22, 22 }, 2).pixelColor(14, 22);
        QCOMPARE(inside.blue(), 255);
        QCOMPARE(inside.red(), 0);
        QVERIFY(near(inside.alphaF(), 0.5, 0.01));
    }

    void takesTheTextColorByDefault()
    {
        ViewContext white = blackOnClear;
        white.text = Qt::white;
        const TemplateImageView view { .name = u"arrow.up.square.fill"_s };
        QCOMPARE(painted(view, { 22, 22 }, 2, white).pixelColor(14, 22), QColor(Qt::white));
    }

    void isSharpInAnEvenBarAtEveryScale_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("1x") << 1.0;
        QTest::newRow("2x") << 2.0;
        QTest::newRow("3x") << 3.0;
    }

    void isSharpInAnEvenBarAtEveryScale()
    {
        QFETCH(qreal, scale);
        const TemplateImageView view { .name = u"arrow.up.square.fill"_s, .height = 16.5 };
        const QImage image = painted(view, { 22, 22 }, scale);
        const QRect ink = inkedRect(image);
        const int middle = image.width() / 2;
        QCOMPARE(opacityAt(image, middle, ink.top()), 1.0);
        QCOMPARE(opacityAt(image, middle, ink.bottom()), 1.0);
        QCOMPARE(opacityAt(image, ink.left(), image.height() / 2), 1.0);
        QCOMPARE(opacityAt(image, ink.right(), image.height() / 2), 1.0);
    }

    void looksTheSameWhereverItStands()
    {
        const TemplateImageView view { .name = u"bolt.circle"_s, .height = 16.5 };
        const QImage middle = painted(view, { 22, 22 });
        const QImage moved = painted(view, { 22.4, 22.4 });
        QCOMPARE(middle.copy(inkedRect(middle)), moved.copy(inkedRect(moved)));
    }
};

FERRIN_TEST(QGuiApplication, TemplateImageViewTest)
#include "test_templateimageview.moc"
