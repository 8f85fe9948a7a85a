// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktoplinkopener.h"
#include "tests/platform/session/fakeprogramstarter.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QUrl batterySettings(u"x-apple.systempreferences:com.apple.preference.battery"_s);

struct Fixture
{
    FakeProgramStarter starter;
    QStringList desktops;
    QTemporaryDir data;

    bool open(const QUrl &link)
    {
        return DesktopLinkOpener(starter, desktops, { data.path() }).open(link);
    }

    /// Installs a desktop entry with these further lines.
    void install(const QString &name, const QByteArray &lines)
    {
        QDir(data.path()).mkpath(u"applications"_s);
        QFile file(data.filePath(u"applications/%1.desktop"_s.arg(name)));
        [[maybe_unused]] const bool isOpen = file.open(QIODevice::WriteOnly);
        file.write("[Desktop Entry]\nType=Application\n" + lines + '\n');
    }
};

} // namespace

class DesktopLinkOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesLinksToTheDesktopsHandler_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("given");
        const auto row = [](const char *name, const QString &link, const QString &given = {}) {
            QTest::newRow(name) << link << (given.isEmpty() ? link : given);
        };
        row("web", u"https://example.org/faq?a=1&b=2#top"_s);
        row("web without encryption", u"http://example.org"_s);
        row("mail", u"mailto:someone@example.org?subject=Ferrin%200.1"_s);
        row("local page", u"file:///usr/share/doc/ferrin/faq.html"_s);
        row("blanks", u"file:///opt/my apps/faq.html"_s, u"file:///opt/my%20apps/faq.html"_s);
    }

    void givesLinksToTheDesktopsHandler()
    {
        QFETCH(QString, link);
        QFETCH(QString, given);
        const LogCapture log;
        Fixture f;
        f.starter.installed = { u"gio"_s, u"xdg-open"_s };
        QVERIFY(f.open(QUrl(link)));
        QCOMPARE(f.starter.started, QList<CommandLine>({ { u"xdg-open"_s, { given } } }));
    }

    void takesTheNextHandlerWhereTheFirstIsMissingOrBroken()
    {
        const LogCapture log;
        Fixture f;
        f.starter.installed = { u"gio"_s, u"exo-open"_s };
        f.starter.broken = { u"gio"_s };
        f.open(QUrl(u"https://example.org/"_s));
        QCOMPARE(f.starter.started,
                 QList<CommandLine>({ { u"gio"_s, { u"open"_s, u"https://example.org/"_s } },
                                      { u"exo-open"_s, { u"https://example.org/"_s } } }));
    }

    void logsALinkThatNothingOpens()
    {
        LogCapture log;
        Fixture f;
        QVERIFY(!f.open(QUrl(u"https://example.org/100%25"_s)));
        QCOMPARE(log.take(),
                 QStringList({ u"error: Unable to open https://example.org/100%25: "
                               "cannot start xdg-open, gio, kde-open, exo-open"_s }));
    }

    void refusesOtherSchemes()
    {
        LogCapture log;
        Fixture f;
        f.starter.installed = { u"xdg-open"_s };
        f.open(QUrl(u"javascript:alert(1)"_s));
        f.open(QUrl(u"faq.html"_s));
        QCOMPARE(f.starter.started, QList<CommandLine>());
        QCOMPARE(
            log.take(),
            QStringList(
                { u"error: Unable to open javascript:alert(1): not a link to a page or a mail"_s,
                  u"error: Unable to open faq.html: not a link to a page or a mail"_s }));
    }

    void doesNothingWithAnInvalidLink()
    {
        const LogCapture log;
        Fixture f;
        f.starter.installed = { u"xdg-open"_s };
        f.open(QUrl());
        f.open(QUrl(u"https://[broken"_s));
        QCOMPARE(f.starter.started, QList<CommandLine>());
    }

    void opensTheDesktopsPowerPage_data()
    {
        QTest::addColumn<QString>("desktops");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QStringList>("words");
        const auto row = [](const char *desktops, const QStringList &words,
                            const QStringList &alsoInstalled = {}) {
            QTest::newRow(desktops)
                << QString::fromLatin1(desktops) << (alsoInstalled + words.first(1)) << words;
        };
        const QStringList gnome { u"gnome-control-center"_s, u"power"_s };
        row("GNOME", gnome);
        row("ubuntu:GNOME", gnome);
        row("GNOME-Classic:GNOME", gnome);
        row("pop:gnome", gnome);
        row("Unity", gnome);
        row("Unity:Unity7:ubuntu", { u"unity-control-center"_s, u"power"_s }, gnome.first(1));
        row("Budgie", gnome);
        row("Budgie:GNOME", { u"budgie-control-center"_s, u"power"_s }, gnome.first(1));
        row("KDE", { u"systemsettings"_s, u"kcm_powerdevilprofilesconfig"_s },
            { u"systemsettings5"_s, u"kcmshell5"_s });
        row("kde", { u"systemsettings5"_s, u"powerdevilprofilesconfig"_s });
        row("KDE:plasma", { u"kcmshell6"_s, u"kcm_powerdevilprofilesconfig"_s });
        row("plasma:KDE", { u"kcmshell5"_s, u"kcm_powerdevilprofilesconfig"_s });
        row("XFCE", { u"xfce4-power-manager-settings"_s }, gnome.first(1));
        row("MATE", { u"mate-power-preferences"_s }, gnome.first(1));
        row("X-Cinnamon", { u"cinnamon-settings"_s, u"power"_s }, gnome.first(1));
        row("LXQt", { u"lxqt-config-powermanagement"_s });
        row("COSMIC", { u"cosmic-settings"_s, u"power"_s }, gnome.first(1));
        row("Pantheon", { u"io.elementary.settings"_s, u"settings://power"_s });
        row("pantheon", { u"io.elementary.switchboard"_s, u"settings://power"_s });
        const QStringList deepin { u"dde-control-center"_s, u"-s"_s, u"-p"_s, u"power"_s };
        row("Deepin", deepin);
        row("DDE", deepin);
    }

    void opensTheDesktopsPowerPage()
    {
        QFETCH(QString, desktops);
        QFETCH(QStringList, installed);
        QFETCH(QStringList, words);
        const LogCapture log;
        Fixture f;
        f.desktops = desktops.split(u':');
        f.starter.installed = installed;
        f.open(batterySettings);
        QCOMPARE(f.starter.started, QList<CommandLine>({ { words.first(), words.mid(1) } }));
    }

    void opensAnInstalledProgramWhereTheDesktopHasNoKnownPowerPage()
    {
        const LogCapture log;
        Fixture f;
        f.desktops = { u"Hyprland"_s };
        f.starter.installed = { u"some-settings"_s, u"other-settings"_s };
        f.install(u"a-power"_s,
                  "Exec=other-settings\nCategories=Settings;\nKeywords=Power;Suspend;");
        f.install(u"b-battery"_s,
                  "Exec=some-settings --page \"my power\" %u\nCategories=Settings;\n"
                  "Keywords=Power;Battery;");
        QVERIFY(f.open(batterySettings));
        QCOMPARE(f.starter.started,
                 QList<CommandLine>({ { u"some-settings"_s, { u"--page"_s, u"my power"_s } } }));
        f.starter.installed.removeFirst();
        QVERIFY(f.open(batterySettings));
        QCOMPARE(f.starter.started.last(), (CommandLine { u"other-settings"_s, {} }));
    }

    void passesOverProgramsThatAreNotForTheBatteryOrNotForTheDesktop_data()
    {
        QTest::addColumn<QByteArray>("lines");
        const QByteArray good = "Exec=some-settings\nCategories=Settings;\nKeywords=battery;\n";
        QTest::newRow("another category")
            << QByteArray("Exec=some-settings\nCategories=Utility;\nKeywords=battery;");
        QTest::newRow("another subject")
            << QByteArray("Exec=some-settings\nCategories=Settings;\nKeywords=sound;");
        QTest::newRow("only for others") << good + "OnlyShowIn=KDE;";
        QTest::newRow("not for this one") << good + "NotShowIn=GNOME;sway;";
        QTest::newRow("hidden") << good + "Hidden=true";
        QTest::newRow("in a terminal") << good + "Terminal=true";
        QTest::newRow("for a program that is missing") << good + "TryExec=another";
        QTest::newRow("no command") << QByteArray("Categories=Settings;\nKeywords=battery;");
    }

    void passesOverProgramsThatAreNotForTheBatteryOrNotForTheDesktop()
    {
        QFETCH(QByteArray, lines);
        LogCapture log;
        log.ignoreRest();
        Fixture f;
        f.desktops = { u"sway"_s };
        f.starter.installed = { u"some-settings"_s };
        f.install(u"settings"_s, lines);
        QVERIFY(!f.open(batterySettings));
        QCOMPARE(f.starter.started, QList<CommandLine>());
    }

    void logsADesktopWithoutAKnownPowerPage()
    {
        LogCapture log;
        Fixture f;
        f.starter.installed = { u"gnome-control-center"_s, u"xdg-open"_s };
        QVERIFY(!f.open(batterySettings));
        f.desktops = { u"sway"_s, u"wlroots"_s };
        QVERIFY(!f.open(batterySettings));
        QCOMPARE(f.starter.started, QList<CommandLine>());
        QCOMPARE(
            log.take(),
            QStringList({ u"error: Unable to open the battery settings: no power page is known "
                          "for \"\""_s,
                          u"error: Unable to open the battery settings: no power page is known "
                          "for \"sway:wlroots\""_s }));
    }

    void logsAPowerPageThatIsNotInstalledOnce()
    {
        LogCapture log;
        Fixture f;
        f.desktops = { u"Budgie"_s, u"GNOME"_s };
        f.open(batterySettings);
        QCOMPARE(log.take(),
                 QStringList({ u"error: Unable to open the battery settings: cannot "
                               "start budgie-control-center, "
                               "gnome-control-center"_s }));
    }

    void knowsNoOtherSettings()
    {
        LogCapture log;
        Fixture f;
        f.desktops = { u"GNOME"_s };
        f.starter.installed = { u"gnome-control-center"_s, u"xdg-open"_s };
        f.open(QUrl(u"x-apple.systempreferences:com.apple.preference.sound"_s));
        QCOMPARE(f.starter.started, QList<CommandLine>());
        QCOMPARE(log.take(),
                 QStringList({ u"error: Unable to open x-apple.systempreferences:com.apple."
                               "preference.sound: no such settings"_s }));
    }
};

FERRIN_TEST(QCoreApplication, DesktopLinkOpenerTest)
#include "test_desktoplinkopener.moc"
