// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemform.h"

#include <QColor>
#include <QObject>

#include <optional>

namespace ferrin {

/// How the panel that the item stands in shows it, for a preview that is painted alike.
struct PanelAppearance
{
    ItemForm form = ItemForm::Square;
    /// Of the picture, logical pixels.
    int height = 22;
    ViewContext context {};
    /// The panel draws the texts itself, beside the picture.
    bool hasLabel = false;
    /// A ground like the panel's.
    QColor ground {};

    bool operator==(const PanelAppearance &) const = default;
};

/// Knows the panel. Implemented by the platform.
class PanelAppearanceSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Absent while no panel shows the item.
    [[nodiscard]] virtual std::optional<PanelAppearance> panelAppearance() const = 0;

Q_SIGNALS:
    void panelAppearanceChanged();
};

} // namespace ferrin
