// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/desktopplatform.h"
#include "app/ferrinapp.h"
#include "app/powerplatform.h"
#include "app/updateplatform.h"
#include "app/windowsmodule.h"
#include "menubar/menubaritemprovider.h"
#include "platform/linux/session/applicationsetup.h"
#include "platform/linux/session/loghandler.h"
#include "platform/linux/session/memorytrimmer.h"
#include "platform/linux/session/programfile.h"
#include "platform/linux/session/singleinstance.h"
#include "platform/linux/session/termination.h"
#include "state/bundle.h"
#include "state/displayswitches.h"
#include "state/filedefaultsstore.h"
#include "state/settingsdata.h"
#include "state/shareddefaults.h"
#include "updates/appupdater.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QStandardPaths>

#include <utility>

using namespace ferrin;

namespace {

void describe(const Bundle &bundle)
{
    // Not as the display name, which would follow every window's own title.
    QGuiApplication::setApplicationName(QStringLiteral("Ferrin"));
    QGuiApplication::setApplicationVersion(bundle.shortVersion());
    QGuiApplication::setDesktopFileName(bundle.identifier());
    // The item, not a window, is what keeps the application alive.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

/// Makes the process-wide provider of the item's content; what that shows is read when it is first
/// built.
void prepareItem(const DesktopPlatform &desktop, PowerPlatform &power)
{
    MenuBarItemProvider::setParts(
        { .statusBar = desktop.statusBar(),
          .battery = []() -> BatteryDataProvider & { return BatteryDataProvider::shared(); },
          .settings = SettingsData::shared(),
          .switches = DisplaySwitches::shared(),
          .context = desktop.measuringContext() });
    auto &item = MenuBarItemProvider::shared();
    QObject::connect(&desktop, &DesktopPlatform::measuringContextChanged, &item,
                     [&] { item.setContext(desktop.measuringContext()); });
    QObject::connect(&item, &MenuBarItemProvider::quitRequested, qApp, &QCoreApplication::quit);
    power.refreshEarly();
}

void fillStatusItem(StatusItem &item)
{
    MenuBarItemProvider::shared().setStatusItem(item);
    MenuBarItemProvider::shared().update();
}

/// From the first item to the end. All that it makes is gone when it returns.
int runApplication(const Bundle &bundle, const QString &path)
{
    const QDBusConnection session = QDBusConnection::sessionBus();
    SingleInstance instance(session, bundle.identifier());
    if (!instance.acquire()) {
        if (!QCoreApplication::arguments().contains(backgroundOption))
            instance.activateOther();
        return EXIT_SUCCESS;
    }
    const Termination termination(session);

    setSharedDefaults(FileDefaultsStore::open(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
        bundle.identifier()));
    PowerPlatform power(QDBusConnection::systemBus());
    BatteryDataProvider::setPlatform(power.parts());
    DesktopPlatform desktop(session, bundle.identifier());
    UpdatePlatform updates(QDBusConnection::systemBus(), session, path);
    AppUpdater::setParts(updates.parts());

    const ProgramFile program(path);
    MemoryTrimmer memory;
    FerrinApp ferrin({ .loadWindows = [&]() -> std::unique_ptr<Windows> {
                          // The module is that of the other program by now.
                          if (program.isReplaced()) {
                              QCoreApplication::exit(ProgramFile::startsAnew);
                              return nullptr;
                          }
                          memory.rememberLibraries();
                          return loadWindows(desktop.windows());
                      },
                       .presses = &desktop.presses(),
                       .fillStatusItem =
                           [&, first = true](StatusItem &item) mutable {
                               if (std::exchange(first, false))
                                   prepareItem(desktop, power);
                               fillStatusItem(item);
                           } });
    QObject::connect(&ferrin, &FerrinApp::isDashboardShownChanged, &memory,
                     [&] { ferrin.isDashboardShown() ? memory.cancel() : memory.trimSoon(); });
    QObject::connect(&program, &ProgramFile::replaced, &ferrin, [&] {
        if (!ferrin.isInUse())
            QCoreApplication::exit(ProgramFile::startsAnew);
    });
    QObject::connect(&instance, &SingleInstance::activated, &ferrin,
                     [&] { ferrin.setDashboardShown(true); });
    QObject::connect(&instance, &SingleInstance::settingsRequested, &ferrin,
                     &FerrinApp::openSettings);
    QObject::connect(&instance, &SingleInstance::quitRequested, qApp, &QCoreApplication::quit);
    QObject::connect(&desktop, &DesktopPlatform::itemAvailable, &ferrin,
                     [&] { ferrin.useStatusBar(desktop.statusBar()); });
    desktop.start();
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const Bundle &bundle = Bundle::main();
    installLogHandler(bundle.identifier());
    setUpApplication();
    int ended = EXIT_SUCCESS;
    QString path;
    {
        const QGuiApplication application(argc, argv);
        describe(bundle);
        followLayoutDirection();
        logMissingWaylandPlugin(QLibraryInfo::path(QLibraryInfo::PluginsPath));
        path = QCoreApplication::applicationFilePath();
        ended = runApplication(bundle, path);
    }
    if (ended == ProgramFile::startsAnew)
        ProgramFile::startAnew(path, argv);
    return ended;
}
