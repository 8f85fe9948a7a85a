// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/popoverdesktop.h"
#include "quick/quickengine.h"
#include "tests/quick/named.h"
#include "tests/support/chosenappearance.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <memory>

namespace ferrin::test {

inline QPoint centreOf(const QQuickItem *item)
{
    return item->mapToScene(item->boundingRect().center()).toPoint();
}

/// Views in a window, in an appearance that the test decides. What the views are bound to is added
/// by whoever derives from it.
class SceneStage
{
public:
    /// Views of these modules, named as in an import, whose popovers are dressed by this desktop.
    explicit SceneStage(QByteArrayList modules, PopoverDesktop &popovers = plainDesktop)
        : engine(popovers)
        , m_modules(std::move(modules))
    {
        window.setColor(QColor(0xf3, 0xf4, 0xf6));
        window.resize(210, 210);
    }

    ~SceneStage()
    {
        item.reset();
        // Qt keeps the texture of an image until a frame after the image was dropped.
        window.releaseResources();
        window.grabWindow();
    }

    /// Shows what these lines of QML make, and makes them the only ones.
    QQuickItem *show(const QByteArray &lines)
    {
        item.reset();
        QByteArray imports = "import QtQuick\nimport Ferrin.Quick\n";
        for (const QByteArray &module : m_modules)
            imports += "import " + module + '\n';
        QQmlComponent component(&engine);
        component.setData(imports + lines, QUrl(QStringLiteral("stage")));
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
    [[nodiscard]] QString colorNamed(const char *name) { return namedColor(engine, name).name(); }

    void click(const QQuickItem *at)
    {
        QTest::mouseClick(at->window(), Qt::LeftButton, {}, centreOf(at));
    }

    [[nodiscard]] QImage picture() { return window.grabWindow(); }

    inline static PopoverDesktop plainDesktop;
    ChosenAppearance appearance;
    QuickEngine engine;
    QQuickWindow window;
    // Whoever derives from this resets it before what it is bound to goes.
    std::unique_ptr<QQuickItem> item;

private:
    QByteArrayList m_modules;
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

/// What can be read below an item, in the order of the scene.
inline QStringList textsOf(QQuickItem *root)
{
    QStringList texts;
    const QList<QQuickItem *> items = visibleItemsOfType(root, "QQuickText");
    for (const QQuickItem *item : items)
        texts.append(item->property("text").toString());
    return texts;
}

/// What a screen reader says of an item.
inline QString spokenNameOf(QQuickItem *item)
{
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

/// What a screen reader takes an item for; no role for one that is nothing to it.
inline QAccessible::Role spokenRoleOf(QQuickItem *item)
{
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
    return spoken ? spoken->role() : QAccessible::NoRole;
}

/// The window of the popover that is open, if one is.
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
