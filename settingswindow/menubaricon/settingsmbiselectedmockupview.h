// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/viewitem.h"
#include "settingswindow/menubaricon/statechoices.h"

#include <QPointer>

namespace ferrin {

/// What the menu bar item would show in one battery state, drawn by the item's own views.
// The base class is qualified because Qt's QML type registrar does not find it otherwise.
class SettingsMBISelectedMockupView : public ferrin::ViewItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        ferrin::StateChoices *choices READ choices WRITE setChoices NOTIFY choicesChanged REQUIRED)

public:
    using ViewItem::ViewItem;

    [[nodiscard]] StateChoices *choices() const { return m_choices; }
    void setChoices(StateChoices *choices);

Q_SIGNALS:
    void choicesChanged();

private:
    void showPreview();

    QPointer<StateChoices> m_choices;
};

} // namespace ferrin
