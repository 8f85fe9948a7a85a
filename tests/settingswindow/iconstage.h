// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "settingswindow/menubaricon/statechoices.h"
#include "tests/settingswindow/stage.h"

namespace ferrin::test {

/// The settings window at the page of the menu bar icon, whose three sections are counted from 0.
struct IconStage : SettingsStage
{
    explicit IconStage(BatteryChargingStatus charging = BatteryChargingStatus::discharging)
    {
        battery.setChargingStatus(charging);
        view = show("SettingsView { focus: true }");
        sections = itemsOfType(view, "SettingsMBISectionView");
        // What belongs to a setting's first reading is none of the user's changes.
        store.writes.clear();
    }

    [[nodiscard]] std::array<StateChoices *, 3> choices()
    {
        return { menuBarIcon.discharging(), menuBarIcon.charging(), menuBarIcon.charged() };
    }
    [[nodiscard]] QList<QQuickItem *> switchesOf(int section) const
    {
        return visibleItemsOfType(sections[section], "SwitchView");
    }
    /// The control that opens the icons; null while its place is empty.
    [[nodiscard]] QQuickItem *controlOf(int section) const
    {
        return itemsOfType(sections[section], "SettingsMBIPopoverButtonView").value(0);
    }
    [[nodiscard]] QQuickItem *previewOf(int section) const
    {
        return itemsOfType(sections[section], "SettingsMBIMockupView").constFirst();
    }

    /// Of the popover that is open.
    [[nodiscard]] QList<QQuickItem *> iconButtons() const
    {
        return itemsOfType(window.contentItem(), "SettingsMBIIconButtonView");
    }
    [[nodiscard]] QQuickItem *iconButton(const QString &icon) const
    {
        const QList<QQuickItem *> all = iconButtons();
        const auto found = std::find_if(all.begin(), all.end(), [&](const QQuickItem *button) {
            return button->property("icon").toString() == icon;
        });
        return found == all.end() ? nullptr : *found;
    }
    /// The icons of the buttons that show their mark.
    [[nodiscard]] QStringList markedIcons() const
    {
        QStringList marked;
        const QList<QQuickItem *> all = iconButtons();
        for (QQuickItem *const button : all) {
            if (itemsOfType(button, "ferrin::RoundedRect").constFirst()->opacity() > 0)
                marked.append(button->property("icon").toString());
        }
        return marked;
    }

    QQuickItem *view = nullptr;
    QList<QQuickItem *> sections;
};

} // namespace ferrin::test
