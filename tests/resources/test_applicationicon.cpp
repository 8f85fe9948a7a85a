// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array sizes { 16, 22, 24, 32, 48, 64, 96, 128, 256, 512 };

QString themePath(const QString &folder, const QString &file)
{
    return u"%1/../resources/icons/hicolor/%2/apps/%3"_s.arg(QStringLiteral(FERRIN_TEST_DATA),
                                                             folder, file);
}

QImage picture(int size)
{
    const QString folder = u"%1x%1"_s.arg(size);
    return QImage(themePath(folder, u"org.ferrin.Ferrin.png"_s))
        .convertToFormat(QImage::Format_ARGB32);
}

QImage rendered(const QString &path, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(path);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

bool isGreen(const QColor &color)
{
    return color.alpha() > 200 && color.green() > color.red() + 30
        && color.green() > color.blue() + 10;
}

bool isNearWhite(const QColor &color)
{
    return color.alpha() > 200 && std::min({ color.red(), color.green(), color.blue() }) > 215;
}

/// The part of the picture's pixels for which something holds.
template <typename Predicate>
double share(const QImage &image, Predicate holds)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += holds(image.pixelColor(x, y)) ? 1 : 0;
    }
    return double(count) / (image.width() * image.height());
}

/// The mean difference of a channel, of 255.
double difference(const QImage &left, const QImage &right)
{
    qint64 sum = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            sum += qAbs(qAlpha(a) - qAlpha(b)) + qAbs(qRed(a) - qRed(b))
                + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
        }
    }
    return double(sum) / (4.0 * left.width() * left.height());
}

} // namespace

class ApplicationIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isThereInEverySize_data() { everySize(); }
    void isThereInEverySize()
    {
        QFETCH(int, size);
        const QImage image = picture(size);
        QCOMPARE(image.size(), QSize(size, size));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QVERIFY(share(image, isGreen) > 0.4);
        QVERIFY(share(image, isNearWhite) > 0.08);
    }

    void isAHalfEmptyBatteryAtEverySize_data() { everySize(); }
    void isAHalfEmptyBatteryAtEverySize()
    {
        QFETCH(int, size);
        const QImage image = picture(size);
        const auto atHeight = [&](double height) {
            return image.pixelColor(size / 2, static_cast<int>(height * size));
        };
        QVERIFY(isGreen(atHeight(0.14)));
        QVERIFY(isNearWhite(atHeight(0.245)));
        QVERIFY(atHeight(0.4).lightness() < 100);
        QVERIFY(isNearWhite(atHeight(0.65)));
        QVERIFY(isGreen(atHeight(0.88)));
    }

    void looksTheSameLargeAndScalable_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : { 64, 96, 128, 256, 512 })
            QTest::addRow("%d", size) << size;
    }
    void looksTheSameLargeAndScalable()
    {
        QFETCH(int, size);
        const QString scalable = themePath(u"scalable"_s, u"org.ferrin.Ferrin.svg"_s);
        QVERIFY(difference(picture(size), rendered(scalable, size)) < 2.5);
    }

    void isCompiledIn()
    {
        QFile compiled(u":/icons/org.ferrin.Ferrin.svg"_s);
        QFile installed(themePath(u"scalable"_s, u"org.ferrin.Ferrin.svg"_s));
        QVERIFY(compiled.open(QIODevice::ReadOnly));
        QVERIFY(installed.open(QIODevice::ReadOnly));
        QCOMPARE(compiled.readAll(), installed.readAll());
    }

    void hasASymbolicFormOfOneColor()
    {
        const QImage image
            = rendered(themePath(u"symbolic"_s, u"org.ferrin.Ferrin-symbolic.svg"_s), 16);
        const auto inked = [](const QColor &color) { return color.alpha() > 0; };
        const auto tinted
            = [](const QColor &color) { return color.alpha() > 0 && color.value() > 0; };
        QVERIFY(share(image, inked) > 0.2);
        QVERIFY(share(image, inked) < 0.6);
        QCOMPARE(share(image, tinted), 0.0);
    }

private:
    static void everySize()
    {
        QTest::addColumn<int>("size");
        for (const int size : sizes)
            QTest::addRow("%d", size) << size;
    }
};

QTEST_MAIN(ApplicationIconTest)
#include "test_applicationicon.moc"
