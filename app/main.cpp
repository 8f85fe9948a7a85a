// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/ferrinapp.h"
#include "app/powerplatform.h"
#include "app/windowsmodule.h"
#include "menubar/menubaritemprovider.h"
#include "menubar/statusitem.h"
#include "platform/linux/statusarea/statusarea.h"
#include "state/applicationappearance.h"
#include "state/bundle.h"
#include "state/displayswitches.h"
#include "state/filedefaultsstore.h"
#include "state/settingsdata.h"
#include "state/shareddefaults.h"

#include <QDBusConnection>
#include <QFont>
#include <QGuiApplication>
#include <QStandardPaths>

namespace {
using namespace ferrin;

class PlainAppearance final : public ApplicationAppearance
{
public:
    void setAppearance(std::optional<Appearance>) override { }
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    QGuiApplication app(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    PlainAppearance appearance;
    setSharedDefaults(FileDefaultsStore::open(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
        Bundle::main().identifier()));

    PowerPlatform power(QDBusConnection::systemBus());
    BatteryDataProvider::setPlatform(power.parts());

    StatusAreaChooser statusArea(QDBusConnection::sessionBus());
    StatusAreaAppearance look;
    look.fontFamily = QGuiApplication::font().family();
    statusArea.setAppearance(look);

    FerrinApp ferrin({ .loadWindows = &loadWindows, .fillStatusItem = [](StatusItem &item) {
                          MenuBarItemProvider::shared().setStatusItem(item);
                          MenuBarItemProvider::shared().update();
                      } });
    QObject::connect(&statusArea, &StatusAreaChooser::itemAvailable, &ferrin, [&] {
        static const bool once = [&] {
            MenuBarItemProvider::setParts({ *statusArea.bar(),
                                            [&]() -> BatteryDataProvider & {
                                                auto &provider = BatteryDataProvider::shared();
                                                power.refreshEarly(provider);
                                                return provider;
                                            },
                                            SettingsData::shared(),
                                            DisplaySwitches::shared(),
                                            { Qt::black, Qt::red, look.fontFamily } });
            QObject::connect(&MenuBarItemProvider::shared(), &MenuBarItemProvider::quitRequested, &app, &QCoreApplication::quit);
            return true;
        }();
        (void)once;
        ferrin.useStatusBar(*statusArea.bar());
    });
    statusArea.start();
    return QGuiApplication::exec();
}
