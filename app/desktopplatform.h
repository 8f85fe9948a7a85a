// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/installation.h"
#include "app/windows.h"
#include "platform/linux/session/desktoplinkopener.h"
#include "platform/linux/session/programstarter.h"
#include "platform/linux/session/systemappearance.h"
#include "platform/linux/statusarea/statusareachooser.h"
#include "state/loginitem.h"

#include <QObject>

#include <memory>

namespace ferrin {

class MenuBarItemProvider;
class PopoverDesktop;
class PressWatcher;

/// How the application looks on this desktop and where its item stands, wired to each other: the
/// item's colours and font follow the desktop's and the user's choice. Owned by `main`, for the
/// life of the process.
class DesktopPlatform final : public QObject
{
    Q_OBJECT

public:
    /// The login item is named after the identifier.
    DesktopPlatform(const QDBusConnection &sessionBus, const QString &identifier);
    ~DesktopPlatform() override;

    /// Offers the item to the desktop; `itemAvailable` follows.
    void start();

    [[nodiscard]] StatusBar &statusBar() const { return *m_statusArea.bar(); }

    /// What the windows need of the desktop.
    [[nodiscard]] PressWatcher &presses() noexcept { return *m_presses; }
    [[nodiscard]] WindowsPlatform windows() noexcept
    {
        return { *m_popovers, m_statusArea, *m_loginItem, m_links, vendor() };
    }

    /// What the item's widths are measured with.
    [[nodiscard]] ViewContext measuringContext() const;

Q_SIGNALS:
    /// From now on the item stands in `statusBar()`.
    void itemAvailable();
    void measuringContextChanged();

private:
    void followAppearance();

    SystemAppearance m_appearance;
    StatusAreaChooser m_statusArea;
    std::unique_ptr<PressWatcher> m_presses;
    std::unique_ptr<PopoverDesktop> m_popovers;
    DetachedProgramStarter m_programs;
    DesktopLinkOpener m_links;
    std::unique_ptr<LoginItem> m_loginItem;
};

} // namespace ferrin
