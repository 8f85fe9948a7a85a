// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktopentry.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class DesktopEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheValuesOfItsGroupAlone()
    {
        const DesktopEntry entry("Exec=before\n[Other]\nExec=other\n[Desktop Entry]\n"
                                 "  Name =  Ferrin  \n#Exec=comment\nExec=ours\n"
                                 "[Desktop Action go]\nExec=action\nIcon=action\n");
        QCOMPARE(entry.value(u"Exec"_s), u"ours"_s);
        QCOMPARE(entry.value(u"Name"_s), u"Ferrin"_s);
        QCOMPARE(entry.value(u"Icon"_s), std::nullopt);
    }

    void takesTheLastOfAKeyThatStandsTwice()
    {
        const DesktopEntry entry("[Desktop Entry]\nHidden=true\nHidden=false\n");
        QCOMPARE(entry.flag(u"Hidden"_s), false);
    }

    void readsFlags_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<std::optional<bool>>("flag");
        QTest::newRow("true") << QByteArray("true") << std::optional(true);
        QTest::newRow("True") << QByteArray(" True\r") << std::optional(true);
        QTest::newRow("1") << QByteArray("1") << std::optional(true);
        QTest::newRow("false") << QByteArray("false") << std::optional(false);
        QTest::newRow("0") << QByteArray("0") << std::optional(false);
        QTest::newRow("nothing") << QByteArray() << std::optional<bool>();
        QTest::newRow("a word") << QByteArray("maybe") << std::optional<bool>();
    }

    void readsFlags()
    {
        QFETCH(QByteArray, text);
        QFETCH(std::optional<bool>, flag);
        QCOMPARE(DesktopEntry("[Desktop Entry]\nHidden=" + text + "\n").flag(u"Hidden"_s), flag);
    }

    void readsLists()
    {
        const DesktopEntry entry("[Desktop Entry]\nOnlyShowIn=GNOME;X-Cinnamon;\nNotShowIn=KDE\n");
        QCOMPARE(entry.list(u"OnlyShowIn"_s), QStringList({ u"GNOME"_s, u"X-Cinnamon"_s }));
        QCOMPARE(entry.list(u"NotShowIn"_s), QStringList({ u"KDE"_s }));
        QCOMPARE(entry.list(u"Categories"_s), QStringList());
    }

    void readsBackWhatItWrote_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("plain") << u"/usr/bin/ferrin"_s;
        QTest::newRow("backslashes") << u"C:\\new\\\\table"_s;
        QTest::newRow("control characters") << u"a\nb\tc\rd"_s;
        QTest::newRow("blanks at the ends") << u" x "_s;
        QTest::newRow("one blank") << u" "_s;
        QTest::newRow("an equals sign") << u"a=b"_s;
        QTest::newRow("other scripts") << u"\u00e9\u65e5\u672c"_s;
        QTest::newRow("empty") << u""_s;
    }

    void readsBackWhatItWrote()
    {
        QFETCH(QString, value);
        DesktopEntry entry;
        entry.setValue(u"Exec"_s, value);
        QCOMPARE(DesktopEntry(entry.content()).value(u"Exec"_s), value);
    }

    void keepsABackslashThatEscapesNothing()
    {
        QCOMPARE(DesktopEntry("[Desktop Entry]\nName=a\\qb\\").value(u"Name"_s), u"a\\qb\\"_s);
    }

    void changesOneLineAndKeepsEveryOther()
    {
        DesktopEntry entry("# mine\n[Desktop Entry]\nName[de]=Eisen\nExec=old\n# end\n\n"
                           "[Desktop Action go]\nExec=action");
        entry.setValue(u"Exec"_s, u"new"_s);
        entry.setValue(u"Hidden"_s, u"true"_s);
        entry.remove(u"Icon"_s);
        QCOMPARE(entry.content(),
                 QByteArray("# mine\n[Desktop Entry]\nName[de]=Eisen\nExec=new\n# end\n"
                            "Hidden=true\n\n[Desktop Action go]\nExec=action\n"));
    }

    void removesAKeyWhereverItStandsInTheGroup()
    {
        DesktopEntry entry(
            "[Desktop Entry]\nHidden=true\nName=x\nHidden=true\n[Other]\nHidden=1\n");
        entry.remove(u"Hidden"_s);
        QCOMPARE(entry.content(), QByteArray("[Desktop Entry]\nName=x\n[Other]\nHidden=1\n"));
    }

    void makesTheGroupWhereThereIsNone()
    {
        DesktopEntry entry("# nothing here\n");
        entry.setValue(u"Name"_s, u"Ferrin"_s);
        QCOMPARE(entry.content(), QByteArray("# nothing here\n[Desktop Entry]\nName=Ferrin\n"));
    }

    void readsNothingFromGarbage_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a line end") << QByteArray("\n");
        QTest::newRow("zeros") << QByteArray(4096, '\0');
        QTest::newRow("not UTF-8") << QByteArray("\xff\xfe[\x80=\n\xc3");
        QTest::newRow("no group") << QByteArray("Exec=/usr/bin/ferrin\n");
        QTest::newRow("a group without its end") << QByteArray("[Desktop Entry\nExec=x\n");
        QTest::newRow("no key") << QByteArray("[Desktop Entry]\n=\n==Exec\nExec\n");
    }

    void readsNothingFromGarbage()
    {
        QFETCH(QByteArray, content);
        DesktopEntry entry(content);
        QCOMPARE(entry.value(u"Exec"_s), std::nullopt);
        entry.setValue(u"Exec"_s, u"x"_s);
        QCOMPARE(DesktopEntry(entry.content()).value(u"Exec"_s), u"x"_s);
    }

    void findsTheProgramOfAnExec_data()
    {
        QTest::addColumn<QString>("exec");
        QTest::addColumn<QString>("program");
        QTest::newRow("a name") << u"ferrin"_s << u"ferrin"_s;
        QTest::newRow("arguments") << u"  /usr/bin/ferrin\t--now %U"_s << u"/usr/bin/ferrin"_s;
        QTest::newRow("quoted") << u"\"/opt/my \\\"apps\\\"/\\$x/\\`y\\\\\" -a"_s
                                << u"/opt/my \"apps\"/$x/`y\\"_s;
        QTest::newRow("percent") << u"/opt/100%%/ferrin"_s << u"/opt/100%/ferrin"_s;
        QTest::newRow("a quote without its end") << u"\"/opt/a b"_s << u"/opt/a b"_s;
        QTest::newRow("a backslash at the end") << u"a\\"_s << u"a\\"_s;
        QTest::newRow("nothing") << u"  "_s << u""_s;
    }

    void findsTheProgramOfAnExec()
    {
        QFETCH(QString, exec);
        QFETCH(QString, program);
        QCOMPARE(programOfExec(exec), program);
    }

    void findsTheWordsOfAnExec_data()
    {
        QTest::addColumn<QString>("exec");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("plain") << u"settings  power\t-v "_s
                               << QStringList { u"settings"_s, u"power"_s, u"-v"_s };
        QTest::newRow("quoted") << u"settings \"my \\\"page\\\"\" --at=\"a b\""_s
                                << QStringList { u"settings"_s, u"my \"page\""_s, u"--at=a b"_s };
        QTest::newRow("empty in quotes")
            << u"settings \"\" x"_s << QStringList { u"settings"_s, u""_s, u"x"_s };
        QTest::newRow("field codes")
            << u"settings %U -x %i --url=%u 100%%"_s
            << QStringList { u"settings"_s, u"-x"_s, u"--url="_s, u"100%"_s };
        QTest::newRow("a percent at the end")
            << u"settings %"_s << QStringList { u"settings"_s, u"%"_s };
        QTest::newRow("nothing") << u" "_s << QStringList();
    }

    void findsTheWordsOfAnExec()
    {
        QFETCH(QString, exec);
        QFETCH(QStringList, words);
        QCOMPARE(wordsOfExec(exec), words);
    }

    void quotesAProgramOnlyWhereItMust()
    {
        QCOMPARE(execOfProgram(u"/usr/bin/ferrin"_s), u"/usr/bin/ferrin"_s);
        QCOMPARE(execOfProgram(u"/opt/100%/ferrin"_s), u"/opt/100%%/ferrin"_s);
        QCOMPARE(execOfProgram(u"/a b/\"c\"/$d/`e/f\\g"_s),
                 u"\"/a b/\\\"c\\\"/\\$d/\\`e/f\\\\g\""_s);
    }
};

FERRIN_TEST(QCoreApplication, DesktopEntryTest)
#include "test_desktopentry.moc"
