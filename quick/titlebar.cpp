// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/titlebar.h"

#include "popover/popoverdesktop.h"
#include "state/applicationappearance.h"

#include <QPlatformSurfaceEvent>
#include <QWindow>

namespace ferrin {

TitleBar::TitleBar(QWindow &window, PopoverDesktop &desktop)
    : m_window(window)
    , m_desktop(desktop)
{
    window.installEventFilter(this);
    if (const ApplicationAppearance *const appearance = ApplicationAppearance::shared())
        m_isDark.setBinding([appearance] { return appearance->isDark(); });
    m_follower = m_isDark.addNotifier([this] {
        if (m_window.handle())
            dress();
    });
}

bool TitleBar::eventFilter(QObject *watched, QEvent *event)
{
    // Window managers look when the window is shown, which is later.
    if (event->type() == QEvent::PlatformSurface
        && static_cast<QPlatformSurfaceEvent &>(*event).surfaceEventType()
            == QPlatformSurfaceEvent::SurfaceCreated)
        dress();
    return QObject::eventFilter(watched, event);
}

void TitleBar::dress()
{
    m_desktop.setTitleBarDark(m_window, m_isDark);
}

} // namespace ferrin
