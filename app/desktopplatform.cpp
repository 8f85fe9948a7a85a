// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/desktopplatform.h"

#include "menubar/statusitem.h"
#include "platform/linux/popovers/desktoppopovers.h"
#include "platform/linux/sandbox/sandbox.h"
#include "platform/linux/session/autostartentry.h"
#include "platform/linux/session/desktopnames.h"
#include "platform/linux/session/portalloginitem.h"
#include "state/shareddefaults.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace ferrin {

namespace {

std::unique_ptr<LoginItem> makeLoginItem(const QDBusConnection &sessionBus,
                                         const QString &identifier)
{
    const QString program = QCoreApplication::applicationFilePath();
    if (isInSandbox())
        return std::make_unique<PortalLoginItem>(sessionBus, sharedDefaults(),
                                                 QFileInfo(program).fileName());
    return std::make_unique<AutostartEntry>(identifier, program);
}

} // namespace

DesktopPlatform::DesktopPlatform(const QDBusConnection &sessionBus, const QString &identifier)
    : m_appearance(sessionBus)
    , m_statusArea(sessionBus)
    , m_presses(makePressWatcher())
    , m_popovers(makePopoverDesktop())
    , m_links(m_programs, currentDesktopNames(),
              QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
    , m_loginItem(makeLoginItem(sessionBus, identifier))
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
                                .fontFamily = m_appearance.fontFamily(),
                                .textScale = m_appearance.textScale(),
                                .isHighContrast = m_appearance.isHighContrast() };
    if (const auto accent = m_appearance.accent())
        look.accent
            = QColor::fromRgbF(float(accent->red), float(accent->green), float(accent->blue));
    if (const auto forced = m_appearance.forcedAppearance())
        look.forcedDark = *forced == Appearance::dark;
    m_statusArea.setAppearance(look);
    Q_EMIT measuringContextChanged();
}

} // namespace ferrin
