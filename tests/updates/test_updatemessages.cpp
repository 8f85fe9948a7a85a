// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/testfeed.h"
#include "updates/updatemessages.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class TestUpdateMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesEveryTask();
    void carriesEveryAnswer();
    void takesALineEach();
    void understandsNothingElse();

private:
    const Package m_package = packageOf("package", u"ferrin_1.3.0_amd64.deb"_s);
    const QUrl m_feed { u"https://example.org/a%20b/feed?x=1%262"_s };
};

void TestUpdateMessages::carriesEveryTask()
{
    UpdateCheck check = checkOf(m_feed, newSigningKey());
    QCOMPARE(taskFromLine(lineFrom(UpdateTask(check))), UpdateTask(check));
    check.newestIssued = readingTime.addMSecs(7);
    QCOMPARE(taskFromLine(lineFrom(UpdateTask(check))), UpdateTask(check));
    const PackageRequest request { m_feed, m_package, u"/home/zoë/.cache/ferrin"_s };
    QCOMPARE(taskFromLine(lineFrom(UpdateTask(request))), UpdateTask(request));
}

void TestUpdateMessages::carriesEveryAnswer()
{
    const Release release { u"1.3.0"_s, QDate(2026, 4, 30), u"Line\nand \"line\"\n"_s, m_package };
    for (const UpdateAnswer &answer : QList<UpdateAnswer> {
             UpdateOffer { readingTime, release }, UpdateOffer { readingTime, std::nullopt },
             UpdateProgress { 1, Package::maximumLength }, DownloadedPackage { u"/a/b.deb"_s },
             UpdateTrouble { UpdateFailure::diskFull, u"no room\nat all"_s } })
        QCOMPARE(answerFromLine(lineFrom(answer)), answer);
}

void TestUpdateMessages::takesALineEach()
{
    const QByteArray line = lineFrom(UpdateTrouble { UpdateFailure::tooSlow, u"a\nb\r\nc"_s });
    QCOMPARE(line.count('\n'), 1);
    QVERIFY(line.endsWith('\n'));
}

void TestUpdateMessages::understandsNothingElse()
{
    for (const QByteArray &line :
         { ""_ba, "\n"_ba, "nonsense\n"_ba, "{}\n"_ba,
           R"({"kind":"trouble","failure":"bad luck"})"_ba, R"({"kind":"offer"})"_ba,
           R"({"kind":"offer","issued":"2026-05-01T12:00:00.000Z","release":{}})"_ba,
           R"({"kind":"download","feed":"https://example.org","folder":"/"})"_ba }) {
        QVERIFY2(!answerFromLine(line), line.constData());
        QVERIFY2(!taskFromLine(line), line.constData());
    }
}

QTEST_GUILESS_MAIN(TestUpdateMessages)
#include "test_updatemessages.moc"
