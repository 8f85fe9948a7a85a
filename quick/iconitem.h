// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/chargingstatuses.h"
#include "quick/viewitem.h"

namespace ferrin {

/// An icon of the menu bar item inside a window. Invisible to screen readers.
// The base class is qualified because Qt's QML type registrar does not find it otherwise.
class IconItem : public ferrin::ViewItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(IconView)
    /// The icon's raw value; nothing is shown for any other text.
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
