// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "menubar/view.h"

#include <QObject>
#include <QProperty>

namespace ferrin {

class BatteryDataProvider;
class DisplaySwitches;
class ItemHostingView;
class SettingsData;

/// The content of the status item: binds what is shown to the snapshot, the settings and the
/// switches, and stores the width of it when the item has to become wider or narrower. It belongs
/// to the hosting view that it fills, and starts afresh with it.
class MenuBarItemSelectedItemView : public QObject
{
    Q_OBJECT

public:
    struct Sources
    {
        BatteryDataProvider &battery;
        SettingsData &settings;
        DisplaySwitches &switches;
        /// What widths are measured with.
        ViewContext context;
    };

    /// Fills the hosting view, which becomes its owner. The first measurement follows on the next
    /// turn of the event loop.
    MenuBarItemSelectedItemView(ItemHostingView &host, const Sources &sources);

    /// Logical pixels.
    [[nodiscard]] qreal width() const;

Q_SIGNALS:
    /// The stored width has changed; the item has to be rebuilt.
    void statusItemWidthChanged();

private:
    void scheduleMeasurement();
    void measure();
    void noticeStoredWidth();

    ItemHostingView &m_host;
    Sources m_sources;
    BatteryChargingStatus m_previousChargingStatus = BatteryChargingStatus::unknown;
    float m_lastStoredWidth;
    QPropertyNotifier m_storedWidthNotifier;
    bool m_measurementScheduled = false;
};

} // namespace ferrin
