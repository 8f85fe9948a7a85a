// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterydata.h"
#include "core/storeddata.h"
#include "dashboard/adapter.h"
#include "dashboard/battery.h"
#include "dashboard/dashboard.h"
#include "quick/quickengine.h"
#include "state/appstatus.h"
#include "tests/quick/named.h"
#include "tests/support/chosenappearance.h"
#include "tests/support/memorydefaultsstore.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <memory>

FERRIN_USE_QML_TYPES(Ferrin_Dashboard)
FERRIN_USE_QML_FILES(ferrin_dashboard)

namespace ferrin::test {

inline QPoint centreOf(const QQuickItem *item)
{
    return item->mapToScene(item->boundingRect().center()).toPoint();
}

/// The dashboard's views in a window, on a battery and an adapter that the test decides.
class Stage
{
public:
    Stage()
    {
        window.setColor(QColor(0xf3, 0xf4, 0xf6));
        window.resize(210, 210);
    }

    /// Shows what these lines of QML make, and makes them the only ones.
    QQuickItem *show(const QByteArray &lines)
    {
        item.reset();
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Ferrin.Quick\nimport Ferrin.Dashboard\n" + lines,
                          QUrl(QStringLiteral("stage")));
        item.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!item)
            qFatal("%s", qPrintable(component.errorString()));
        item->setParentItem(window.contentItem());
        window.resize(QSizeF(item->width(), item->height()).toSize());
        window.show();
        [[maybe_unused]] const bool isExposed = QTest::qWaitForWindowExposed(&window);
        return item.get();
    }

    /// The named colour, as it is now.
    [[nodiscard]] QString colour(const char *name) { return namedColour(engine, name).name(); }

    void click(const QQuickItem *at)
    {
        QTest::mouseClick(&window, Qt::LeftButton, {}, centreOf(at));
    }

    [[nodiscard]] QImage picture() { return window.grabWindow(); }

    BatteryData data;
    MemoryDefaultsStore store;
    StoredData stored { store };
    AppStatus status;
    ChosenAppearance appearance;
    QuickEngine engine;
    Battery battery { data, &engine };
    Adapter adapter { stored, data, &engine };
    Dashboard dashboard { status, &engine };
    QQuickWindow window;
    std::unique_ptr<QQuickItem> item;
};

/// Whether an item is of this QML type or of one that is built on it.
inline bool isOfType(const QObject &object, const QByteArray &type)
{
    for (const QMetaObject *meta = object.metaObject(); meta; meta = meta->superClass()) {
        const QByteArray name = meta->className();
        if (name == type || name.startsWith(type + "_QML"))
            return true;
    }
    return false;
}

/// All items below one, and itself, that are of this type, in the order of the scene.
inline QList<QQuickItem *> itemsOfType(QQuickItem *root, const QByteArray &type)
{
    QList<QQuickItem *> found;
    if (isOfType(*root, type))
        found.append(root);
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children)
        found += itemsOfType(child, type);
    return found;
}

inline QList<QQuickItem *> visibleItemsOfType(QQuickItem *root, const QByteArray &type)
{
    QList<QQuickItem *> items = itemsOfType(root, type);
    items.removeIf([](const QQuickItem *item) { return !item->isVisible(); });
    return items;
}

/// The one card of this QML type.
inline QQuickItem *card(QQuickItem *root, const QByteArray &type)
{
    const QList<QQuickItem *> found = itemsOfType(root, type);
    return found.size() == 1 ? found.constFirst() : nullptr;
}

/// What can be read below an item, in the order of the scene.
inline QStringList textsOf(QQuickItem *root)
{
    QStringList texts;
    const QList<QQuickItem *> items = visibleItemsOfType(root, "QQuickText");
    for (const QQuickItem *item : items)
        texts.append(item->property("text").toString());
    return texts;
}

/// The images below an item: each symbol by name, size and colour, the others by their types.
inline QStringList imagesOf(QQuickItem *root)
{
    QStringList images;
    const QList<QQuickItem *> items = visibleItemsOfType(root, "QQuickPaintedItem");
    for (const QQuickItem *item : items) {
        if (isOfType(*item, "PercentGauge"))
            images.append(QStringLiteral("gauge %1").arg(item->property("value").toDouble()));
        else if (isOfType(*item, "ferrin::BatteryGlyph"))
            images.append(QStringLiteral("battery %1").arg(item->property("percent").toDouble()));
        else if (!isOfType(*item, "MoreInfoButton")
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

/// What a screen reader says of an item.
inline QString spokenNameOf(QQuickItem *item)
{
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

/// The window of the popover that explains a card, if one is open.
inline QQuickWindow *openPopover()
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (window->isVisible() && window->transientParent())
            return qobject_cast<QQuickWindow *>(window);
    }
    return nullptr;
}

} // namespace ferrin::test
