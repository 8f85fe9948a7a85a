// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/popoverdesktop.h"

#include <QPainterPath>
#include <QRegion>
#include <QWindow>

namespace ferrin {

void PopoverDesktop::prepare(QWindow &) { }

void PopoverDesktop::focus(QWindow &window)
{
    window.requestActivate();
}

void PopoverDesktop::setOutline(QWindow &window, const QPainterPath &outline)
{
    window.setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

} // namespace ferrin
