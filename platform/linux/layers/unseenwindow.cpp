// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/unseenwindow.h"

#include <QPainter>

namespace ferrin {

UnseenWindow::UnseenWindow(QScreen &screen, const QRect &bounds)
{
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(8);
    setFormat(format);
    setScreen(&screen);
    setGeometry(bounds);
}

UnseenWindow::~UnseenWindow()
{
    leave();
}

void UnseenWindow::showIn(LayerShell &shell, const LayerPlace &place, LayerShell::Kind kind)
{
    m_surface = shell.createSurface(*this, place, kind);
    show();
}

void UnseenWindow::leave()
{
    m_surface.reset();
    hide();
}

void UnseenWindow::end(std::unique_ptr<UnseenWindow> window)
{
    window->leave();
    window.release()->deleteLater();
}

void UnseenWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
}

} // namespace ferrin
