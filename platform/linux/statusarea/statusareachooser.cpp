// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/statusareachooser.h"

#include "base/logging.h"
#include "menubar/contrast.h"
#include "platform/linux/ownbar/ownbar.h"
#include "platform/linux/statusnotifier/statusnotifierbar.h"
#include "platform/linux/xembed/traycolors.h"
#include "platform/linux/xembed/trayitem.h"
#include "platform/linux/xembed/trayowner.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ferrin {

namespace {

// A panel that has both kinds of status area takes the tray a moment before or after the other.
constexpr std::chrono::milliseconds timeoutWithTray = 500ms;

// Of a preview. What the panel's own ground is like is not known, only what reads on it.
QColor groundFor(const QColor &text)
{
    return QColor::fromRgb(isLight(text) ? 0xff2b2b2e : 0xfff4f4f6);
}

} // namespace

StatusAreaChooser::StatusAreaChooser(const QDBusConnection &session, QObject *parent)
    : PanelAppearanceSource(parent)
    , m_trayOwner(std::make_unique<TrayOwner>())
    , m_trayColors(std::make_unique<TrayColors>(*m_trayOwner))
{
    connect(&m_colors, &PanelColors::changed, this, &StatusAreaChooser::panelAppearanceChanged);
    readTrayColors();
    connect(m_trayColors.get(), &TrayColors::changed, this, &StatusAreaChooser::readTrayColors);
    followHosts();
    if (session.isConnected()) {
        m_notifierBar = std::make_unique<StatusNotifierBar>(session, m_colors);
        connect(&m_notifierBar->resolver(), &HostResolver::found, this,
                &StatusAreaChooser::hostFound);
        connect(m_notifierBar.get(), &StatusNotifierBar::readersChanged, this,
                &StatusAreaChooser::panelAppearanceChanged);
        const auto tellStanding
            = [this] { m_notifierBar->setPanelStanding(m_trayOwner->isStanding()); };
        connect(m_trayOwner.get(), &TrayOwner::standingChanged, this, tellStanding);
        tellStanding();
    }
    m_hostTimer.setSingleShot(true);
    connect(&m_hostTimer, &QTimer::timeout, this, &StatusAreaChooser::standIn);
}

StatusAreaChooser::~StatusAreaChooser() = default;

void StatusAreaChooser::setAppearance(const StatusAreaAppearance &appearance)
{
    m_plasmaColors.refresh();
    m_waybarColors.setDesktopDark(appearance.desktopPrefersDark);
    m_colors.setAppearance(appearance);
}

void StatusAreaChooser::followHosts()
{
    connect(&m_barColors, &BarColors::changed, this, [this] {
        m_colors.setPanelText("swaybar"_L1, m_barColors.text());
        m_colors.setI3BarText(m_barColors.text());
    });
    connect(&m_barSocket, &WindowManagerSocket::renewed, this,
            [this] { m_barColors.start(m_barSocket.path()); });
    m_barColors.start(m_barSocket.path());
    follow(m_plasmaColors, "plasmashell"_L1);
    follow(m_lxqtColors, "lxqt-panel"_L1);
    follow(m_waybarColors, "waybar"_L1);
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE"_s))
        m_plasmaColors.start();
}

void StatusAreaChooser::follow(FileColors &colors, QLatin1StringView panel)
{
    connect(&colors, &FileColors::changed, this,
            [this, &colors, panel] { useColors(colors, panel); });
}

void StatusAreaChooser::useColors(const FileColors &colors, QLatin1StringView panel)
{
    m_colors.setPanelText(panel, colors.text());
    m_colors.setPanelUncertain(panel, colors.isUncertain());
}

void StatusAreaChooser::hostFound(const HostProfile &profile, const HostProcess &process)
{
    if (profile.name == "lxqt-panel"_L1)
        m_lxqtColors.start();
    if (profile.name == "waybar"_L1) {
        m_waybarColors.addBar(process.id, process.arguments);
        m_waybarColors.start();
        useColors(m_waybarColors, profile.name);
    }
}

void StatusAreaChooser::readTrayColors()
{
    m_colors.setTrayText(m_trayColors->text());
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

std::optional<PanelAppearance> StatusAreaChooser::panelAppearance() const
{
    std::optional<PanelAppearance> result;
    if (m_trayBar)
        result = PanelAppearance { .context = m_trayBar->item()->context() };
    else if (m_ownBar)
        result = PanelAppearance { .form = ItemForm::Wide, .context = m_colors.contextForOwnBar() };
    else if (m_notifierBar)
        result = m_notifierBar->panelAppearance();
    if (result)
        result->ground = groundFor(result->context.text);
    return result;
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
    m_hostTimer.start(m_trayOwner->window() ? std::min(m_hostTimeout, timeoutWithTray)
                                            : m_hostTimeout);
}

void StatusAreaChooser::hostPresentChanged(bool present)
{
    if (!present) {
        waitForHost();
        return;
    }
    m_hostTimer.stop();
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
    if (!std::exchange(m_isLackLogged, true))
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
    m_trayBar = std::make_unique<TrayBar>(m_colors);
    announceItem(former);
    m_trayBar->item()->dockInto(m_trayOwner->window());
}

void StatusAreaChooser::useOwnBar()
{
    if (m_ownBar)
        return;
    emptyItem();
    TrayBar *const former = m_trayBar.release();
    m_ownBar = std::make_unique<OwnBar>(m_colors, m_store);
    announceItem(former);
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
    announceItem(former);
}

void StatusAreaChooser::announceItem(StatusBar *former)
{
    Q_EMIT itemAvailable(item());
    Q_EMIT panelAppearanceChanged();
    // Its users have let go of the former bar's item only now.
    if (former)
        former->deleteLater();
}

} // namespace ferrin
