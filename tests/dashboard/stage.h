// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydata.h"
#include "core/storeddata.h"
#include "dashboard/adapter.h"
#include "dashboard/battery.h"
#include "dashboard/dashboard.h"
#include "state/appstatus.h"
#include "tests/quick/stage.h"
#include "tests/support/memorydefaultsstore.h"

FERRIN_USE_QML_TYPES(Ferrin_Dashboard)
FERRIN_USE_QML_FILES(ferrin_dashboard)

namespace ferrin::test {

/// The dashboard's views in a window, on a battery and an adapter that the test decides.
class Stage : public SceneStage
{
public:
    explicit Stage(PopoverDesktop &popovers = plainDesktop)
        : SceneStage({ "Ferrin.Dashboard" }, popovers)
    {
    }
    ~Stage() { item.reset(); }

    BatteryData data;
    MemoryDefaultsStore store;
    StoredData stored { store };
    AppStatus status;
    Battery battery { data, &engine };
    Adapter adapter { stored, data, &engine };
    Dashboard dashboard { status, &engine };
};

/// The one card of this QML type.
inline QQuickItem *card(QQuickItem *root, const QByteArray &type)
{
    const QList<QQuickItem *> found = itemsOfType(root, type);
    return found.size() == 1 ? found.constFirst() : nullptr;
}

/// The images below an item: each symbol by name, size and colour, the others by their types.
inline QStringList imagesOf(QQuickItem *root)
{
    QStringList images;
    const QList<QQuickItem *> items = visibleItemsOfType(root, "ferrin::PaintedItem");
    for (const QQuickItem *item : items) {
        if (isOfType(*item, "PercentGauge"))
            images.append(QStringLiteral("gauge %1").arg(item->property("value").toDouble()));
        else if (isOfType(*item, "ferrin::BatteryGlyph"))
            images.append(QStringLiteral("battery %1").arg(item->property("percent").toDouble()));
        else if (!isOfType(*item, "ferrin::RoundedRect") && !isOfType(*item, "MoreInfoButton")
                 && !isOfType(*item->parentItem(), "MoreInfoButton"))
            images.append(QStringLiteral("%1 %2 %3")
                              .arg(item->property("name").toString())
                              .arg(item->property("size").toDouble())
                              .arg(item->property("color").value<QColor>().name()));
    }
    return images;
}

/// The card's button for more, if the card shows one.
inline QQuickItem *moreInfoButton(QQuickItem *card)
{
    const QList<QQuickItem *> found = visibleItemsOfType(card, "MoreInfoButton");
    return found.isEmpty() ? nullptr : found.constFirst();
}

} // namespace ferrin::test
