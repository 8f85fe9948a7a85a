// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/menubuttons.h"

#include <QObject>
#include <QProperty>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class AppStatus;

/// What the settings window's views share beside the settings: the selected page, and signals by
/// which they ask the application for something. A child of the engine; the status outlives it.
class Settings final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    Q_PROPERTY(MenuButton selected READ selected WRITE setSelected NOTIFY selectedChanged)

public:
    enum class MenuButton {
        General = int(SettingsMenuButton::general),
        Icon = int(SettingsMenuButton::icon),
        Support = int(SettingsMenuButton::support),
        About = int(SettingsMenuButton::about),
        Quit = int(SettingsMenuButton::quit),
    };
    Q_ENUM(MenuButton)

    explicit Settings(AppStatus &status, QObject *parent = nullptr);

    /// The engine's child.
    static Settings *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] MenuButton selected() const;
    void setSelected(MenuButton button);

Q_SIGNALS:
    void selectedChanged();
    /// The window should close.
    void dismissRequested();
    /// The program should quit; the user has confirmed it.
    void quitRequested();

private:
    AppStatus &m_status;
    QPropertyNotifier m_follower;
};

} // namespace ferrin
