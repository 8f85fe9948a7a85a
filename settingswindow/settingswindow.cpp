// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/settingswindow.h"

#include "quick/quickengine.h"
#include "settingswindow/settings.h"

#include <QGuiApplication>
#include <QIcon>
#include <QScreen>

FERRIN_USE_QML_TYPES(Ferrin_Settings)
FERRIN_USE_QML_FILES(ferrin_settingswindow)

namespace ferrin {

QString SettingsWindow::identifier()
{
    return QStringLiteral("FerrinSettings");
}

SettingsWindow::SettingsWindow(QQmlEngine &engine)
    : QQuickView(&engine, nullptr)
{
    setObjectName(identifier());
    setTitle(QStringLiteral("Ferrin Settings"));
    setFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
             | Qt::WindowCloseButtonHint);
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Ferrin/Settings/SettingsView.qml")));
    setMinimumSize(size());
    setMaximumSize(size());
    QRect frame(QPoint(), size());
    frame.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    setPosition(frame.topLeft());
    // Only window lists show the icon, so the first frame does not wait for it.
    connect(
        this, &QQuickWindow::frameSwapped, this,
        [this] { setIcon(QIcon(QStringLiteral(":/icons/org.ferrin.Ferrin.svg"))); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void SettingsWindow::open()
{
    show();
    raise();
    requestActivate();
}

} // namespace ferrin
