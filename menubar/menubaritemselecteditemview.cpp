// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/menubaritemselecteditemview.h"

#include "core/batterydataprovider.h"
#include "menubar/itemhostingview.h"
#include "state/displayswitches.h"
#include "state/settingsdata.h"

#include <QMetaObject>

#include <cmath>
#include <utility>

namespace ferrin {

namespace {

/// Smaller changes are left alone, so that the item does not jitter as its figures change.
constexpr double toleratedDifference = 10.0;

} // namespace

MenuBarItemSelectedItemView::MenuBarItemSelectedItemView(ItemHostingView &host,
                                                         const Sources &sources)
    : QObject(&host)
    , m_host(host)
    , m_sources(sources)
    , m_lastStoredWidth(sources.settings.statusItemWidth())
{
    m_storedWidthNotifier
        = m_sources.settings.bindableStatusItemWidth().addNotifier([this] { noticeStoredWidth(); });
    connect(&m_host, &ItemHostingView::contentChanged, this,
            &MenuBarItemSelectedItemView::scheduleMeasurement);

    BatteryDataProvider &battery = m_sources.battery;
    const bool connected = battery.batteryIOService().connected();
    m_host.bindContent([&data = *battery.data(), &settings = m_sources.settings,
                        &switches = m_sources.switches,
                        connected] { return contentFor(data, switches, settings, connected); });
    scheduleMeasurement();
}

qreal MenuBarItemSelectedItemView::width() const
{
    return viewFor(m_host.content()).idealSize(m_sources.context).width();
}

void MenuBarItemSelectedItemView::scheduleMeasurement()
{
    // A refresh writes several values in a row; only what stands at its end is measured.
    if (std::exchange(m_measurementScheduled, true))
        return;
    QMetaObject::invokeMethod(this, &MenuBarItemSelectedItemView::measure, Qt::QueuedConnection);
}

void MenuBarItemSelectedItemView::measure()
{
    m_measurementScheduled = false;
    const double measured = width();
    const BatteryChargingStatus status = m_host.content().status;

    if (std::abs(measured - double(m_sources.settings.statusItemWidth())) > toleratedDifference)
        m_sources.settings.setStatusItemWidth(float(measured));
    if (std::exchange(m_previousChargingStatus, status) != status)
        m_sources.settings.setStatusItemWidth(float(measured));
}

void MenuBarItemSelectedItemView::noticeStoredWidth()
{
    const float stored = m_sources.settings.statusItemWidth();
    if (std::exchange(m_lastStoredWidth, stored) != stored)
        Q_EMIT statusItemWidthChanged();
}

} // namespace ferrin
