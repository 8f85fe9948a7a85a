// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/panelappearance.h"
#include "platform/linux/panelcolors/barcolors.h"
#include "platform/linux/panelcolors/lxqtcolors.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/panelcolors/plasmacolors.h"
#include "platform/linux/panelcolors/waybarcolors.h"
#include "platform/linux/panelcolors/windowmanagersocket.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

namespace ferrin {

class DefaultsStore;
struct HostProcess;
struct HostProfile;
class OwnBar;
class StatusBar;
class StatusItem;
class StatusNotifierBar;
class TrayBar;
class TrayColors;
class TrayOwner;

/// Decides where the application's item stands: in the desktop's status area when there is one,
/// else in the X11 tray of another program's bar, else in a small bar of our own. The item stays
/// offered to the desktop all the time; another place is taken when no host has appeared within the
/// timeout, and given up as soon as one does. Where there is no place at all, the log says so once.
/// Owned by the application; never touches what the item shows.
class StatusAreaChooser : public PanelAppearanceSource
{
    Q_OBJECT

public:
    /// `session` may be unconnected: then the own bar is all there is.
    explicit StatusAreaChooser(const QDBusConnection &session, QObject *parent = nullptr);
    ~StatusAreaChooser() override;

    /// How long a status area may take to come, or to come back after a crash, before another place
    /// stands in for it. Where there is a tray, it takes no longer than panels that bring both.
    void setHostTimeout(std::chrono::milliseconds timeout) { m_hostTimeout = timeout; }

    /// What remembers where the user keeps the own bar; it outlives this. Call before `start`.
    void setStore(DefaultsStore &store) { m_store = &store; }

    /// How the desktop looks and what the user forced. Call before `start` and at every change.
    void setAppearance(const StatusAreaAppearance &appearance);

    /// Offers the item to the desktop and announces it at once by `itemAvailable`.
    void start();

    [[nodiscard]] std::optional<PanelAppearance> panelAppearance() const override;

    /// The bar in use, from `start` on.
    [[nodiscard]] StatusBar *bar() const;
    /// The item in use, from `start` on.
    [[nodiscard]] StatusItem *item() const;

Q_SIGNALS:
    /// The item to use from now on: fill it and listen to it. The previous one has lost its
    /// content, emits nothing any more and may be deleted on return to the event loop.
    void itemAvailable(ferrin::StatusItem *item);

private:
    void followHosts();
    void follow(FileColors &colors, QLatin1StringView panel);
    void useColors(const FileColors &colors, QLatin1StringView panel);
    void hostFound(const HostProfile &profile, const HostProcess &process);
    void readTrayColors();
    void hostPresentChanged(bool present);
    void trayOwnerChanged();
    [[nodiscard]] bool isHostPresent() const;
    void waitForHost();
    void standIn();
    void emptyItem();
    void useTray();
    void useOwnBar();
    void goWithout();
    void useStatusNotifier();
    /// Announces the item that is in use now, then deletes the former bar.
    void announceItem(StatusBar *former);

    PanelColors m_colors;
    DefaultsStore *m_store = nullptr;
    std::unique_ptr<TrayOwner> m_trayOwner;
    std::unique_ptr<TrayColors> m_trayColors;
    WindowManagerSocket m_barSocket;
    BarColors m_barColors;
    PlasmaColors m_plasmaColors;
    LxqtColors m_lxqtColors;
    WaybarColors m_waybarColors;
    /// Null without a session bus.
    std::unique_ptr<StatusNotifierBar> m_notifierBar;
    /// The bars that stand in: both null while the desktop's status area is in use, else one.
    std::unique_ptr<TrayBar> m_trayBar;
    std::unique_ptr<OwnBar> m_ownBar;
    bool m_isLackLogged = false;
    QTimer m_hostTimer;
    std::chrono::milliseconds m_hostTimeout { 3000 };
};

} // namespace ferrin
