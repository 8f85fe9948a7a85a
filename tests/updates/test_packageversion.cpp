// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/testmain.h"
#include "updates/packageversion.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

constexpr int unordered = 7;

int order(const QString &left, const QString &right, VersionOrder order)
{
    const auto result = compareVersions(left, right, order);
    if (is_lt(result))
        return -1;
    if (is_gt(result))
        return 1;
    return is_eq(result) ? 0 : unordered;
}

} // namespace

class PackageVersionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each row was asked of dpkg --compare-versions or of rpm's own comparison.
    void comparesAsThePackageSystemDoes_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<int>("debian");
        QTest::addColumn<int>("rpm");
        const auto row = [](const char *left, const char *right, int debian, int rpm) {
            QTest::addRow("%s %s", left, right)
                << QString::fromLatin1(left) << QString::fromLatin1(right) << debian << rpm;
        };
        row("1.0", "1.0", 0, 0);
        row("1.0", "1.1", -1, -1);
        row("1.9", "1.10", -1, -1);
        row("1.09", "1.9", 0, 0);
        row("1.0-1", "1.0-2", -1, -1);
        row("1.0-9", "1.0-10", -1, -1);
        row("1.1-1", "1.0-2", 1, 1);
        row("1:0.9", "2.0", 1, 1);
        row("0:1.0", "1.0", 0, 0);
        row("1.0~rc1", "1.0", -1, -1);
        row("1.0~rc1", "1.0~rc2", -1, -1);
        row("1.0~~", "1.0~", -1, -1);
        row("1.0-1~bpo12+1", "1.0-1", -1, -1);
        row("1.0-1", "1.0-1+deb12u1", -1, -1);
        row("1.0", "1.0.1", -1, -1);
        row("1.0", "1.0a", -1, -1);
        row("1.2-3-4", "1.2-3-5", -1, -1);
        row("99999999999999999999999", "100000000000000000000000", -1, -1);
        // Letters come before all else in Debian, and before numbers in rpm.
        row("1.0a", "1.0+", -1, 1);
        row("1.a", "1.1", 1, -1);
        row("1.0", "1.0^20260101", -1, -1);
        row("1.0^20260101", "1.0.1", 1, -1);
        row("1_0", "1.0", 1, 0);
    }

    void comparesAsThePackageSystemDoes()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(int, debian);
        QFETCH(int, rpm);
        QCOMPARE(order(left, right, VersionOrder::debian), debian);
        QCOMPARE(order(right, left, VersionOrder::debian), -debian);
        QCOMPARE(order(left, right, VersionOrder::rpm), rpm);
        QCOMPARE(order(right, left, VersionOrder::rpm), -rpm);
        QCOMPARE(order(left, right, VersionOrder::unknown), debian == rpm ? debian : unordered);
    }

    void knowsTheUpstreamPart()
    {
        QCOMPARE(upstreamVersion(u"1.3.0"_s), u"1.3.0"_s);
        QCOMPARE(upstreamVersion(u"2:1.3.0-1~bpo12+1"_s), u"1.3.0"_s);
        QCOMPARE(upstreamVersion(u"1.3-rc1-2"_s), u"1.3-rc1"_s);
        QCOMPARE(upstreamVersion(QString()), QString());
    }

    void takesWhateverItIsGiven()
    {
        for (const QString &text :
             { u""_s, u":"_s, u"-"_s, u"a:b:c"_s, u"~"_s, u"\u0661.\u00e9"_s })
            QCOMPARE(order(text, text, VersionOrder::debian), 0);
    }
};

FERRIN_TEST(QCoreApplication, PackageVersionTest)
#include "test_packageversion.moc"
