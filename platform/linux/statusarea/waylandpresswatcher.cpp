// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/waylandpresswatcher.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QTouchEvent>

#include <utility>

namespace ferrin {

class WaylandPressWatcher::Pane final : public QRasterWindow
{
public:
    Pane(LayerShell &shell, QScreen *screen, WaylandPressWatcher &watcher)
        : m_watcher(watcher)
    {
        setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
        QSurfaceFormat format = requestedFormat();
        format.setAlphaBufferSize(8);
        setFormat(format);
        setScreen(screen);
        setGeometry(screen->geometry());
        m_surface = shell.dress(
            *this, { .edges = Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge },
            LayerShell::Kind::Bar);
        show();
    }

    ~Pane() override { end(); }

    void end()
    {
        m_surface.reset();
        hide();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
    }

    void mousePressEvent(QMouseEvent *) override { Q_EMIT m_watcher.pressed(nullptr); }
    void touchEvent(QTouchEvent *event) override
    {
        if (event->type() == QEvent::TouchBegin)
            Q_EMIT m_watcher.pressed(nullptr);
    }

private:
    WaylandPressWatcher &m_watcher;
    std::unique_ptr<LayerSurface> m_surface;
};

WaylandPressWatcher::WaylandPressWatcher(QObject *parent)
    : PressWatcher(parent)
{
}

WaylandPressWatcher::~WaylandPressWatcher() = default;

bool WaylandPressWatcher::start()
{
    if (!m_shell)
        return false;
    if (!m_panes.empty())
        return true;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *const screen : screens)
        m_panes.push_back(std::make_unique<Pane>(m_shell, screen, *this));
    return true;
}

void WaylandPressWatcher::stop()
{
    // It may be one of them that has told of a press.
    for (auto &pane : std::exchange(m_panes, {})) {
        pane->end();
        pane.release()->deleteLater();
    }
}

} // namespace ferrin
