// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/waylandpopoverdesktop.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QPalette>
#include <QRect>
#include <QRegion>
#include <QWindow>

namespace ferrin {

namespace {

/// As dark as GNOME's own.
constexpr QColor darkTitleBar(0x30, 0x30, 0x30);

} // namespace

void WaylandPopoverDesktop::place(QWindow &window, const QRect &frame)
{
    QWindow *const whole = window.transientParent();
    if (!m_layers.contains(whole)) {
        PopoverDesktop::place(window, frame);
        return;
    }
    // The order of two surfaces in a layer is not defined, and only the compositor knows where the
    // parent is.
    if (window.parent() != whole)
        window.setParent(whole);
    PopoverDesktop::place(window, frame.translated(-whole->position()));
}

void WaylandPopoverDesktop::prepare(QWindow &window)
{
    if (!window.parent())
        m_layers.prepare(window, LayerShell::Kind::Popover);
}

void WaylandPopoverDesktop::setTitleBarDark(QWindow &, bool isDark)
{
    // The palette's colours are those of the title bars that Qt draws, and of nothing else here.
    QGuiApplication::setPalette(isDark ? QPalette(darkTitleBar) : QPalette());
}

void WaylandPopoverDesktop::setOutline(QWindow &window, const QPainterPath &outline)
{
    window.setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

} // namespace ferrin
