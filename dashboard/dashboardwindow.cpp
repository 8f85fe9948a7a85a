// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/dashboardwindow.h"

#include "dashboard/popoverplacement.h"
#include "quick/quickengine.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QScreen>

FERRIN_USE_QML_MODULE(Ferrin_Dashboard, ferrin_dashboard)

namespace ferrin {

DashboardWindow::DashboardWindow(QQmlEngine &engine)
    : QQuickView(&engine, nullptr)
{
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setTitle(QGuiApplication::applicationDisplayName());
    setColor(Qt::transparent);
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Ferrin/Dashboard/DashboardView.qml")));
}

void DashboardWindow::openAt(const QRect &item, const QPoint &pointer)
{
    QRect anchor = item.isNull() ? QRect(pointer, QSize(1, 1)) : item;
    const QScreen *const host = QGuiApplication::screenAt(anchor.center());
    const QRect available = (host ? host : QGuiApplication::primaryScreen())->availableGeometry();
    if (item.isNull() && pointer.isNull())
        anchor.moveCenter(available.topRight());
    setPosition(popoverPosition(anchor, size(), available));
    show();
    requestActivate();
}

void DashboardWindow::focusOutEvent(QFocusEvent *event)
{
    QQuickView::focusOutEvent(event);
    Q_EMIT dismissed();
}

void DashboardWindow::keyPressEvent(QKeyEvent *event)
{
    QQuickView::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape)
        Q_EMIT dismissed();
}

} // namespace ferrin
