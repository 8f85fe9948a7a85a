// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

using namespace Qt::StringLiterals;

class MockupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void previewsStandOnABarOfTheMenuBarsHeight_data()
    {
        QTest::addColumn<QString>("appearance");
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << u"light"_s << false;
        QTest::newRow("dark") << u"dark"_s << true;
    }
    void previewsStandOnABarOfTheMenuBarsHeight()
    {
        QFETCH(QString, appearance);
        QFETCH(bool, isDark);
        QSvgRenderer renderer(u":/mockup/mockupMenuBarPreview.%1.svg"_s.arg(appearance));
        QCOMPARE(renderer.defaultSize(), QSize(180, 22));
        QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        // Free of signs where the item goes, with signs beside it.
        const QColor ground = image.pixelColor(50, 11);
        QCOMPARE(ground.alpha(), 255);
        QCOMPARE(ground.lightness() < 128, isDark);
        for (int x = 4; x < 92; ++x)
            QCOMPARE(image.pixelColor(x, 11), ground);
        int standing = 0;
        for (int x = 92; x < 176; ++x) {
            for (int y = 4; y < 18; ++y) {
                const int away = image.pixelColor(x, y).lightness() - ground.lightness();
                standing += qAbs(away) > 60 ? 1 : 0;
            }
        }
        QVERIFY(standing > 90);
    }
};

QTEST_MAIN(MockupTest)
#include "test_mockup.moc"
