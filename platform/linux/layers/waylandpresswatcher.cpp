// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/waylandpresswatcher.h"

#include "platform/linux/layers/unseenwindow.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTouchEvent>

#include <utility>

namespace ferrin {

class WaylandPressWatcher::Pane final : public UnseenWindow
{
public:
    Pane(LayerShell &shell, QScreen &screen, WaylandPressWatcher &watcher)
        : UnseenWindow(screen, screen.geometry())
        , m_watcher(watcher)
    {
        showIn(shell, { .edges = Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge },
               LayerShell::Kind::Bar);
    }

protected:
    void mousePressEvent(QMouseEvent *) override { Q_EMIT m_watcher.pressed(nullptr); }
    void touchEvent(QTouchEvent *event) override
    {
        if (event->type() == QEvent::TouchBegin)
            Q_EMIT m_watcher.pressed(nullptr);
    }

private:
    WaylandPressWatcher &m_watcher;
};

WaylandPressWatcher::WaylandPressWatcher(QObject *parent)
    : PressWatcher(parent)
{
}

WaylandPressWatcher::~WaylandPressWatcher() = default;

bool WaylandPressWatcher::start()
{
    if (!*m_shell)
        return false;
    if (!m_panes.empty())
        return true;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *const screen : screens)
        m_panes.push_back(std::make_unique<Pane>(*m_shell, *screen, *this));
    return true;
}

void WaylandPressWatcher::stop()
{
    // This may be called from an event of one of them.
    for (auto &pane : std::exchange(m_panes, {}))
        UnseenWindow::end(std::move(pane));
}

} // namespace ferrin
