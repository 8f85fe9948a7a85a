// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/autostartentry.h"
#include "tests/platform/session/loginchange.h"
#include "tests/platform/session/session.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

/// A program that leaves a file named "started" beside itself.
void writeProgram(const QString &path)
{
    writeFile(path, "#!/bin/sh\n: > \"${0%/*}/started\"\n");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

struct Fixture
{
    QTemporaryDir folder;
    QString program = folder.filePath(u"bin/ferrin"_s);
    QString usersFile = folder.filePath(u"config/autostart/org.ferrin.Ferrin.desktop"_s);
    QString systemsFile = folder.filePath(u"xdg/autostart/org.ferrin.Ferrin.desktop"_s);
    QStringList desktops { u"ubuntu"_s, u"GNOME"_s };

    Fixture() { writeProgram(program); }

    [[nodiscard]] AutostartEntry entry() const
    {
        return AutostartEntry(
            u"org.ferrin.Ferrin"_s, program,
            { .configFolders = { folder.filePath(u"config"_s), folder.filePath(u"local"_s),
                                 folder.filePath(u"xdg"_s) },
              .desktops = desktops });
    }

    [[nodiscard]] QByteArray ours(const QByteArray &more = {}) const
    {
        return "[Desktop Entry]\nType=Application\nName=Ferrin\nExec=" + program.toUtf8() + '\n'
            + more;
    }

    [[nodiscard]] QByteArray content() const
    {
        QFile file(usersFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

/// Nobody's rights as long as it lives: the superuser may write everywhere.
class Unprivileged
{
public:
    Unprivileged()
    {
        constexpr uid_t nobody = 65534;
        m_isDropped = m_before == 0 && seteuid(nobody) == 0;
    }
    ~Unprivileged()
    {
        if (m_isDropped && seteuid(m_before) != 0)
            qFatal("The test cannot get its rights back");
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    uid_t m_before = geteuid();
    bool m_isDropped = false;
};

void allow(const QString &folder, bool isWritable)
{
    auto permissions = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
        | QFile::ReadOther | QFile::ExeOther;
    permissions.setFlag(QFile::WriteOwner, isWritable);
    QVERIFY(QFile::setPermissions(folder, permissions));
}

} // namespace

class AutostartEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotRegisteredWhereThereIsNoEntry()
    {
        const Fixture f;
        QCOMPARE(f.entry().status(), LoginItemStatus::notRegistered);
    }

    void tellsTheStatusOfTheUsersEntry_data()
    {
        QTest::addColumn<QByteArray>("more");
        QTest::addColumn<int>("status");
        const auto row = [](const char *name, const char *more, LoginItemStatus status) {
            QTest::newRow(name) << QByteArray(more) << int(status);
        };
        row("present", "", LoginItemStatus::enabled);
        row("shown", "Hidden=false\n", LoginItemStatus::enabled);
        row("hidden", "Hidden=true\n", LoginItemStatus::notRegistered);
        row("switched on by the desktop", "X-GNOME-Autostart-enabled=true\n",
            LoginItemStatus::enabled);
        row("disabled by GNOME", "X-GNOME-Autostart-enabled=false\n",
            LoginItemStatus::requiresApproval);
        row("disabled by MATE", "X-MATE-Autostart-enabled=false\n",
            LoginItemStatus::requiresApproval);
        row("hidden and disabled", "Hidden=true\nX-GNOME-Autostart-enabled=false\n",
            LoginItemStatus::notRegistered);
        row("for this desktop", "OnlyShowIn=KDE;GNOME;\n", LoginItemStatus::enabled);
        row("for others", "OnlyShowIn=KDE;\n", LoginItemStatus::requiresApproval);
        row("for none", "OnlyShowIn=\n", LoginItemStatus::requiresApproval);
        row("not for another", "NotShowIn=KDE;\n", LoginItemStatus::enabled);
        row("not for this desktop", "NotShowIn=KDE;GNOME;\n", LoginItemStatus::requiresApproval);
        row("needs what is there", "TryExec=/bin/sh\n", LoginItemStatus::enabled);
        row("needs what is gone", "TryExec=/nowhere/ferrin\n", LoginItemStatus::notFound);
    }

    void tellsTheStatusOfTheUsersEntry()
    {
        QFETCH(QByteArray, more);
        QFETCH(int, status);
        const Fixture f;
        writeFile(f.usersFile, f.ours(more));
        QCOMPARE(int(f.entry().status()), status);
    }

    void turnsOnWhateverWasInTheWay_data() { tellsTheStatusOfTheUsersEntry_data(); }

    void turnsOnWhateverWasInTheWay()
    {
        QFETCH(QByteArray, more);
        const Fixture f;
        writeFile(f.usersFile, f.ours(more));
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        QVERIFY(Session::logIn(f.usersFile));
        QVERIFY(QFile::exists(f.folder.filePath(u"bin/started"_s)));
    }

    void isNotFoundWhenTheProgramIsGoneOrCannotRun()
    {
        const Fixture f;
        writeFile(f.usersFile, f.ours());
        QVERIFY(QFile::setPermissions(f.program, QFile::ReadOwner));
        QCOMPARE(f.entry().status(), LoginItemStatus::notFound);
        QVERIFY(QFile::remove(f.program));
        QCOMPARE(f.entry().status(), LoginItemStatus::notFound);
    }

    void knowsTheProgramByAnotherNameOfTheSameFile()
    {
        const Fixture f;
        const QString link = f.folder.filePath(u"link"_s);
        QVERIFY(QFile::link(f.program, link));
        writeFile(f.usersFile, "[Desktop Entry]\nExec=" + link.toUtf8() + "\n");
        QCOMPARE(f.entry().status(), LoginItemStatus::enabled);
    }

    void writesAnEntryThatTheSessionStarts()
    {
        const Fixture f;
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        const QByteArray path = f.program.toUtf8();
        QCOMPARE(f.content(),
                 "[Desktop Entry]\nType=Application\nName=Ferrin\nIcon=org.ferrin.Ferrin\nExec="
                     + path + " --background\nTryExec=" + path + '\n');
        QVERIFY(Session::logIn(f.usersFile));
        QVERIFY(QFile::exists(f.folder.filePath(u"bin/started"_s)));
    }

    void startsAProgramInAnOddPlace_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("space") << u"my apps"_s;
        QTest::newRow("blanks at the ends") << u" apps "_s;
        QTest::newRow("double quotes") << u"the \"apps\""_s;
        QTest::newRow("single quote") << u"user's"_s;
        QTest::newRow("backslash") << u"a\\b\\\\n"_s;
        QTest::newRow("dollar") << u"$HOME"_s;
        QTest::newRow("percent") << u"100%f %%"_s;
        QTest::newRow("backtick") << u"`id`"_s;
        QTest::newRow("line end and tab") << u"a\nb\tc"_s;
        QTest::newRow("shell") << u"a;b&c|d>e<f(g)*?#~"_s;
        QTest::newRow("equals sign") << u"a=b"_s;
        QTest::newRow("other scripts") << u"\u00e9\u65e5\u672c\U0001f50b"_s;
    }

    void startsAProgramInAnOddPlace()
    {
        QFETCH(QString, name);
        Fixture f;
        f.program = f.folder.filePath(name + u"/ferrin"_s);
        writeProgram(f.program);
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        QCOMPARE(Session::commandLine(f.usersFile), QStringList({ f.program, u"--background"_s }));
        QVERIFY(Session::logIn(f.usersFile));
        QVERIFY(QFile::exists(f.folder.filePath(name + u"/started"_s)));
    }

    void startsTheScriptBehindWhichAPackageHidTheProgram()
    {
        Fixture f;
        const QString script = f.program;
        f.program = f.folder.filePath(u"bin/.ferrin-wrapped"_s);
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(Session::commandLine(f.usersFile), QStringList({ script, u"--background"_s }));
    }

    void leavesNothingThatTheSessionStartsWhenTurnedOff()
    {
        const Fixture f;
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(turnOff(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
        QVERIFY(!QFile::exists(f.usersFile));
        QVERIFY(!Session::logIn(f.usersFile));
        QCOMPARE(turnOff(entry), std::nullopt);
    }

    void keepsWhatTheUserAddedToTheEntry()
    {
        const Fixture f;
        const QByteArray added = "# mine\nX-GNOME-Autostart-Delay=10\nName[de]=Eisen\n";
        writeFile(f.usersFile, f.ours(added + "Hidden=true\n"));
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOn(entry), std::nullopt);
        QVERIFY(f.content().contains(added));
        QVERIFY(!f.content().contains("Hidden"));

        // A refreshed registration goes through its removal.
        QCOMPARE(turnOff(entry), std::nullopt);
        QCOMPARE(turnOn(entry), std::nullopt);
        QVERIFY(f.content().contains(added));
    }

    void pointsTheEntryToWhereTheProgramIsNow()
    {
        const Fixture f;
        writeFile(f.usersFile, "[Desktop Entry]\nX-Mine=1\nExec=/old/place/ferrin\n");
        AutostartEntry entry = f.entry();
        QCOMPARE(entry.status(), LoginItemStatus::notFound);
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(Session::commandLine(f.usersFile), QStringList({ f.program, u"--background"_s }));
        QVERIFY(f.content().contains("X-Mine=1\n"));
    }

    void leavesAnEntryOfAnotherProgramUntilTurnedOn()
    {
        const Fixture f;
        const QByteArray other = "[Desktop Entry]\nName=Other\nExec=/bin/true\nX-Other=1\n";
        writeFile(f.usersFile, other);
        writeFile(f.systemsFile, f.ours());
        AutostartEntry entry = f.entry();
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
        QCOMPARE(turnOff(entry), std::nullopt);
        QCOMPARE(f.content(), other);

        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        QVERIFY(!f.content().contains("Other"));
    }

    void takesGarbageForNoEntryAndReplacesItWhenTurnedOn_data()
    {
        QTest::addColumn<QByteArray>("garbage");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zeros") << QByteArray(4096, '\0');
        QTest::newRow("noise") << QByteArray("\xff\xfe[\n=\n[Desktop Entry]\nExec=\"\n");
        QTest::newRow("cut off") << QByteArray("[Desktop Entry]\nType=Appli");
    }

    void takesGarbageForNoEntryAndReplacesItWhenTurnedOn()
    {
        QFETCH(QByteArray, garbage);
        const Fixture f;
        writeFile(f.usersFile, garbage);
        AutostartEntry entry = f.entry();
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        QVERIFY(Session::logIn(f.usersFile));
    }

    void hidesAnEntryOfTheSystemAndShowsItAgain()
    {
        const Fixture f;
        writeFile(f.systemsFile, f.ours());
        AutostartEntry entry = f.entry();
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        QCOMPARE(turnOff(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
        QVERIFY(f.content().contains("Hidden=true\n"));
        QVERIFY(!Session::logIn(f.usersFile));
        QVERIFY(QFile::exists(f.systemsFile));

        QCOMPARE(turnOn(entry), std::nullopt);
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        QVERIFY(Session::logIn(f.usersFile));
    }

    void hidesTheUsersEntryWhereTheSystemHasOneToo()
    {
        const Fixture f;
        writeFile(f.systemsFile, f.ours());
        writeFile(f.usersFile, f.ours("X-Mine=1\n"));
        AutostartEntry entry = f.entry();
        QCOMPARE(turnOff(entry), std::nullopt);
        QCOMPARE(f.content(), f.ours("X-Mine=1\nHidden=true\n"));
    }

    void leavesAnEntryOfTheSystemForAnotherProgramAlone()
    {
        const Fixture f;
        writeFile(f.systemsFile, "[Desktop Entry]\nExec=/bin/true\n");
        AutostartEntry entry = f.entry();
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
        QCOMPARE(turnOff(entry), std::nullopt);
        QVERIFY(!QFile::exists(f.usersFile));
    }

    void tellsOfAFolderThatCannotBeMade()
    {
        const Fixture f;
        writeFile(f.folder.filePath(u"config/autostart"_s), "a file in its place");
        AutostartEntry entry = f.entry();
        QVERIFY(turnOn(entry).value_or(QString()).contains(u"autostart"_s));
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
    }

    void tellsOfAFolderThatCannotBeWritten()
    {
        const Fixture f;
        const QString folder = QFileInfo(f.usersFile).path();
        QVERIFY(QDir().mkpath(folder));
        allow(f.folder.path(), true);
        allow(f.folder.filePath(u"config"_s), true);
        allow(folder, false);
        AutostartEntry entry = f.entry();
        {
            const Unprivileged unprivileged;
            QVERIFY(turnOn(entry).value_or(QString()).contains(f.usersFile));
        }
        QCOMPARE(entry.status(), LoginItemStatus::notRegistered);
        allow(folder, true);
        QCOMPARE(turnOn(entry), std::nullopt);

        allow(folder, false);
        {
            const Unprivileged unprivileged;
            QVERIFY(turnOff(entry).value_or(QString()).contains(f.usersFile));
        }
        QCOMPARE(entry.status(), LoginItemStatus::enabled);
        allow(folder, true);
    }

    void readsTheSessionFromItsEnvironment()
    {
        const Fixture f;
        qputenv("XDG_CONFIG_HOME", f.folder.filePath(u"config"_s).toUtf8());
        qputenv("XDG_CONFIG_DIRS", "/one:/two");
        qputenv("XDG_CURRENT_DESKTOP", "Budgie:GNOME");
        const auto session = AutostartSession::current();
        QCOMPARE(session.configFolders,
                 QStringList({ f.folder.filePath(u"config"_s), u"/one"_s, u"/two"_s }));
        QCOMPARE(session.desktops, QStringList({ u"Budgie"_s, u"GNOME"_s }));
        qunsetenv("XDG_CURRENT_DESKTOP");
        QCOMPARE(AutostartSession::current().desktops, QStringList());
    }
};

FERRIN_TEST(QCoreApplication, AutostartEntryTest)
#include "test_autostartentry.moc"
