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

/// What the dashboard's views share beside the battery: the selected section, and signals by which
/// they ask the application for something. A child of the engine; the status outlives it.
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

    /// A count on a card, in the digits and with the grouping of the user's locale.
    Q_INVOKABLE [[nodiscard]] static QString integerText(qlonglong count);

    [[nodiscard]] MenuButton selected() const;
    void setSelected(MenuButton button);

Q_SIGNALS:
    void selectedChanged();
    /// The popover should close.
    void closeRequested();
    /// The settings window will probably be requested soon: its entry is hovered or has the focus.
    void settingsExpected();
    /// The settings window should open, or come to the front.
    void settingsRequested();
    /// The frequently asked questions should be shown.
    void helpRequested();

private:
    AppStatus &m_status;
    QPropertyNotifier m_follower;
};

} // namespace ferrin
