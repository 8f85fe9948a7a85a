// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/desktopplatform.h"

#include "menubar/statusitem.h"
#include "platform/linux/session/desktopnames.h"
#include "platform/linux/statusarea/waylandpopoverdesktop.h"
#include "platform/linux/statusarea/waylandpresswatcher.h"
#include "platform/linux/statusarea/x11popoverdesktop.h"
#include "platform/linux/statusarea/x11presswatcher.h"
#include "state/shareddefaults.h"

#include <QGuiApplication>

namespace ferrin {

namespace {

bool isWayland()
{
    return QGuiApplication::platformName().startsWith(u"wayland");
}

std::unique_ptr<PressWatcher> pressWatcher()
{
    if (isWayland())
        return std::make_unique<WaylandPressWatcher>();
    return std::make_unique<X11PressWatcher>();
}

std::unique_ptr<PopoverDesktop> popoverDesktop()
{
    if (isWayland())
        return std::make_unique<WaylandPopoverDesktop>();
    return std::make_unique<X11PopoverDesktop>();
}

} // namespace

DesktopPlatform::DesktopPlatform(const QDBusConnection &sessionBus, const QString &identifier)
    : m_appearance(sessionBus)
    , m_statusArea(sessionBus)
    , m_presses(pressWatcher())
    , m_popovers(popoverDesktop())
    , m_links(m_programs, currentDesktopNames())
    , m_loginItem(identifier, QCoreApplication::applicationFilePath())
{
    m_statusArea.setStore(sharedDefaults());
    connect(&m_appearance, &SystemAppearance::changed, this, &DesktopPlatform::followAppearance);
    connect(&m_statusArea, &StatusAreaChooser::itemAvailable, this,
            &DesktopPlatform::itemAvailable);
    followAppearance();
}

DesktopPlatform::~DesktopPlatform() = default;

void DesktopPlatform::start()
{
    m_statusArea.start();
}

ViewContext DesktopPlatform::measuringContext() const
{
    return { .text = Qt::black, .red = Qt::red, .fontFamily = m_appearance.fontFamily() };
}

void DesktopPlatform::followAppearance()
{
    StatusAreaAppearance look { .forcedDark = std::nullopt,
                                .desktopDark = m_appearance.isDesktopDark(),
                                .desktopPrefersDark = m_appearance.desktopPrefersDark(),
                                .fontFamily = m_appearance.fontFamily() };
    if (const auto forced = m_appearance.forcedAppearance())
        look.forcedDark = *forced == Appearance::dark;
    m_statusArea.setAppearance(look);
    Q_EMIT measuringContextChanged();
}

} // namespace ferrin
