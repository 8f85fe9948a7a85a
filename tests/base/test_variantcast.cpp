// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/variantcast.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace ferrin;
using namespace Qt::StringLiterals;

class VariantCastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAWholeNumberHoweverItIsHeld_data();
    void readsAWholeNumberHoweverItIsHeld();
    void findsNoIntegerIn_data();
    void findsNoIntegerIn();
    void readsEveryNumberAsAFloat_data();
    void readsEveryNumberAsAFloat();
    void findsNoFloatIn_data();
    void findsNoFloatIn();
    void keepsANumberThatIsNotFinite();
    void readsABoolFromABoolAlone();
    void readsATextFromATextAlone();
    void readsDataFromDataAlone();
    void readsADictionaryFromADictionaryAlone();
};

void VariantCastTest::readsAWholeNumberHoweverItIsHeld_data()
{
    QTest::addColumn<QVariant>("held");
    QTest::addColumn<qint64>("number");
    QTest::newRow("int") << QVariant(-7) << qint64(-7);
    QTest::newRow("unsigned int") << QVariant(4294967295U) << qint64(4294967295);
    QTest::newRow("least") << QVariant(std::numeric_limits<qint64>::min())
                           << std::numeric_limits<qint64>::min();
    QTest::newRow("greatest unsigned that fits")
        << QVariant(quint64(9223372036854775807U)) << std::numeric_limits<qint64>::max();
    QTest::newRow("long") << QVariant::fromValue(-8L) << qint64(-8);
    QTest::newRow("unsigned long") << QVariant::fromValue(8UL) << qint64(8);
    QTest::newRow("short") << QVariant::fromValue(short(-9)) << qint64(-9);
    QTest::newRow("unsigned short") << QVariant::fromValue(ushort(9)) << qint64(9);
    QTest::newRow("double without fraction") << QVariant(-12.0) << qint64(-12);
    QTest::newRow("float without fraction") << QVariant(12.0F) << qint64(12);
    QTest::newRow("least double") << QVariant(-0x1p63) << std::numeric_limits<qint64>::min();
}

void VariantCastTest::readsAWholeNumberHoweverItIsHeld()
{
    QFETCH(const QVariant, held);
    QFETCH(const qint64, number);
    QCOMPARE(variantCast<qint64>(held), number);
}

void VariantCastTest::findsNoIntegerIn_data()
{
    QTest::addColumn<QVariant>("held");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("text") << QVariant(u"12"_s);
    QTest::newRow("data") << QVariant(QByteArray("12"));
    QTest::newRow("dictionary") << QVariant(QVariantMap());
    QTest::newRow("list") << QVariant(QVariantList { 12 });
    QTest::newRow("fraction") << QVariant(12.5);
    QTest::newRow("not a number") << QVariant(std::nan(""));
    QTest::newRow("infinity") << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("double beyond 64 bits") << QVariant(0x1p63);
    QTest::newRow("double below 64 bits") << QVariant(-0x1.0000000000001p63);
    QTest::newRow("unsigned beyond 63 bits") << QVariant(quint64(9223372036854775808U));
}

void VariantCastTest::findsNoIntegerIn()
{
    QFETCH(const QVariant, held);
    QCOMPARE(variantCast<qint64>(held), std::nullopt);
}

void VariantCastTest::readsEveryNumberAsAFloat_data()
{
    QTest::addColumn<QVariant>("held");
    QTest::addColumn<float>("number");
    QTest::newRow("int") << QVariant(-7) << -7.0F;
    QTest::newRow("unsigned int") << QVariant(7U) << 7.0F;
    QTest::newRow("64 bits") << QVariant(qint64(20000)) << 20000.0F;
    QTest::newRow("float") << QVariant(0.1F) << 0.1F;
    QTest::newRow("double is rounded") << QVariant(0.1) << 0.1F;
    QTest::newRow("greatest") << QVariant(double(std::numeric_limits<float>::max()))
                              << std::numeric_limits<float>::max();
}

void VariantCastTest::readsEveryNumberAsAFloat()
{
    QFETCH(const QVariant, held);
    QFETCH(const float, number);
    QVERIFY(variantCast<float>(held) == number);
}

void VariantCastTest::findsNoFloatIn_data()
{
    QTest::addColumn<QVariant>("held");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("text") << QVariant(u"1.5"_s);
    QTest::newRow("dictionary") << QVariant(QVariantMap());
    QTest::newRow("beyond single precision") << QVariant(1e39);
}

void VariantCastTest::findsNoFloatIn()
{
    QFETCH(const QVariant, held);
    QCOMPARE(variantCast<float>(held), std::nullopt);
}

void VariantCastTest::keepsANumberThatIsNotFinite()
{
    QCOMPARE(variantCast<float>(QVariant(std::numeric_limits<double>::infinity())),
             std::numeric_limits<float>::infinity());
    QVERIFY(std::isnan(variantCast<float>(QVariant(std::nan(""))).value()));
}

void VariantCastTest::readsABoolFromABoolAlone()
{
    QCOMPARE(variantCast<bool>(true), true);
    QCOMPARE(variantCast<bool>(false), false);
    QCOMPARE(variantCast<bool>(1), std::nullopt);
    QCOMPARE(variantCast<bool>(u"true"_s), std::nullopt);
    QCOMPARE(variantCast<bool>({}), std::nullopt);
}

void VariantCastTest::readsATextFromATextAlone()
{
    QCOMPARE(variantCast<QString>(u""_s), u""_s);
    QCOMPARE(variantCast<QString>(u"65W"_s), u"65W"_s);
    QCOMPARE(variantCast<QString>(65), std::nullopt);
    QCOMPARE(variantCast<QString>(QByteArray("65W")), std::nullopt);
    QCOMPARE(variantCast<QString>({}), std::nullopt);
}

void VariantCastTest::readsDataFromDataAlone()
{
    QCOMPARE(variantCast<QByteArray>(QByteArray("65W")), QByteArray("65W"));
    QCOMPARE(variantCast<QByteArray>(u"65W"_s), std::nullopt);
}

void VariantCastTest::readsADictionaryFromADictionaryAlone()
{
    const QVariantMap map { { u"Watts"_s, 65 } };
    QCOMPARE(variantCast<QVariantMap>(map), map);
    QCOMPARE(variantCast<QVariantMap>(QVariantMap()), QVariantMap());
    QCOMPARE(variantCast<QVariantMap>(QVariantList { 65 }), std::nullopt);
    QCOMPARE(variantCast<QVariantMap>({}), std::nullopt);
}

FERRIN_TEST(QCoreApplication, VariantCastTest)
#include "test_variantcast.moc"
