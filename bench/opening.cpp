// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// From a click to the first frame: `bench_opening MODULE WHAT COUNT` opens something of a module of
// windows again and again and prints one line of milliseconds for each opening. WHAT is
// "dashboard", before whose first opening, as in the program, nothing is known of Qt Quick;
// "settings", opened by a click on the dashboard's entry after the pointer has come to it; or
// "icons", the largest popover of icons in them, of which the time of the processor is told until
// all is at rest.

#include "app/windows.h"
#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "menubar/textview.h"
#include "state/applicationappearance.h"
#include "state/shareddefaults.h"
#include "tests/app/windowsplatform.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeplatform.h"
#include "updates/appupdater.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPluginLoader>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <optional>
#include <utility>

using namespace ferrin;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int dashboardWidth = 370;
constexpr int settingsWidth = 700;
constexpr auto latestFrame = 20s;
/// Longer than the dashboard waits before it makes the settings ready.
constexpr auto overAnEntry = 60ms;

/// The desktop's font, as in the item.
struct DesktopAppearance final : ApplicationAppearance
{
    DesktopAppearance() { m_fontFamily = u"DejaVu Sans"_s; }
    void setAppearance(std::optional<Appearance>) override { }
};

class Opener
{
public:
    explicit Opener(QString module)
        : m_module(std::move(module))
    {
        setSharedDefaults(std::make_unique<test::MemoryDefaultsStore>());
        BatteryDataProvider::setPlatform({ .registry = m_registry,
                                           .powerSources = m_powerSources,
                                           .processLauncher = m_launcher,
                                           .storedData = &StoredData::shared });
        AppUpdater::setParts(m_updates.parts(sharedDefaults()));
        // Done by the item long before the first click.
        [[maybe_unused]] auto &provider = BatteryDataProvider::shared();
        [[maybe_unused]] const QSizeF text = TextView { .text = u"37%"_s }.idealSize(
            { .text = {}, .red = {}, .fontFamily = m_appearance.fontFamily() });
    }
    void open()
    {
        if (!m_windows) {
            QPluginLoader loader(m_module);
            auto *const factory = qobject_cast<WindowsFactory *>(loader.instance());
            if (!factory)
                qFatal("%s", qUtf8Printable(loader.errorString()));
            m_windows = factory->create(m_platform.all());
            m_windows->dashboardClosed = [this] { close(); };
            m_windows->dashboardLostFocus = [] {};
        }
        m_windows->showDashboard(m_item);
    }
    void close() { m_windows->hideDashboard(); }
    void openSettings() { m_windows->openWindow(u"FerrinSettings"_s, m_item); }

private:
    const ItemPlace m_item { .item = QRect(400, 0, 24, 24) };
    QString m_module;
    DesktopAppearance m_appearance;
    test::FakeRegistry m_registry;
    test::FakePowerSources m_powerSources;
    test::FakeProcessLauncher m_launcher;
    test::FakeUpdatePlatform m_updates;
    test::FakeWindowsPlatform m_platform;
    std::unique_ptr<Windows> m_windows;
};

QWindow *shownWindow(int leastWidth)
{
    const auto windows = QGuiApplication::topLevelWindows();
    const auto found = std::ranges::find_if(windows, [&](const QWindow *window) {
        return window->isVisible() && window->width() >= leastWidth;
    });
    if (found == windows.end())
        qFatal("The window is not shown");
    return *found;
}

double millisecondsToFirstFrame(int leastWidth, const std::function<void()> &open)
{
    QElapsedTimer timer;
    timer.start();
    open();
    QEventLoop loop;
    QObject::connect(shownWindow(leastWidth), SIGNAL(frameSwapped()), &loop, SLOT(quit()));
    QTimer::singleShot(latestFrame, &loop, [] { qFatal("The window showed no frame"); });
    loop.exec();
    return double(timer.nsecsElapsed()) / 1e6;
}

void wait(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Waits until the closed window is destroyed.
void settle()
{
    wait(300ms);
}

double openDashboard(Opener &opener)
{
    const double taken = millisecondsToFirstFrame(dashboardWidth, [&] { opener.open(); });
    opener.close();
    settle();
    return taken;
}

void sendMouse(QWindow &window, QEvent::Type type, QPointF place)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, place, window.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

bool areSettingsReady()
{
    return std::ranges::any_of(QGuiApplication::allWindows(), [](const QWindow *window) {
        return window->objectName() == u"FerrinSettings";
    });
}

/// The place of the dashboard's entry that opens the settings, which makes them ready when the
/// pointer comes to it; a bare window has none. How the windows are made is not known here.
std::optional<QPointF> settingsEntry(QWindow &dashboard)
{
    constexpr int withinTheMenu = 90;
    for (int y = 0; y < dashboard.height(); y += 8) {
        const QPointF place(withinTheMenu, y);
        sendMouse(dashboard, QEvent::MouseMove, place);
        wait(overAnEntry);
        if (areSettingsReady())
            return place;
    }
    return std::nullopt;
}

double openSettings(Opener &opener, const std::optional<QPointF> &entry)
{
    opener.open();
    settle();
    QWindow &dashboard = *shownWindow(dashboardWidth);
    std::function<void()> click = [&] {
        opener.close();
        opener.openSettings();
    };
    if (entry) {
        sendMouse(dashboard, QEvent::MouseMove, *entry);
        settle();
        sendMouse(dashboard, QEvent::MouseButtonPress, *entry);
        click = [&] { sendMouse(dashboard, QEvent::MouseButtonRelease, *entry); };
    }
    const double taken = millisecondsToFirstFrame(settingsWidth, click);
    shownWindow(settingsWidth)->close();
    settle();
    return taken;
}

/// The control that offers the most icons.
QObject *iconsButton(const QWindow &settings)
{
    constexpr auto count = [](const QObject *button) {
        const auto *const choices = button->property("choices").value<QObject *>();
        return choices->property("icons").toStringList().size();
    };
    QObject *button = nullptr;
    for (QObject *each : settings.findChildren<QObject *>()) {
        const bool isButton = QByteArray(each->metaObject()->className())
                                  .startsWith("SettingsMBIPopoverButtonView");
        if (isButton && (!button || count(each) > count(button)))
            button = each;
    }
    if (!button)
        qFatal("No icons can be chosen");
    return button;
}

double openIcons(QObject &button)
{
    const std::clock_t begun = std::clock();
    QMetaObject::invokeMethod(&button, "pressed");
    settle();
    const std::clock_t taken = std::clock() - begun;
    QMetaObject::invokeMethod(&button, "pressed");
    settle();
    return 1e3 * double(taken) / CLOCKS_PER_SEC;
}

std::function<double()> openingOf(const QString &what, Opener &opener)
{
    if (what == u"dashboard")
        return [&opener] { return openDashboard(opener); };
    opener.open();
    settle();
    const std::optional<QPointF> entry = settingsEntry(*shownWindow(dashboardWidth));
    opener.close();
    settle();
    if (what == u"settings")
        return [&opener, entry] { return openSettings(opener, entry); };
    opener.openSettings();
    settle();
    return [button = iconsButton(*shownWindow(settingsWidth))] { return openIcons(*button); };
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication::setDesktopSettingsAware(false);
    const QGuiApplication app(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QGuiApplication::arguments();
    Opener opener(arguments.value(1));
    const std::function<double()> open = openingOf(arguments.value(2), opener);
    for (int i = 0; i < arguments.value(3).toInt(); ++i)
        std::printf("%.2f\n", open());
    return EXIT_SUCCESS;
}
