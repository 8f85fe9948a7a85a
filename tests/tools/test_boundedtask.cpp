// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tools/boundedtask.h"

#include <QTest>

#include <csignal>
#include <unistd.h>

using namespace ferrin;
using namespace std::chrono_literals;

class BoundedTaskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheResultOfATaskThatEndsInTime();
    void givesAnEmptyResultAsOne();
    void givesLongResultsWhole();
    void givesUpATaskThatNeverEnds();
    void givesNothingOfATaskThatCrashes();
    void leavesOurOutputToUs();
};

void BoundedTaskTest::givesTheResultOfATaskThatEndsInTime()
{
    QCOMPARE(resultWithin(60s, [] { return std::string("a report\n"); }), "a report\n");
}

void BoundedTaskTest::givesAnEmptyResultAsOne()
{
    QCOMPARE(resultWithin(60s, [] { return std::string(); }), "");
}

void BoundedTaskTest::givesLongResultsWhole()
{
    const std::string big(1 << 20, 'x');
    QCOMPARE(resultWithin(60s, [&big] { return big; }), big);
}

void BoundedTaskTest::givesUpATaskThatNeverEnds()
{
    const auto never = []() -> std::string {
        for (;;)
            ::pause();
    };
    QVERIFY(!resultWithin(20ms, never));
}

void BoundedTaskTest::givesNothingOfATaskThatCrashes()
{
    const auto crash = []() -> std::string {
        ::signal(SIGABRT, SIG_DFL);
        ::abort();
    };
    QVERIFY(!resultWithin(60s, crash));
}

void BoundedTaskTest::leavesOurOutputToUs()
{
    // A reader of our output must not wait for the child.
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const int saved = ::dup(STDOUT_FILENO);
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[1]);
    const auto hang = []() -> std::string {
        for (;;)
            ::pause();
    };
    const bool hung = !resultWithin(20ms, hang);
    ::dup2(saved, STDOUT_FILENO);
    ::close(saved);
    QVERIFY(hung);
    char byte = 0;
    QCOMPARE(::read(ends[0], &byte, 1), 0);
    ::close(ends[0]);
}

QTEST_GUILESS_MAIN(BoundedTaskTest)
#include "test_boundedtask.moc"
