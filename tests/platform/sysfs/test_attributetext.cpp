// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/attributetext.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <random>

using namespace ferrin;
using namespace Qt::StringLiterals;

class AttributeTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsNumbersOfAnySign();
    void takesNothingButAWholeNumber();
    void wantsTheVeryUnit();
    void findsTheWordInBrackets();
    void trimsWhiteSpaceAndZeroBytes();
    void cutsNamesWhereTheyStopBeingText();
    void keepsNamesOfOtherAlphabets();
    void dropsPlaceholders();
    void hasNoSerialOfZeros();
    void survivesAnyBytes();
};

void AttributeTextTest::readsNumbersOfAnySign()
{
    QCOMPARE(numberOf("0"), 0);
    QCOMPARE(numberOf("-8597000"), -8'597'000);
    QCOMPARE(numberOf("9223372036854775807"), std::numeric_limits<qint64>::max());
    QCOMPARE(numberOf("-9223372036854775808"), std::numeric_limits<qint64>::min());
}

void AttributeTextTest::takesNothingButAWholeNumber()
{
    for (const char *text :
         { "", "-", "+1", " 1", "1 ", "1.0", "1e3", "0x1", "one", "1\xff", "9223372036854775808" })
        QVERIFY2(!numberOf(text), text);
}

void AttributeTextTest::wantsTheVeryUnit()
{
    QCOMPARE(numberWithUnit("20000mV", "mV"), 20'000);
    QCOMPARE(numberWithUnit("5000 mA", "mA"), 5'000);
    for (const char *text : { "20000", "20000mA", "20V", "mV", "" })
        QVERIFY2(!numberWithUnit(text, "mV"), text);
}

void AttributeTextTest::findsTheWordInBrackets()
{
    QVERIFY(chosenWord("C [PD] PD_PPS") == "PD");
    QVERIFY(chosenWord("[C]") == "C");
    for (const char *text : { "", "PD", "[", "]", "][", "[PD" })
        QVERIFY2(chosenWord(text).empty(), text);
}

void AttributeTextTest::trimsWhiteSpaceAndZeroBytes()
{
    QVERIFY(trimmed(" \t a b \r\n") == "a b");
    QVERIFY(trimmed(std::string_view("model\0", 6)) == "model");
    QVERIFY(trimmed(" \n").empty());
    QVERIFY(trimmed("").empty());
}

void AttributeTextTest::cutsNamesWhereTheyStopBeingText()
{
    QCOMPARE(nameOf("LNV-45N1\xff\xff"), u"LNV-45N1"_s);
    QCOMPARE(nameOf("SWD\x01\x02"), u"SWD"_s);
    QCOMPARE(nameOf(std::string_view("abc\0def", 7)), u"abc"_s);
    QCOMPARE(nameOf("a  \t b"), u"a b"_s);
}

void AttributeTextTest::keepsNamesOfOtherAlphabets()
{
    QCOMPARE(nameOf("联想"), u"联想"_s);
    QCOMPARE(nameOf("Électro"), u"Électro"_s);
}

void AttributeTextTest::dropsPlaceholders()
{
    for (const char *text :
         { "", "Primary", "PRIMARY", "standard", "BAT", "BAT0", "1", "<BATT>", "<unkn>", "Notebook",
           "OEM", "To be filled by O.E.M.", "---", "\xff" })
        QVERIFY2(nameOf(text).isEmpty(), text);
}

void AttributeTextTest::hasNoSerialOfZeros()
{
    QCOMPARE(serialOf("00A1"), u"00A1"_s);
    QCOMPARE(serialOf(" 4711 "), u"4711"_s);
    for (const char *text : { "", "0", "0000", "00000000", "N/A", "Unknown" })
        QVERIFY2(serialOf(text).isEmpty(), text);
}

void AttributeTextTest::survivesAnyBytes()
{
    std::mt19937 random(11);
    for (int round = 0; round < 10'000; ++round) {
        std::string bytes(random() % 24, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random());
        const QString name = nameOf(bytes);
        QVERIFY(!name.contains(QChar::ReplacementCharacter));
        QCOMPARE(name, name.trimmed());
        QVERIFY(trimmed(bytes).size() <= bytes.size());
        QVERIFY(chosenWord(bytes).size() <= bytes.size());
        static_cast<void>(numberOf(bytes));
        static_cast<void>(serialOf(bytes));
    }
}

FERRIN_TEST(QCoreApplication, AttributeTextTest)
#include "test_attributetext.moc"
