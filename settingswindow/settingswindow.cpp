// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/settingswindow.h"

#include <QGuiApplication>
#include <QScreen>

namespace ferrin {

QString SettingsWindow::identifier()
{
    return QStringLiteral("FerrinSettings");
}

SettingsWindow::SettingsWindow()
{
    setObjectName(identifier());
    setTitle(QStringLiteral("Ferrin Settings"));
    setFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
             | Qt::WindowCloseButtonHint);
    setSource(QUrl(QStringLiteral("qrc:/Ferrin/Settings/SettingsView.qml")));
    setMinimumSize(size());
    setMaximumSize(size());
    QRect frame(QPoint(), size());
    frame.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    setPosition(frame.topLeft());
}

void SettingsWindow::open()
{
    show();
    raise();
    requestActivate();
}

} // namespace ferrin
