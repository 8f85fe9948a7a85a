// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/commandreader.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <optional>

using namespace ferrin;
using namespace Qt::StringLiterals;

class CommandReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOverWhatAProgramPrints() { QCOMPARE(read(u"echo ä; echo no >&2"_s), "ä\n"); }

    void handsOverNothingOfAProgramThatFails()
    {
        QCOMPARE(read(u"echo words; exit 1"_s), "");
        QCOMPARE(read(u"head -c 2000000 /dev/zero"_s), "");
    }

    void handsOverNothingWhereThereIsNoSuchProgram()
    {
        std::optional<QByteArray> answer;
        readCommand(this, u"ferrin-no-such-program"_s, {},
                    [&](const QByteArray &output) { answer = output; });
        QTRY_VERIFY(answer);
        QCOMPARE(*answer, "");
    }

    void tellsNothingToOneThatIsGone()
    {
        bool isTold = false;
        auto context = std::make_unique<QObject>();
        readCommand(context.get(), u"sh"_s, { u"-c"_s, u"sleep 0.1"_s },
                    [&](const QByteArray &) { isTold = true; });
        context.reset();
        QTest::qWait(200);
        QVERIFY(!isTold);
    }

private:
    QByteArray read(const QString &script)
    {
        std::optional<QByteArray> answer;
        readCommand(this, u"sh"_s, { u"-c"_s, script },
                    [&](const QByteArray &output) { answer = output; });
        return QTest::qWaitFor([&] { return answer.has_value(); }) ? *answer : "nothing";
    }
};

FERRIN_TEST(QCoreApplication, CommandReaderTest)
#include "test_commandreader.moc"
