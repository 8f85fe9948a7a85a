// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/panelappearance.h"
#include "quick/chargingstatuses.h"
#include "settingswindow/menubaricon/statesample.h"

#include <QObject>
#include <QProperty>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace ferrin {

/// The user's choices for one battery state and the texts of the settings window for that state.
/// The choices are stored in the settings and followed when anything changes them. As long as it
/// exists, at least one of the state's three switches is on: the last one to be turned off is
/// turned back on before other listeners see the change.
class StateChoices final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("There is one for each battery state.")
    Q_PROPERTY(ferrin::ChargingStatuses::Status status READ status CONSTANT)
    Q_PROPERTY(bool showIcon READ showIcon WRITE setShowIcon NOTIFY switchesChanged)
    Q_PROPERTY(bool showCharge READ showCharge WRITE setShowCharge NOTIFY switchesChanged)
    Q_PROPERTY(bool showTime READ showTime WRITE setShowTime NOTIFY switchesChanged)
    /// The raw value of the selected icon.
    Q_PROPERTY(QString icon READ icon WRITE setIcon NOTIFY iconChanged)
    /// The raw values of what can be selected: all, those that follow the charge, and the others.
    Q_PROPERTY(QList<QString> icons READ icons CONSTANT)
    Q_PROPERTY(QList<QString> glyphs READ glyphs CONSTANT)
    Q_PROPERTY(QList<QString> symbols READ symbols CONSTANT)
    Q_PROPERTY(double charge READ charge CONSTANT)
    Q_PROPERTY(QString caption READ caption CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString description READ description CONSTANT)
    Q_PROPERTY(QString timeLabel READ timeLabel CONSTANT)
    /// What the item would show, in words, for screen readers.
    Q_PROPERTY(QString sentence READ sentence NOTIFY previewChanged)

public:
    /// All of them outlive the choices.
    struct Sources
    {
        BatteryData &data;
        SettingsData &settings;
        DisplaySwitches &switches;
        /// Null where there is no panel to preview.
        PanelAppearanceSource *panel = nullptr;
    };

    StateChoices(ItemState state, const Sources &sources, QObject *parent = nullptr);

    [[nodiscard]] ChargingStatuses::Status status() const
    {
        return ChargingStatuses::Status(m_sample.status);
    }
    [[nodiscard]] bool showIcon() const;
    void setShowIcon(bool on);
    [[nodiscard]] bool showCharge() const;
    void setShowCharge(bool on);
    [[nodiscard]] bool showTime() const;
    void setShowTime(bool on);
    [[nodiscard]] QString icon() const;
    /// Ignores text that is not the raw value of an icon.
    void setIcon(const QString &rawValue);

    [[nodiscard]] QStringList icons() const { return glyphs() + symbols(); }
    [[nodiscard]] QStringList glyphs() const;
    [[nodiscard]] QStringList symbols() const;
    [[nodiscard]] double charge() const { return m_sample.charge; }
    [[nodiscard]] QString caption() const { return m_sample.caption; }
    [[nodiscard]] QString title() const { return m_sample.title; }
    [[nodiscard]] QString description() const { return m_sample.description; }
    [[nodiscard]] QString timeLabel() const { return m_sample.timeLabel; }

    /// What the item would show at the sample's charge and time, its icon as the battery is now.
    [[nodiscard]] ItemContent preview() const { return m_preview.value(); }
    [[nodiscard]] QString sentence() const;
    /// How the present panel would show it; absent where none shows the item.
    [[nodiscard]] std::optional<PanelAppearance> panel() const;

Q_SIGNALS:
    void switchesChanged();
    void iconChanged();
    void previewChanged();
    void panelChanged();
    /// The last switch was turned off and has been turned back on.
    void lastOneKept();

private:
    void keepOne(DisplaySwitch changed);
    [[nodiscard]] ItemContent computePreview() const;

    StateSample m_sample;
    ItemSwitches m_switches;
    Sources m_sources;
    std::array<QPropertyNotifier, 3> m_switchFollowers;
    QPropertyNotifier m_iconFollower;
    Q_OBJECT_BINDABLE_PROPERTY(StateChoices, ItemContent, m_preview, &StateChoices::previewChanged)
};

} // namespace ferrin
