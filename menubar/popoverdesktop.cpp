// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/popoverdesktop.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QRegion>
#include <QWindow>

namespace ferrin {

void PopoverDesktop::place(QWindow &window, const QRect &frame)
{
    window.setGeometry(frame);
}

void PopoverDesktop::prepare(QWindow &) { }

void PopoverDesktop::focus(QWindow &window)
{
    window.requestActivate();
}

void PopoverDesktop::setOutline(QWindow &window, const QPainterPath &outline)
{
    // The others draw no pointer that could press.
    if (QGuiApplication::platformName().startsWith(u"wayland"))
        window.setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

} // namespace ferrin
