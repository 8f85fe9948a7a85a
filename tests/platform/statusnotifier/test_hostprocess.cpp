// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostprocess.h"
#include "platform/linux/statusnotifier/hosttable.h"
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
    void guessesTheHostOfADesktopThatHasItsOwn_data();
    void guessesTheHostOfADesktopThatHasItsOwn();
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

void HostProcessTest::guessesTheHostOfADesktopThatHasItsOwn_data()
{
    QTest::addColumn<QStringList>("desktops");
    QTest::addColumn<QString>("profile");
    const auto row = [](const QStringList &desktops, const char *profile) {
        QTest::newRow(qPrintable(desktops.join(u':'))) << desktops << QString::fromLatin1(profile);
    };
    row({ u"ubuntu"_s, u"GNOME"_s }, "gnome-shell");
    row({ u"Budgie"_s, u"GNOME"_s }, "budgie-panel");
    row({ u"KDE"_s }, "plasmashell");
    row({ u"XFCE"_s }, "xfce4-panel");
    row({ u"LXQt"_s }, "lxqt-panel");
    row({ u"MATE"_s }, "notification-area-applet");
    row({ u"X-Cinnamon"_s }, "xapp-sn-watcher");
    row({ u"Enlightenment"_s }, "enlightenment");
    row({ u"sway"_s, u"wlroots"_s }, "unknown");
    row({ QString() }, "unknown");
}

void HostProcessTest::guessesTheHostOfADesktopThatHasItsOwn()
{
    QFETCH(QStringList, desktops);
    QFETCH(QString, profile);
    const HostProcess host = usualHostOf(desktops);
    QCOMPARE(host.id, 0U);
    QCOMPARE(QString(profileFor(host, desktops).name), profile);
}

FERRIN_TEST(QCoreApplication, HostProcessTest)
#include "test_hostprocess.moc"
