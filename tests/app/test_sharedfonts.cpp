// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/sharedfonts.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

constexpr auto eachFont = {
    &SharedFonts::heavy13,   &SharedFonts::bold14,   &SharedFonts::regular12,
    &SharedFonts::regular10, &SharedFonts::regular8, &SharedFonts::regular13,
};

} // namespace

class TestSharedFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void haveTheirSizesAndWeights();
    void areOfTheInterfaceFont();
    void leaveTheFamilyToTheSystemWithoutOne();
};

void TestSharedFonts::haveTheirSizesAndWeights()
{
    const SharedFonts fonts = SharedFonts::ofFamily(u"Any Family"_s);
    QList<std::pair<int, int>> sizesAndWeights;
    for (const auto font : eachFont)
        sizesAndWeights.append({ (fonts.*font).pixelSize(), (fonts.*font).weight() });
    const QList<std::pair<int, int>> expected { { 13, 800 }, { 14, 700 }, { 12, 400 },
                                                { 10, 400 }, { 8, 400 },  { 13, 400 } };
    QCOMPARE(sizesAndWeights, expected);
}

void TestSharedFonts::areOfTheInterfaceFont()
{
    const SharedFonts fonts = SharedFonts::ofFamily(u"Any Family"_s);
    for (const auto font : eachFont) {
        QCOMPARE((fonts.*font).family(), u"Any Family"_s);
        QVERIFY(!(fonts.*font).italic());
    }
}

void TestSharedFonts::leaveTheFamilyToTheSystemWithoutOne()
{
    const SharedFonts fonts = SharedFonts::ofFamily({});
    for (const auto font : eachFont)
        QCOMPARE((fonts.*font).family(), QFont().family());
}

QTEST_MAIN(TestSharedFonts)
#include "test_sharedfonts.moc"
