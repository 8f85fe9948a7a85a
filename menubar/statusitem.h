// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/itemplace.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace ferrin {

class ItemHostingView;

/// One entry of a status item's context menu.
struct MenuEntry
{
    /// Names the entry to `menuEntryTriggered`.
    QString id;
    QString title;

    bool operator==(const MenuEntry &) const = default;
};

/// An item in the desktop's status area: a settable length and a button that holds one content
/// view. The platform implements it; MenuBarItemProvider fills it. All lengths are logical pixels.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void setLength(qreal length) = 0;
    [[nodiscard]] virtual qreal length() const = 0;

    /// False for a detached item, which has nothing to put content into.
    [[nodiscard]] virtual bool hasButton() const = 0;

    /// Takes every content view out of the button.
    virtual void removeContentViews() = 0;
    /// Puts the view into the button; the item repaints whenever the view's content changes.
    virtual void addContentView(std::unique_ptr<ItemHostingView> view) = 0;

    virtual void setContextMenu(const std::vector<MenuEntry> &entries) = 0;

    /// The dashboard is open (true) or not: the button may look pressed.
    virtual void setHighlighted(bool highlighted) = 0;

    /// Where the item stands, or stood when it was last activated.
    [[nodiscard]] virtual ItemPlace place() const = 0;

Q_SIGNALS:
    /// The primary click, or what the platform has for it.
    void activated();
    /// The host's own menu of the item leads to the settings.
    void settingsRequested();
    void menuEntryTriggered(const QString &id);
};

/// The bar that items stand in.
class StatusBar : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The height that an item has for itself.
    [[nodiscard]] virtual qreal thickness() const = 0;

    /// The application's one item. Owned by the bar; present while the bar is usable.
    [[nodiscard]] virtual StatusItem *item() = 0;
};

} // namespace ferrin
