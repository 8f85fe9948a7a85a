// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostprocess.h"
#include "tests/support/testmain.h"

#include <QCoreApplication>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class HostProcessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsNameAndArgumentsOfAProcess();
    void isEmptyForAProcessThatIsGone();
};

void HostProcessTest::readsNameAndArgumentsOfAProcess()
{
    const HostProcess own = hostProcessFromKernel(uint(QCoreApplication::applicationPid()));
    QCOMPARE(own.name, u"test_platform_s"_s);
    QVERIFY(own.arguments.value(0).endsWith(u"/test_platform_statusnotifier"_s));
    QCOMPARE(own.arguments.value(1), u"hostprocess"_s);
}

void HostProcessTest::isEmptyForAProcessThatIsGone()
{
    const HostProcess none = hostProcessFromKernel(0);
    QCOMPARE(none.name, QString());
    QCOMPARE(none.arguments, QStringList());
}

FERRIN_TEST(QCoreApplication, HostProcessTest)
#include "test_hostprocess.moc"
