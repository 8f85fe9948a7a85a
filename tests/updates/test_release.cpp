// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/testfeed.h"
#include "updates/release.h"

#include <QJsonArray>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class TestRelease : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAFeed();
    void takesAFeedWithoutPackages();
    void refusesAFeedWithoutAnyOfItsParts_data();
    void refusesAFeedWithoutAnyOfItsParts();
    void refusesAFeedWithAPartOfTheWrongKind_data();
    void refusesAFeedWithAPartOfTheWrongKind();
    void refusesAPackageNameThatIsNotPlain_data();
    void refusesAPackageNameThatIsNotPlain();
    void refusesAPackageThatIsNotDescribed_data();
    void refusesAPackageThatIsNotDescribed();
    void refusesWhatIsNoJson();
    void writesAReleaseAndReadsItAgain();
    void ordersVersionsByTheirNumbers();
    void takesNothingButNumbersForAVersion();

private:
    const Package m_package = packageOf("package", u"ferrin_1.3.0_amd64.deb"_s);

    [[nodiscard]] static QByteArray text(const QJsonObject &json)
    {
        return QJsonDocument(json).toJson();
    }
    [[nodiscard]] QByteArray feedWithPackage(const QString &key, const QJsonValue &value) const
    {
        QJsonObject feed = goodFeed(m_package);
        QJsonObject package = feed.value("packages"_L1)["amd64"_L1].toObject();
        package.insert(key, value);
        feed.insert(u"packages"_s, QJsonObject { { u"amd64"_s, package } });
        return text(feed);
    }
};

void TestRelease::readsAFeed()
{
    const auto feed = feedFromJson(text(goodFeed(m_package)));
    QVERIFY(feed);
    QCOMPARE(feed->issued, QDateTime(QDate(2026, 4, 30), QTime(10, 0), Qt::UTC));
    QCOMPARE(feed->expires, QDateTime(QDate(2026, 7, 29), QTime(10, 0), Qt::UTC));
    QCOMPARE(feed->version, u"1.3.0"_s);
    QCOMPARE(feed->date, QDate(2026, 4, 30));
    QCOMPARE(feed->notes, u"- **Quieter**, and _prettier_.\n"_s);
    QCOMPARE(feed->packages.size(), 1);
    QCOMPARE(feed->packages.value(u"amd64"_s), m_package);
}

void TestRelease::takesAFeedWithoutPackages()
{
    QJsonObject json = goodFeed(m_package);
    json.insert(u"packages"_s, QJsonObject());
    const auto feed = feedFromJson(text(json));
    QVERIFY(feed);
    QVERIFY(feed->packages.isEmpty());
}

void TestRelease::refusesAFeedWithoutAnyOfItsParts_data()
{
    QTest::addColumn<QString>("key");
    const QStringList keys = goodFeed(m_package).keys();
    for (const QString &key : keys)
        QTest::newRow(qPrintable(key)) << key;
}

void TestRelease::refusesAFeedWithoutAnyOfItsParts()
{
    QFETCH(QString, key);
    QJsonObject json = goodFeed(m_package);
    json.remove(key);
    QVERIFY(!feedFromJson(text(json)));
}

void TestRelease::refusesAFeedWithAPartOfTheWrongKind_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("another format") << u"format"_s << QJsonValue(2);
    QTest::newRow("another product") << u"product"_s << QJsonValue(u"org.example.Other"_s);
    QTest::newRow("a time without zone") << u"issued"_s << QJsonValue(u"2026-04-30T10:00:00"_s);
    QTest::newRow("no such day") << u"expires"_s << QJsonValue(u"2026-02-30T10:00:00Z"_s);
    QTest::newRow("a time as number") << u"expires"_s << QJsonValue(1777543200);
    QTest::newRow("a version as number") << u"version"_s << QJsonValue(1.3);
    QTest::newRow("a version with words") << u"version"_s << QJsonValue(u"1.3-beta"_s);
    QTest::newRow("a date as people say it") << u"date"_s << QJsonValue(u"30 April 2026"_s);
    QTest::newRow("notes as list") << u"notes"_s << QJsonValue(QJsonArray());
    QTest::newRow("packages as list") << u"packages"_s << QJsonValue(QJsonArray());
}

void TestRelease::refusesAFeedWithAPartOfTheWrongKind()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject json = goodFeed(m_package);
    json.insert(key, value);
    QVERIFY(!feedFromJson(text(json)));
}

void TestRelease::refusesAPackageNameThatIsNotPlain_data()
{
    QTest::addColumn<QString>("file");
    for (const char *const file :
         { "../ferrin.deb", "/tmp/ferrin.deb", "pool/ferrin.deb", "..", ".hidden.deb", "ferrin",
           "ferrin.deb.part", "", ".deb", "https://example.org/ferrin.deb", "ferrin.deb\n",
           "ferrin%2f..%2fx.deb", "a\\b.deb", "fe rrin.deb", "-ferrin.deb", "ferrin.deb?x.deb",
           "\xc3\xa9.deb" })
        QTest::newRow(file) << QString::fromUtf8(file);
    QTest::newRow("too long") << QString(200, u'a') + u".deb"_s;
    QTest::newRow("with a null") << u"a\0b.deb"_s;
}

void TestRelease::refusesAPackageNameThatIsNotPlain()
{
    QFETCH(QString, file);
    QVERIFY(!feedFromJson(feedWithPackage(u"file"_s, file)));
}

void TestRelease::refusesAPackageThatIsNotDescribed_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    const QString hash = QString::fromLatin1(m_package.sha256.toHex());
    QTest::newRow("no length") << u"length"_s << QJsonValue();
    QTest::newRow("empty") << u"length"_s << QJsonValue(0);
    QTest::newRow("less than empty") << u"length"_s << QJsonValue(-1);
    QTest::newRow("half a byte") << u"length"_s << QJsonValue(1.5);
    QTest::newRow("too long") << u"length"_s << QJsonValue(Package::maximumLength + 1);
    QTest::newRow("length as text") << u"length"_s << QJsonValue(u"7"_s);
    QTest::newRow("no hash") << u"sha256"_s << QJsonValue();
    QTest::newRow("short hash") << u"sha256"_s << QJsonValue(hash.chopped(2));
    QTest::newRow("long hash") << u"sha256"_s << QJsonValue(hash + u"00"_s);
    QTest::newRow("not a hash") << u"sha256"_s << QJsonValue(QString(64, u'x'));
    QTest::newRow("hash with a blank") << u"sha256"_s << QJsonValue(hash + u' ');
}

void TestRelease::refusesAPackageThatIsNotDescribed()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QVERIFY(!feedFromJson(feedWithPackage(key, value)));
}

void TestRelease::refusesWhatIsNoJson()
{
    for (const QByteArray &text : { ""_ba, "{"_ba, "[]"_ba, "null"_ba, "\xff\xfe"_ba })
        QVERIFY(!feedFromJson(text));
}

void TestRelease::writesAReleaseAndReadsItAgain()
{
    const Release release { u"1.3.0"_s, QDate(2026, 4, 30), u"Notes\n"_s, m_package };
    QCOMPARE(releaseFromJson(jsonFromRelease(release)), release);
    QVERIFY(!releaseFromJson({}));
}

void TestRelease::ordersVersionsByTheirNumbers()
{
    const QStringList rising {
        u"0"_s, u"0.9"_s, u"0.10"_s, u"1.2"_s, u"1.2.1"_s, u"1.10"_s, u"2"_s
    };
    for (qsizetype i = 1; i < rising.size(); ++i)
        QVERIFY(*versionNumber(rising.at(i - 1)) < *versionNumber(rising.at(i)));
    QCOMPARE(versionNumber(u"1.2"_s), versionNumber(u"1.2.0"_s));
}

void TestRelease::takesNothingButNumbersForAVersion()
{
    for (const QString &version : { u""_s, u"."_s, u"1."_s, u".1"_s, u"1..2"_s, u"v1"_s,
                                    u"1.2rc1"_s, u"-1"_s, u" 1"_s, u"1\n"_s, u"12345678901"_s })
        QVERIFY2(!versionNumber(version), qPrintable(version));
}

QTEST_GUILESS_MAIN(TestRelease)
#include "test_release.moc"
