// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/iconitem.h"

#include "menubar/iconview.h"

#include <utility>

namespace ferrin {

void IconItem::setIcon(const QString &icon)
{
    if (std::exchange(m_icon, icon) != icon)
        showIcon();
}

void IconItem::setCharge(double charge)
{
    if (std::exchange(m_charge, charge) != charge)
        showIcon();
}

void IconItem::setStatus(ChargingStatuses::Status status)
{
    if (std::exchange(m_status, status) != status)
        showIcon();
}

void IconItem::showIcon()
{
    const auto icon = iconFromRawValue(m_icon);
    setView(icon ? IconView { .icon = *icon,
                              .charge = m_charge,
                              .status = BatteryChargingStatus(m_status) }
                 : AnyView());
    Q_EMIT changed();
}

} // namespace ferrin
