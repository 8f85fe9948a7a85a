// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktoppackageinstaller.h"
#include "tests/platform/session/fakeprogramstarter.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class TestDesktopPackageInstaller : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesThePackageToTheDesktopsSoftwareCentre();
    void prefersASmallInstaller();
    void leavesTheChoiceToTheUserWhereThereIsNeither();
    void takesTheNextWhereOneDoesNotStart();
    void saysWhenThereIsNobody();

private:
    const QString m_path = u"/home/zoë k/.cache/ferrin/updates/ferrin_1.3.0_amd64.deb"_s;
};

void TestDesktopPackageInstaller::givesThePackageToTheDesktopsSoftwareCentre()
{
    const CommandLine gnome { u"gnome-software"_s, { u"--local-filename=%1"_s.arg(m_path) } };
    const CommandLine kde { u"plasma-discover"_s, { u"--local-filename"_s, m_path } };
    for (const auto &[desktops, expected] : QList<std::pair<QStringList, CommandLine>> {
             { { u"ubuntu"_s, u"GNOME"_s }, gnome }, { { u"KDE"_s }, kde }, { {}, gnome } }) {
        FakeProgramStarter starter;
        starter.installed = { u"gnome-software"_s, u"plasma-discover"_s, u"xdg-open"_s };
        QVERIFY(DesktopPackageInstaller(starter, desktops).install(m_path));
        QCOMPARE(starter.started, QList { expected });
    }
}

void TestDesktopPackageInstaller::prefersASmallInstaller()
{
    FakeProgramStarter starter;
    starter.installed = { u"gnome-software"_s, u"gdebi-gtk"_s, u"xdg-open"_s };
    QVERIFY(DesktopPackageInstaller(starter, { u"MATE"_s }).install(m_path));
    QCOMPARE(starter.started, QList({ CommandLine { u"gdebi-gtk"_s, { m_path } } }));
}

void TestDesktopPackageInstaller::leavesTheChoiceToTheUserWhereThereIsNeither()
{
    FakeProgramStarter starter;
    starter.installed = { u"xdg-open"_s };
    QVERIFY(DesktopPackageInstaller(starter, {}).install(m_path));
    QCOMPARE(starter.started, QList({ CommandLine { u"xdg-open"_s, { m_path } } }));
}

void TestDesktopPackageInstaller::takesTheNextWhereOneDoesNotStart()
{
    FakeProgramStarter starter;
    starter.installed = { u"qapt-deb-installer"_s, u"xdg-open"_s };
    starter.broken = { u"qapt-deb-installer"_s };
    QVERIFY(DesktopPackageInstaller(starter, {}).install(m_path));
    QCOMPARE(starter.started.last().program, u"xdg-open"_s);
}

void TestDesktopPackageInstaller::saysWhenThereIsNobody()
{
    FakeProgramStarter starter;
    QVERIFY(!DesktopPackageInstaller(starter, {}).install(m_path));
    QVERIFY(starter.started.isEmpty());
}

FERRIN_TEST(QCoreApplication, TestDesktopPackageInstaller)
#include "test_desktoppackageinstaller.moc"
