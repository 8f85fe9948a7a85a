// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/applicationsetup.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class ApplicationSetupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { qputenv("WAYLAND_DISPLAY", "wayland-test"); }
    void cleanup() { qunsetenv("WAYLAND_DISPLAY"); }

    void readsInTheDirectionOfTheBestLanguage_data()
    {
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("Arabic") << QStringList { u"ar-EG"_s, u"en"_s } << Qt::RightToLeft;
        QTest::newRow("Persian") << QStringList { u"fa-IR"_s } << Qt::RightToLeft;
        QTest::newRow("Hebrew") << QStringList { u"he"_s } << Qt::RightToLeft;
        QTest::newRow("Urdu") << QStringList { u"ur-PK"_s } << Qt::RightToLeft;
        QTest::newRow("German") << QStringList { u"de-DE"_s, u"ar"_s } << Qt::LeftToRight;
        QTest::newRow("Punjabi, in India") << QStringList { u"pa-IN"_s } << Qt::LeftToRight;
        QTest::newRow("Punjabi, in Pakistan") << QStringList { u"pa-PK"_s } << Qt::RightToLeft;
        QTest::newRow("none") << QStringList { u"C"_s } << Qt::LeftToRight;
        QTest::newRow("nothing known") << QStringList() << Qt::LeftToRight;
    }
    void readsInTheDirectionOfTheBestLanguage()
    {
        QFETCH(QStringList, languages);
        QTEST(layoutDirectionFor(languages), "direction");
    }

    void namesThePackageOfAWaylandPluginThatIsMissing()
    {
        const QTemporaryDir plugins;
        LogCapture log;
        logMissingWaylandPlugin(plugins.path());
        QCOMPARE(log.take(),
                 QStringList(u"error: Qt's plugin for Wayland is missing (package qt6-wayland): "
                             u"windows cannot open at the item"_s));
    }

    void isSilentWhereThePluginIsThere()
    {
        const QTemporaryDir plugins;
        QVERIFY(QDir(plugins.path()).mkdir(u"platforms"_s));
        QFile plugin(plugins.filePath(u"platforms/libqwayland-generic.so"_s));
        QVERIFY(plugin.open(QIODevice::WriteOnly));
        const LogCapture log;
        logMissingWaylandPlugin(plugins.path());
    }

    void isSilentInASessionWithoutWayland()
    {
        qunsetenv("WAYLAND_DISPLAY");
        const QTemporaryDir plugins;
        const LogCapture log;
        logMissingWaylandPlugin(plugins.path());
    }
};

FERRIN_TEST(QCoreApplication, ApplicationSetupTest)
#include "test_applicationsetup.moc"
