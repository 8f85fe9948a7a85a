// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/chargingstatuses.h"
#include "quick/viewitem.h"

namespace ferrin {

/// An icon of the menu bar as a picture in a window. Decoration: it is nothing to a screen reader.
// The base by its full name, or QML's tools do not find it.
class IconItem : public ferrin::ViewItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(IconView)
    /// The icon's raw value. Any other text: nothing is shown.
    Q_PROPERTY(QString icon READ icon WRITE setIcon NOTIFY changed)
    /// Percent, 0 to 100.
    Q_PROPERTY(double charge READ charge WRITE setCharge NOTIFY changed)
    Q_PROPERTY(ferrin::ChargingStatuses::Status status READ status WRITE setStatus NOTIFY changed)

public:
    using ViewItem::ViewItem;

    [[nodiscard]] QString icon() const { return m_icon; }
    void setIcon(const QString &icon);
    [[nodiscard]] double charge() const noexcept { return m_charge; }
    void setCharge(double charge);
    [[nodiscard]] ChargingStatuses::Status status() const noexcept { return m_status; }
    void setStatus(ChargingStatuses::Status status);

Q_SIGNALS:
    void changed();

private:
    void showIcon();

    QString m_icon;
    double m_charge = 0;
    ChargingStatuses::Status m_status = ChargingStatuses::Unknown;
};

} // namespace ferrin
