// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/statusarea.h"

#include "platform/linux/statusarea/ownbar.h"
#include "platform/linux/statusarea/statusnotifierbar.h"
#include "platform/linux/statusarea/traycolours.h"
#include "platform/linux/statusarea/trayitem.h"
#include "platform/linux/statusarea/x11trayowner.h"
#include "base/logging.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ferrin {

namespace {

// A panel that has both kinds of status area takes the tray a moment before or after the other.
constexpr std::chrono::milliseconds patienceWithTray = 500ms;

} // namespace

StatusAreaChooser::StatusAreaChooser(const QDBusConnection &session, QObject *parent)
    : QObject(parent)
    , m_trayOwner(std::make_unique<TrayOwner>())
    , m_trayColours(std::make_unique<TrayColours>(*m_trayOwner))
{
    readTrayColours();
    connect(m_trayColours.get(), &TrayColours::changed, this, &StatusAreaChooser::readTrayColours);
    followHosts();
    if (session.isConnected()) {
        m_notifierBar = std::make_unique<StatusNotifierBar>(session, m_colours);
        connect(&m_notifierBar->resolver(), &HostResolver::found, this,
                &StatusAreaChooser::hostFound);
    }
    m_patienceTimer.setSingleShot(true);
    connect(&m_patienceTimer, &QTimer::timeout, this, &StatusAreaChooser::standIn);
}

StatusAreaChooser::~StatusAreaChooser() = default;

void StatusAreaChooser::setAppearance(const StatusAreaAppearance &appearance)
{
    m_plasmaColours.refresh();
    m_colours.setAppearance(appearance);
}

void StatusAreaChooser::followHosts()
{
    connect(&m_barColours, &BarColours::changed, this, [this] {
        m_colours.setHostText(profileForProcess(u"swaybar"), m_barColours.text());
        m_colours.setI3BarText(m_barColours.text());
    });
    connect(&m_barSocket, &WindowManagerSocket::renewed, this,
            [this] { m_barColours.start(m_barSocket.path()); });
    m_barColours.start(m_barSocket.path());
    follow(m_plasmaColours, u"plasmashell");
    follow(m_lxqtColours, u"lxqt-panel");
    follow(m_waybarColours, u"waybar");
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE"_s))
        m_plasmaColours.start();
}

void StatusAreaChooser::follow(FileColours &colours, QStringView process)
{
    connect(&colours, &FileColours::changed, this,
            [this, &colours, &profile = profileForProcess(process)] {
                m_colours.setHostText(profile, colours.text());
            });
}

void StatusAreaChooser::hostFound(const HostProfile &profile, uint processId)
{
    if (profile.name == "lxqt-panel"_L1)
        m_lxqtColours.start();
    if (profile.name == "waybar"_L1) {
        m_waybarColours.setArguments(argumentsFromKernel(processId));
        m_waybarColours.start();
    }
}

void StatusAreaChooser::readTrayColours()
{
    m_colours.setTrayText(m_trayColours->text());
}

void StatusAreaChooser::start()
{
    connect(m_trayOwner.get(), &TrayOwner::changed, this, &StatusAreaChooser::trayOwnerChanged);
    if (!m_notifierBar) {
        standIn();
        return;
    }
    connect(&m_notifierBar->registration(), &ItemRegistration::hostPresentChanged, this,
            &StatusAreaChooser::hostPresentChanged);
    m_notifierBar->start();
    waitForHost();
    Q_EMIT itemAvailable(item());
}

StatusBar *StatusAreaChooser::bar() const
{
    if (m_trayBar)
        return m_trayBar.get();
    if (m_ownBar)
        return m_ownBar.get();
    return m_notifierBar.get();
}

StatusItem *StatusAreaChooser::item() const
{
    StatusBar *const inUse = bar();
    return inUse ? inUse->item() : nullptr;
}

bool StatusAreaChooser::isHostPresent() const
{
    return m_notifierBar && m_notifierBar->registration().isHostPresent();
}

void StatusAreaChooser::waitForHost()
{
    m_patienceTimer.start(m_trayOwner->window() ? std::min(m_patience, patienceWithTray)
                                                : m_patience);
}

void StatusAreaChooser::hostPresentChanged(bool present)
{
    if (!present) {
        waitForHost();
        return;
    }
    m_patienceTimer.stop();
    if (m_ownBar || m_trayBar)
        useStatusNotifier();
}

void StatusAreaChooser::trayOwnerChanged()
{
    // A bar that is restarted gets its item back at once.
    if (m_trayBar)
        m_trayBar->item()->dockInto(m_trayOwner->window());
    if (!isHostPresent())
        waitForHost();
}

void StatusAreaChooser::standIn()
{
    if (m_trayOwner->window())
        useTray();
    else if (!m_notifierBar || OwnBar::isPossible())
        useOwnBar();
    else
        goWithout();
}

void StatusAreaChooser::goWithout()
{
    if (!std::exchange(m_isWantTold, true))
        qCInfo(logger, "This session has no place for an item; start Ferrin again to open it");
}

void StatusAreaChooser::emptyItem()
{
    if (StatusItem *const inUse = item())
        inUse->removeContentViews();
}

void StatusAreaChooser::useTray()
{
    if (m_trayBar)
        return;
    emptyItem();
    OwnBar *const former = m_ownBar.release();
    m_trayBar = std::make_unique<TrayBar>(m_colours);
    tellOfItem(former);
    m_trayBar->item()->dockInto(m_trayOwner->window());
}

void StatusAreaChooser::useOwnBar()
{
    if (m_ownBar)
        return;
    emptyItem();
    TrayBar *const former = m_trayBar.release();
    m_ownBar = std::make_unique<OwnBar>(m_colours, m_store);
    tellOfItem(former);
    m_ownBar->show();
}

void StatusAreaChooser::useStatusNotifier()
{
    emptyItem();
    StatusBar *former = m_trayBar.release();
    if (OwnBar *const ownBar = m_ownBar.release()) {
        ownBar->hide();
        former = ownBar;
    }
    tellOfItem(former);
}

void StatusAreaChooser::tellOfItem(StatusBar *former)
{
    Q_EMIT itemAvailable(item());
    // Whoever used the former bar's item might do so until now.
    if (former)
        former->deleteLater();
}

} // namespace ferrin
