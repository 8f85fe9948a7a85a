// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/fontname.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

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

    void givesTheFamilyOfAQtName()
    {
        QCOMPARE(familyOfQtName(u"Noto Sans,10,-1,5,50,0,0,0,0,0"_s), u"Noto Sans"_s);
        QCOMPARE(familyOfQtName(u"Hack"_s), u"Hack"_s);
        QCOMPARE(familyOfQtName(u""_s), u""_s);
    }
};

FERRIN_TEST(void, FontNameTest)
#include "test_fontname.moc"
