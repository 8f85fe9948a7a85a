// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/painteditem.h"
#include "settingswindow/menubaricon/statechoices.h"

#include <QPointer>

namespace ferrin {

/// What the item would look like in the present panel in one battery state, made by the painter of
/// the panels' own pictures. Takes no place while no panel shows the item.
class PanelPreview : public ferrin::PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        ferrin::StateChoices *choices READ choices WRITE setChoices NOTIFY choicesChanged REQUIRED)
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY isKnownChanged)

public:
    explicit PanelPreview(QQuickItem *parent = nullptr);

    [[nodiscard]] StateChoices *choices() const { return m_choices; }
    void setChoices(StateChoices *choices);

    /// A panel shows the item.
    [[nodiscard]] bool isKnown() const { return m_panel.has_value(); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void choicesChanged();
    void isKnownChanged();

private:
    void refresh();
    [[nodiscard]] qreal deviceScale() const;
    [[nodiscard]] AnyView label() const;

    QPointer<StateChoices> m_choices;
    std::optional<PanelAppearance> m_panel;
};

} // namespace ferrin
