// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/fontname.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <optional>

using namespace ferrin;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::optional<double>)

class FontNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheFamilyOfAPangoName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("family");
        QTest::newRow("family and size") << u"Cantarell 11"_s << u"Cantarell"_s;
        QTest::newRow("several words") << u"DejaVu Sans Mono 10.5"_s << u"DejaVu Sans Mono"_s;
        QTest::newRow("pixels") << u"Sans 15px"_s << u"Sans"_s;
        QTest::newRow("a style") << u"Noto Sans Bold 10"_s << u"Noto Sans"_s;
        QTest::newRow("two styles") << u"Ubuntu Semi-Bold Italic 11"_s << u"Ubuntu"_s;
        QTest::newRow("no size") << u"Inter"_s << u"Inter"_s;
        QTest::newRow("a comma before the size") << u"Source Sans 3, 10"_s << u"Source Sans 3"_s;
        QTest::newRow("a comma keeps a style") << u"Arial Black, 10"_s << u"Arial Black"_s;
        QTest::newRow("a list") << u"Cantarell,Sans Bold 10"_s << u"Cantarell"_s;
        QTest::newRow("a family that is a style's word") << u"Medium 10"_s << u"Medium"_s;
        QTest::newRow("blanks") << u"  Cantarell  11 "_s << u"Cantarell"_s;
        QTest::newRow("empty") << u""_s << u""_s;
        QTest::newRow("a size alone") << u" 11"_s << u"11"_s;
    }

    void givesTheFamilyOfAPangoName()
    {
        QFETCH(QString, name);
        QFETCH(QString, family);
        QCOMPARE(familyOfPangoName(name), family);
    }

    void givesTheSizeOfAPangoName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<std::optional<double>>("points");
        const auto row = [](const char *what, const QString &name, std::optional<double> points) {
            QTest::newRow(what) << name << points;
        };
        row("family and size", u"Cantarell 11"_s, 11);
        row("a fraction", u"DejaVu Sans Mono 10.5"_s, 10.5);
        row("pixels", u"Sans 16px"_s, 12);
        row("a comma before the size", u"Source Sans 3, 10"_s, 10);
        row("no size", u"Inter"_s, std::nullopt);
        row("a figure in the family's word", u"Inter4"_s, std::nullopt);
        row("nothing that can be read", u"Sans 0"_s, std::nullopt);
        row("nothing that fits a screen", u"Sans 1000"_s, std::nullopt);
        row("two points", u"Sans 1.1.1"_s, std::nullopt);
        row("empty", u""_s, std::nullopt);
    }

    void givesTheSizeOfAPangoName()
    {
        QFETCH(QString, name);
        QFETCH(std::optional<double>, points);
        QCOMPARE(pointSizeOfPangoName(name), points);
    }

    void givesTheSizeOfAQtName()
    {
        QCOMPARE(pointSizeOfQtName(u"Noto Sans,12.5,-1,5,50,0,0,0,0,0"_s), std::optional(12.5));
        QCOMPARE(pointSizeOfQtName(u"Noto Sans,-1,16,5,50,0,0,0,0,0"_s), std::optional(12.0));
        QCOMPARE(pointSizeOfQtName(u"Noto Sans,0,-1,5"_s), std::nullopt);
        QCOMPARE(pointSizeOfQtName(u"Hack"_s), std::nullopt);
        QCOMPARE(pointSizeOfQtName(u"Hack,nan,inf"_s), std::nullopt);
    }

    void givesTheFamilyOfAQtName()
    {
        QCOMPARE(familyOfQtName(u"Noto Sans,10,-1,5,50,0,0,0,0,0"_s), u"Noto Sans"_s);
        QCOMPARE(familyOfQtName(u"Hack"_s), u"Hack"_s);
        QCOMPARE(familyOfQtName(u""_s), u""_s);
    }
};

FERRIN_TEST(void, FontNameTest)
#include "test_fontname.moc"
