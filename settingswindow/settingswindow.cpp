// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/settingswindow.h"

#include "popover/popoverdesktop.h"
#include "quick/quickengine.h"
#include "quick/windowsize.h"
#include "settingswindow/settings.h"
#include "settingswindow/windowplace.h"
#include "state/defaultsstore.h"

#include <QCloseEvent>
#include <QIcon>
#include <QQuickItem>
#include <QScreen>

FERRIN_USE_QML_TYPES(Ferrin_Settings)
FERRIN_USE_QML_FILES(ferrin_settingswindow)

namespace ferrin {

namespace {

const QString placeKey = QStringLiteral("settingsWindowPlace");

} // namespace

QString SettingsWindow::identifier()
{
    return QStringLiteral("FerrinSettings");
}

SettingsWindow::SettingsWindow(QuickEngine &engine, DefaultsStore &store)
    : QQuickView(&engine, nullptr)
    , m_store(store)
    , m_canBePlaced(engine.popovers().placesWindows())
    , m_titleBar(*this, engine.popovers())
{
    setObjectName(identifier());
    setTitle(QStringLiteral("Ferrin Settings"));
    setFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
             | Qt::WindowCloseButtonHint);
    setResizeMode(SizeRootObjectToView);
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Ferrin/Settings/SettingsScene.qml")));
    for (const auto signal :
         { &QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged })
        connect(rootObject(), signal, this, &SettingsWindow::fit);
    fit();
    // Only window lists show the icon, so the first frame does not wait for it.
    connect(
        this, &QQuickWindow::frameSwapped, this,
        [this] { setIcon(QIcon(QStringLiteral(":/icons/org.ferrin.Ferrin.svg"))); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void SettingsWindow::fit()
{
    fitWindow(*this, *rootObject());
}

void SettingsWindow::open(QScreen *screen)
{
    if (screen && !isVisible())
        place(*screen);
    show();
    raise();
    requestActivate();
}

void SettingsWindow::place(QScreen &screen)
{
    setScreen(&screen);
    fit();
    const auto kept = windowPlaceIn(m_store.string(placeKey).value_or(QString()));
    if (m_canBePlaced && kept && kept->screen == screen.name())
        setFramePosition(keptWithin(screen.geometry().topLeft() + kept->corner, size(),
                                    screen.availableGeometry()));
    else
        setPosition(centredIn(screen.availableGeometry(), size()));
}

void SettingsWindow::closeEvent(QCloseEvent *event)
{
    rememberPlace();
    QQuickView::closeEvent(event);
}

void SettingsWindow::rememberPlace()
{
    if (!m_canBePlaced || !isVisible())
        return;
    const WindowPlace place { .screen = screen()->name(),
                              .corner = framePosition() - screen()->geometry().topLeft() };
    m_store.setObject(placeKey, toText(place));
}

} // namespace ferrin
