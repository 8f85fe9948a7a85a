// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/updates/updatewindow.h"

#include "quick/quickengine.h"
#include "quick/windowsize.h"
#include "settingswindow/updates/softwareupdates.h"
#include "settingswindow/windowplace.h"

#include <QCloseEvent>
#include <QIcon>
#include <QQuickItem>
#include <QScreen>

namespace ferrin {

QString UpdateWindow::identifier()
{
    return QStringLiteral("FerrinUpdate");
}

UpdateWindow::UpdateWindow(QuickEngine &engine, SoftwareUpdates &updates)
    : QQuickView(&engine, nullptr)
    , m_updates(updates)
    , m_titleBar(*this, engine.popovers())
{
    setObjectName(identifier());
    setTitle(QStringLiteral("Software Update"));
    setFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
             | Qt::WindowCloseButtonHint);
    setResizeMode(SizeRootObjectToView);
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Ferrin/Settings/UpdateScene.qml")));
    // The lists of windows can wait for it, and the first frame does not have to.
    connect(
        this, &QQuickWindow::frameSwapped, this,
        [this] { setIcon(QIcon(QStringLiteral(":/icons/org.ferrin.Ferrin.svg"))); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    for (const auto signal :
         { &QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged })
        connect(rootObject(), signal, this, &UpdateWindow::fit);
    connect(&m_updates, &SoftwareUpdates::stageChanged, this, [this] {
        if (m_updates.stage() == SoftwareUpdates::Stage::Idle)
            hide();
    });
}

void UpdateWindow::open(QScreen *screen, const QWindow *beside)
{
    if (m_updates.stage() == SoftwareUpdates::Stage::Idle)
        return;
    fit();
    if (!isVisible())
        place(screen, beside);
    show();
    raise();
    requestActivate();
}

void UpdateWindow::place(QScreen *screen, const QWindow *beside)
{
    if (!screen && !beside)
        return;
    setScreen(beside ? beside->screen() : screen);
    fit();
    setPosition(centredIn(beside ? beside->geometry() : screen->availableGeometry(), size()));
}

void UpdateWindow::closeEvent(QCloseEvent *event)
{
    QQuickView::closeEvent(event);
    if (event->isAccepted())
        m_updates.dismiss();
}

void UpdateWindow::fit()
{
    fitWindow(*this, *rootObject());
}

} // namespace ferrin
