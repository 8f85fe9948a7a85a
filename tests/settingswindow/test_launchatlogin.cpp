// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/general/launchatlogin.h"
#include "tests/settingswindow/fakeloginitem.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTest>

#include <utility>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

struct Fixture
{
    FakeLoginItem item;
    LaunchAtLogin::Observable observable;
    LaunchAtLogin launchAtLogin { item, observable };
};

/// A login item of a desktop that takes its time: the test says when a change is done.
struct SlowLoginItem final : LoginItem
{
    [[nodiscard]] LoginItemStatus status() const override { return current; }
    void registerItem(Done done) override { pending = std::move(done); }
    void unregisterItem(Done done) override { pending = std::move(done); }

    void settle(LoginItemStatus status, const std::optional<QString> &error = std::nullopt)
    {
        current = status;
        std::exchange(pending, nullptr)(error);
    }

    LoginItemStatus current = LoginItemStatus::notRegistered;
    Done pending;
};

QByteArray lastCategory;

void keepCategory(QtMsgType, const QMessageLogContext &context, const QString &)
{
    lastCategory = context.category;
}

} // namespace

class LaunchAtLoginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOnWhenTheItemIsEnabledAlone_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("isEnabled");
        QTest::newRow("enabled") << int(LoginItemStatus::enabled) << true;
        QTest::newRow("not registered") << int(LoginItemStatus::notRegistered) << false;
        QTest::newRow("requires approval") << int(LoginItemStatus::requiresApproval) << false;
        QTest::newRow("not found") << int(LoginItemStatus::notFound) << false;
    }

    void isOnWhenTheItemIsEnabledAlone()
    {
        QFETCH(int, status);
        QFETCH(bool, isEnabled);
        Fixture f;
        f.item.current = static_cast<LoginItemStatus>(status);
        QCOMPARE(f.launchAtLogin.isEnabled(), isEnabled);
    }

    void asksAgainAtEachReading()
    {
        Fixture f;
        QVERIFY(!f.launchAtLogin.isEnabled());
        f.item.current = LoginItemStatus::enabled;
        QVERIFY(f.launchAtLogin.isEnabled());
    }

    void registersWhenTurnedOnAndUnregistersWhenTurnedOff()
    {
        const LogCapture log;
        Fixture f;
        f.launchAtLogin.setIsEnabled(true);
        QVERIFY(f.launchAtLogin.isEnabled());
        f.launchAtLogin.setIsEnabled(false);
        QVERIFY(!f.launchAtLogin.isEnabled());
        QCOMPARE(f.item.calls, QStringList({ u"register"_s, u"unregister"_s }));
    }

    void registersAnewWhenTurnedOnWhileEnabled()
    {
        const LogCapture log;
        Fixture f;
        f.item.current = LoginItemStatus::enabled;
        f.launchAtLogin.setIsEnabled(true);
        QCOMPARE(f.item.calls, QStringList({ u"unregister"_s, u"register"_s }));
        QVERIFY(f.launchAtLogin.isEnabled());
    }

    void registersAlthoughTheOldItemWouldNotGo()
    {
        const LogCapture log;
        Fixture f;
        f.item.current = LoginItemStatus::enabled;
        f.item.unregisterError = u"busy"_s;
        f.launchAtLogin.setIsEnabled(true);
        QCOMPARE(f.item.calls, QStringList({ u"unregister"_s, u"register"_s }));
        QVERIFY(f.launchAtLogin.isEnabled());
    }

    void unregistersWhenTurnedOffWhileOffAlready()
    {
        const LogCapture log;
        Fixture f;
        f.item.current = LoginItemStatus::requiresApproval;
        f.launchAtLogin.setIsEnabled(false);
        QCOMPARE(f.item.calls, QStringList({ u"unregister"_s }));
    }

    void logsARefusedRegistrationAndStaysOff()
    {
        LogCapture log;
        Fixture f;
        f.item.current = LoginItemStatus::requiresApproval;
        f.item.registerError = u"The user has not approved \u201cFerrin\u201d"_s;
        f.launchAtLogin.setIsEnabled(true);
        QCOMPARE(log.take(),
                 QStringList({ u"error: Failed to enable launch at login: The user has "
                               "not approved \u201cFerrin\u201d"_s }));
        QVERIFY(!f.launchAtLogin.isEnabled());
    }

    void logsARefusedUnregistrationAndStaysOn()
    {
        LogCapture log;
        Fixture f;
        f.item.current = LoginItemStatus::enabled;
        f.item.unregisterError = u"Read-only file system"_s;
        f.launchAtLogin.setIsEnabled(false);
        QCOMPARE(log.take(),
                 QStringList({ u"error: Failed to disable launch at login: Read-only "
                               "file system"_s }));
        QVERIFY(f.launchAtLogin.isEnabled());
    }

    void logsUnderASubsystemAndCategoryOfItsOwn()
    {
        Fixture f;
        f.item.unregisterError = u"busy"_s;
        const QtMessageHandler before = qInstallMessageHandler(keepCategory);
        f.launchAtLogin.setIsEnabled(false);
        qInstallMessageHandler(before);
        QCOMPARE(lastCategory, QByteArray("org.ferrin.LaunchAtLogin/main"));
    }

    void announcesAChangeBeforeItAndTellsOfItAfterwards()
    {
        const LogCapture log;
        Fixture f;
        QStringList seen;
        connect(&f.observable, &LaunchAtLogin::Observable::willChange, this,
                [&] { seen.append(f.launchAtLogin.isEnabled() ? u"will, on"_s : u"will, off"_s); });
        connect(&f.launchAtLogin, &LaunchAtLogin::isEnabledChanged, this,
                [&] { seen.append(f.launchAtLogin.isEnabled() ? u"did, on"_s : u"did, off"_s); });
        f.launchAtLogin.setIsEnabled(true);
        QCOMPARE(seen, QStringList({ u"will, off"_s, u"did, on"_s }));
    }

    void tellsOfAChangeThatFailedSoThatASwitchReadsAgain()
    {
        LogCapture log;
        Fixture f;
        f.item.registerError = u"busy"_s;
        QSignalSpy willChange(&f.observable, &LaunchAtLogin::Observable::willChange);
        QSignalSpy changed(&f.launchAtLogin, &LaunchAtLogin::isEnabledChanged);
        f.launchAtLogin.setIsEnabled(true);
        QCOMPARE(willChange.size(), 1);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(log.take().size(), 1);
    }

    void tellsOfAChangeWhenTheDesktopHasMadeIt()
    {
        SlowLoginItem item;
        LaunchAtLogin launchAtLogin(item);
        QSignalSpy changed(&launchAtLogin, &LaunchAtLogin::isEnabledChanged);
        launchAtLogin.setIsEnabled(true);
        QVERIFY(changed.isEmpty());
        item.settle(LoginItemStatus::enabled);
        QCOMPARE(changed.size(), 1);
        QVERIFY(launchAtLogin.isEnabled());
    }

    void registersAnewWhenTheOldItemHasGone()
    {
        SlowLoginItem item;
        item.current = LoginItemStatus::enabled;
        LaunchAtLogin launchAtLogin(item);
        QSignalSpy changed(&launchAtLogin, &LaunchAtLogin::isEnabledChanged);
        launchAtLogin.setIsEnabled(true);
        item.settle(LoginItemStatus::notRegistered);
        QVERIFY(item.pending);
        item.settle(LoginItemStatus::enabled);
        QCOMPARE(changed.size(), 1);
        QVERIFY(launchAtLogin.isEnabled());
    }

    void logsARefusalThatComesWhenTheWindowHasGone()
    {
        LogCapture log;
        SlowLoginItem item;
        {
            LaunchAtLogin launchAtLogin(item);
            launchAtLogin.setIsEnabled(true);
        }
        item.settle(LoginItemStatus::notRegistered, u"refused"_s);
        QCOMPARE(log.take(),
                 QStringList({ u"error: Failed to enable launch at login: refused"_s }));
    }

    void announcesToTheProcessUnlessToldOtherwise()
    {
        const LogCapture log;
        FakeLoginItem item;
        LaunchAtLogin launchAtLogin(item);
        QSignalSpy willChange(&LaunchAtLogin::Observable::shared(),
                              &LaunchAtLogin::Observable::willChange);
        launchAtLogin.setIsEnabled(true);
        QCOMPARE(willChange.size(), 1);
    }
};

FERRIN_TEST(QCoreApplication, LaunchAtLoginTest)
#include "test_launchatlogin.moc"
