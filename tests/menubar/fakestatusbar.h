// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemhostingview.h"
#include "menubar/statusitem.h"

namespace ferrin::test {

/// An item that stands on no screen and remembers what was done with it.
class FakeStatusItem final : public StatusItem
{
public:
    void setLength(qreal length) override
    {
        m_length = length;
        lengths.append(length);
    }
    [[nodiscard]] qreal length() const override { return m_length; }
    [[nodiscard]] bool hasButton() const override { return button; }
    void removeContentViews() override
    {
        ++removals;
        views.clear();
    }
    void addContentView(std::unique_ptr<ItemHostingView> view) override
    {
        views.push_back(std::move(view));
    }
    void setContextMenu(const std::vector<MenuEntry> &entries) override { menu = entries; }
    void setHighlighted(bool on) override { highlighted = on; }
    [[nodiscard]] ItemPlace place() const override { return stands; }

    ItemPlace stands;
    bool button = true;
    bool highlighted = false;
    int removals = 0;
    QList<qreal> lengths;
    std::vector<std::unique_ptr<ItemHostingView>> views;
    std::vector<MenuEntry> menu;

private:
    qreal m_length = 0;
};

/// A bar with one item, which may not be there yet.
class FakeStatusBar final : public StatusBar
{
public:
    [[nodiscard]] qreal thickness() const override { return height; }
    [[nodiscard]] StatusItem *item() override { return onlyItem; }

    qreal height = 22;
    FakeStatusItem *onlyItem = nullptr;
};

} // namespace ferrin::test
