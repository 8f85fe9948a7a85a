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

/// What the dashboard's views share beside the battery: which section is selected, and what they
/// ask of the application, which is told by signals. A child of the engine; the status outlives it.
class Dashboard final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    Q_PROPERTY(MenuButton selected READ selected WRITE setSelected NOTIFY selectedChanged)

public:
    enum class MenuButton {
        Status = int(DashboardMenuButton::status),
        Health = int(DashboardMenuButton::health),
        Adapter = int(DashboardMenuButton::adapter),
        Settings = int(DashboardMenuButton::settings),
    };
    Q_ENUM(MenuButton)

    explicit Dashboard(AppStatus &status, QObject *parent = nullptr);

    /// The engine's child.
    static Dashboard *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] MenuButton selected() const;
    void setSelected(MenuButton button);

Q_SIGNALS:
    void selectedChanged();
    /// The popover is to close.
    void closeRequested();
    /// The settings window may soon be asked for: the pointer or the keys have come to its entry.
    void settingsExpected();
    /// The settings window is to open, or to come to the front.
    void settingsRequested();

private:
    AppStatus &m_status;
    QPropertyNotifier m_follower;
};

} // namespace ferrin
