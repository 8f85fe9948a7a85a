// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "settingswindow/menubaricon/statechoices.h"

class QJSEngine;
class QQmlEngine;

namespace ferrin {

/// The user's choices for the menu bar item, for each of the three battery states that have some.
/// A child of the engine.
class MenuBarIcon final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(ferrin::StateChoices *discharging READ discharging CONSTANT)
    Q_PROPERTY(ferrin::StateChoices *charging READ charging CONSTANT)
    Q_PROPERTY(ferrin::StateChoices *charged READ charged CONSTANT)
    /// What the battery is doing now.
    Q_PROPERTY(ferrin::ChargingStatuses::Status status READ status NOTIFY statusChanged)

public:
    explicit MenuBarIcon(const StateChoices::Sources &sources, QObject *parent = nullptr);

    /// The engine's child.
    static MenuBarIcon *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] StateChoices *discharging() { return &m_discharging; }
    [[nodiscard]] StateChoices *charging() { return &m_charging; }
    [[nodiscard]] StateChoices *charged() { return &m_charged; }
    [[nodiscard]] ChargingStatuses::Status status() const;

    /// The icon with this raw value in words; empty for any other text.
    Q_INVOKABLE QString nameOf(const QString &rawValue) const;

Q_SIGNALS:
    void statusChanged();

private:
    BatteryData &m_data;
    StateChoices m_discharging;
    StateChoices m_charging;
    StateChoices m_charged;
};

} // namespace ferrin
