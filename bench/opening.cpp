// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// From a click to the first frame: `bench_opening MODULE COUNT` opens the dashboard of a module of
// windows again and again and prints one line of milliseconds for each opening. As the program, it
// knows nothing of Qt Quick before the first.

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
#include <QPluginLoader>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <utility>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

constexpr int dashboardWidth = 370;

/// The desktop's font, as the item has it.
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
        // What the item has done long before the first click.
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
            m_windows->dashboardClosed = m_windows->dashboardLostFocus = [] {};
        }
        m_windows->showDashboard({ .item = QRect(400, 0, 24, 24) });
    }
    void close() { m_windows->hideDashboard(); }

private:
    QString m_module;
    DesktopAppearance m_appearance;
    test::FakeRegistry m_registry;
    test::FakePowerSources m_powerSources;
    test::FakeProcessLauncher m_launcher;
    test::FakeUpdatePlatform m_updates;
    test::FakeWindowsPlatform m_platform;
    std::unique_ptr<Windows> m_windows;
};

double millisecondsToFirstFrame(Opener &opener)
{
    QElapsedTimer timer;
    timer.start();
    opener.open();
    QEventLoop loop;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window->width() >= dashboardWidth)
            QObject::connect(window, SIGNAL(frameSwapped()), &loop, SLOT(quit()));
    }
    loop.exec();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Lets the closed window go before the next one comes.
void settle()
{
    QEventLoop loop;
    QTimer::singleShot(300, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication::setDesktopSettingsAware(false);
    const QGuiApplication app(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    Opener opener(app.arguments().value(1));
    for (int i = 0; i < app.arguments().value(2).toInt(); ++i) {
        std::printf("%.2f\n", millisecondsToFirstFrame(opener));
        opener.close();
        settle();
    }
    return EXIT_SUCCESS;
}
