// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/dashboardwindow.h"

#include "base/logging.h"
#include "popover/itemscreen.h"
#include "popover/popoverdesktop.h"
#include "quick/quickengine.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

FERRIN_USE_QML_TYPES(Ferrin_Dashboard)
FERRIN_USE_QML_FILES(ferrin_dashboard)

namespace ferrin {

namespace {

// No user can have opened the popover and switched to another window in so short a time.
constexpr std::chrono::milliseconds settlingTime { 400 };

} // namespace

DashboardWindow::DashboardWindow(QuickEngine &engine)
    : FramedWindow(engine)
{
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QQmlComponent view(&engine,
                       QUrl(QStringLiteral("qrc:/qt/qml/Ferrin/Dashboard/DashboardView.qml")));
    std::unique_ptr<QQuickItem> content(qobject_cast<QQuickItem *>(view.create()));
    if (content)
        setContent(std::move(content));
    else
        qCCritical(logger, "The dashboard has no content: %s", qUtf8Printable(view.errorString()));
    connect(this, &FramedWindow::contentSizeChanged, this, &DashboardWindow::placeAtItem);
}

void DashboardWindow::openAt(const ItemPlace &place)
{
    m_item = place;
    m_screen = screenOf(place);
    followScreen();
    placeAtItem();
    desktop().prepare(*this);
    m_settling.setRemainingTime(settlingTime);
    show();
    desktop().focus(*this);
}

void DashboardWindow::followScreen()
{
    if (!m_screen)
        return;
    setScreen(m_screen);
    connect(m_screen, &QScreen::geometryChanged, this, &DashboardWindow::placeAtItem);
    connect(m_screen, &QScreen::availableGeometryChanged, this, &DashboardWindow::placeAtItem);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](const QScreen *removed) {
        if (removed == m_screen)
            Q_EMIT dismissed();
    });
}

void DashboardWindow::placeAtItem()
{
    if (!m_screen)
        return;
    const ScreenArea area { .whole = m_screen->geometry(),
                            .available = m_screen->availableGeometry() };
    place(spotAtItem(m_item, contentSize(), area), ArrowUse::Without);
}

bool DashboardWindow::event(QEvent *event)
{
    // Not ignored: a window that refuses to close keeps the program from quitting.
    if (event->type() == QEvent::Close)
        Q_EMIT dismissed();
    return FramedWindow::event(event);
}

void DashboardWindow::focusOutEvent(QFocusEvent *event)
{
    FramedWindow::focusOutEvent(event);
    // A window manager that has just closed another window may hand over that one's focus only now.
    if (isVisible() && !m_settling.hasExpired())
        desktop().focus(*this);
    else
        Q_EMIT focusLost();
}

void DashboardWindow::keyPressEvent(QKeyEvent *event)
{
    FramedWindow::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape || event->keyCombination() == (Qt::CTRL | Qt::Key_W))
        Q_EMIT dismissed();
}

} // namespace ferrin
