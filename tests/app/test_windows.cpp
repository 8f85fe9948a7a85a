// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/windows.h"
#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "state/shareddefaults.h"
#include "tests/app/windowsplatform.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeplatform.h"
#include "updates/appupdater.h"

#include <QGuiApplication>
#include <QPluginLoader>
#include <QPointer>
#include <QScreen>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

QList<QWindow *> visibleWindows(const QString &title)
{
    QList<QWindow *> found;
    const auto windows = QGuiApplication::topLevelWindows();
    std::ranges::copy_if(windows, std::back_inserter(found), [&](const QWindow *window) {
        return window->isVisible() && window->title() == title;
    });
    return found;
}

} // namespace

/// The real module, loaded as the program loads it.
class WindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void showsOneWindowWhenTheSettingsAreOpenedTwice();
    void opensNothingByAnotherIdentifier();
    void showsTheWindowOfUpdatesWhileThereIsSomethingToShow();
    void letsNobodyResizeTheSettings();
    void placesTheSettingsInTheMiddleOfTheScreen();
    void placesTheSettingsWhereTheyWereLeft();
    void asksNoPlaceWhereTheDesktopGivesNone();
    void showsTheProgramsIconInTheListsOfWindows();
    void makesTheSettingsReadyWhenThePointerComesToTheirEntry();
    void dropsTheDashboardWhenItCloses();
    void closesTheDashboardByEscape();
    void knowsTheWindowsOfTheDashboard();
    void saysThatTheDashboardLostTheFocusAndLeavesItOpen();

private:
    test::FakeRegistry m_registry;
    test::FakePowerSources m_powerSources;
    test::FakeProcessLauncher m_launcher;
    test::FakeUpdatePlatform m_updates;
    test::FakeWindowsPlatform m_platform;
    std::unique_ptr<Windows> m_windows;
};

void WindowsTest::initTestCase()
{
    QGuiApplication::setApplicationName(u"Ferrin"_s);
    setSharedDefaults(std::make_unique<test::MemoryDefaultsStore>());
    BatteryDataProvider::setPlatform({ .registry = m_registry,
                                       .powerSources = m_powerSources,
                                       .processLauncher = m_launcher,
                                       .storedData = &StoredData::shared });
    AppUpdater::setParts(m_updates.parts(sharedDefaults()));
}

void WindowsTest::cleanup()
{
    m_windows.reset();
    m_platform.popovers.places = true;
    sharedDefaults().removeObject(u"settingsWindowPlace"_s);
}

void WindowsTest::init()
{
    QPluginLoader loader(QStringLiteral(FERRIN_WINDOWS_MODULE));
    auto *const factory = qobject_cast<WindowsFactory *>(loader.instance());
    QVERIFY2(factory, qPrintable(loader.errorString()));
    m_windows.reset();
    m_windows = factory->create(m_platform.all());
    m_windows->dashboardClosed = m_windows->dashboardLostFocus = [] {};
}

void WindowsTest::showsOneWindowWhenTheSettingsAreOpenedTwice()
{
    m_windows->openWindow(u"FerrinSettings"_s, {});
    m_windows->openWindow(u"FerrinSettings"_s, {});
    QCOMPARE(visibleWindows(u"Ferrin Settings"_s).size(), 1);
}

void WindowsTest::opensNothingByAnotherIdentifier()
{
    m_windows->openWindow(u"FerrinSetting"_s, {});
    QVERIFY(visibleWindows(u"Ferrin Settings"_s).isEmpty());
}

void WindowsTest::showsTheWindowOfUpdatesWhileThereIsSomethingToShow()
{
    Updater &updater = *AppUpdater::shared().controller()->updater();
    updater.checkForUpdates();
    m_windows->openWindow(u"FerrinUpdate"_s, {});
    QCOMPARE(visibleWindows(u"Software Update"_s).size(), 1);
    updater.session().cancel();
    QVERIFY(visibleWindows(u"Software Update"_s).isEmpty());
}

void WindowsTest::letsNobodyResizeTheSettings()
{
    m_windows->openWindow(u"FerrinSettings"_s, {});
    const QWindow *const window = visibleWindows(u"Ferrin Settings"_s).first();
    QCOMPARE(window->minimumSize(), window->size());
    QCOMPARE(window->maximumSize(), window->size());
    QCOMPARE(window->size(), QSize(701, 500));
}

void WindowsTest::placesTheSettingsInTheMiddleOfTheScreen()
{
    m_windows->openWindow(u"FerrinSettings"_s, {});
    const QWindow *const window = visibleWindows(u"Ferrin Settings"_s).first();
    QCOMPARE(window->geometry().center(),
             QGuiApplication::primaryScreen()->availableGeometry().center());
}

void WindowsTest::placesTheSettingsWhereTheyWereLeft()
{
    m_windows->openWindow(u"FerrinSettings"_s, {});
    QWindow *const window = visibleWindows(u"Ferrin Settings"_s).first();
    window->setPosition(41, 52);
    QVERIFY(window->close());
    m_windows->openWindow(u"FerrinSettings"_s, {});
    QCOMPARE(window->position(), QPoint(41, 52));
    QVERIFY(window->close());
    // As the next start does.
    init();
    m_windows->openWindow(u"FerrinSettings"_s, {});
    QCOMPARE(visibleWindows(u"Ferrin Settings"_s).first()->position(), QPoint(41, 52));
}

void WindowsTest::asksNoPlaceWhereTheDesktopGivesNone()
{
    m_platform.popovers.places = false;
    init();
    m_windows->openWindow(u"FerrinSettings"_s, {});
    visibleWindows(u"Ferrin Settings"_s).first()->setPosition(41, 52);
    QVERIFY(visibleWindows(u"Ferrin Settings"_s).first()->close());
    QVERIFY(!sharedDefaults().string(u"settingsWindowPlace"_s));
}

void WindowsTest::showsTheProgramsIconInTheListsOfWindows()
{
    m_windows->openWindow(u"FerrinSettings"_s, {});
    const QWindow *const window = visibleWindows(u"Ferrin Settings"_s).first();
    QTRY_VERIFY(!window->icon().pixmap(32).isNull());
}

void WindowsTest::makesTheSettingsReadyWhenThePointerComesToTheirEntry()
{
    const auto isReady = [] {
        return std::ranges::any_of(QGuiApplication::allWindows(), [](const QWindow *window) {
            return window->objectName() == u"FerrinSettings";
        });
    };
    m_windows->showDashboard({ .item { 100, 10, 1, 1 } });
    QWindow *const dashboard = visibleWindows(u"Ferrin"_s).first();
    QVERIFY(QTest::qWaitForWindowExposed(dashboard));
    QVERIFY(!isReady());
    // Down the menu, the last entry of which it is.
    for (int y = 0; y < dashboard->height() && !isReady(); y += 4) {
        QTest::mouseMove(dashboard, QPoint(70, y));
        QTest::qWait(40);
    }
    QVERIFY(isReady());
    QVERIFY(visibleWindows(u"Ferrin Settings"_s).isEmpty());
}

void WindowsTest::dropsTheDashboardWhenItCloses()
{
    m_windows->showDashboard({ .item { 100, 10, 1, 1 } });
    QCOMPARE(visibleWindows(u"Ferrin"_s).size(), 1);
    const QPointer<QWindow> window = visibleWindows(u"Ferrin"_s).first();
    m_windows->hideDashboard();
    QTRY_VERIFY(window.isNull());
}

void WindowsTest::closesTheDashboardByEscape()
{
    int closed = 0;
    m_windows->dashboardClosed = [&] { ++closed; };
    m_windows->showDashboard({ .item { 100, 10, 1, 1 } });
    QTest::keyClick(visibleWindows(u"Ferrin"_s).first(), Qt::Key_Escape);
    QCOMPARE(closed, 1);
}

void WindowsTest::knowsTheWindowsOfTheDashboard()
{
    QWindow other;
    QVERIFY(!m_windows->isOfDashboard(other));
    m_windows->showDashboard({});
    QWindow *const dashboard = visibleWindows(u"Ferrin"_s).first();
    QWindow explanation;
    explanation.setTransientParent(dashboard);
    QVERIFY(m_windows->isOfDashboard(*dashboard));
    QVERIFY(m_windows->isOfDashboard(explanation));
    QVERIFY(!m_windows->isOfDashboard(other));
}

void WindowsTest::saysThatTheDashboardLostTheFocusAndLeavesItOpen()
{
    int lost = 0;
    m_windows->dashboardLostFocus = [&] { ++lost; };
    m_windows->showDashboard({});
    QWindow *const dashboard = visibleWindows(u"Ferrin"_s).first();
    QVERIFY(QTest::qWaitForWindowActive(dashboard));
    QWindow other;
    other.show();
    // A popover that has just opened asks for the focus back.
    QTRY_VERIFY((other.requestActivate(), lost > 0));
    QVERIFY(dashboard->isVisible());
}

QTEST_MAIN(WindowsTest)
#include "test_windows.moc"
