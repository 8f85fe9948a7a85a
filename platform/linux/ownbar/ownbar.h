// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/layers/layeredwindows.h"
#include "platform/linux/ownbar/ownbarwindow.h"
#include "platform/linux/ownwindows/popupmenu.h"

#include <memory>
#include <vector>

namespace ferrin {

class DefaultsStore;
class PanelColors;

/// The application's item in a small window of our own, with the same content, click and menu.
class OwnBarItem final : public StatusItem
{
    Q_OBJECT

public:
    /// The colours outlive it, and so does the store, in which the place is remembered; null for
    /// nowhere.
    OwnBarItem(const PanelColors &colors, DefaultsStore *store, QObject *parent = nullptr);
    ~OwnBarItem() override;

    void show();
    void hide();

    void setLength(qreal length) override;
    [[nodiscard]] qreal length() const override { return m_length; }
    [[nodiscard]] bool hasButton() const override { return true; }
    void removeContentViews() override;
    void addContentView(std::unique_ptr<ItemHostingView> view) override;
    void setContextMenu(const std::vector<MenuEntry> &entries) override { m_entries = entries; }
    void setHighlighted(bool highlighted) override;
    [[nodiscard]] ItemPlace place() const override;

    [[nodiscard]] OwnBarWindow &window() noexcept { return m_window; }

private:
    void showContent();
    void showLook();
    void popUpMenu();
    void changeScreen();

    const PanelColors &m_colors;
    LayeredWindows m_layers;
    OwnBarWindow m_window;
    PopupMenu m_popup;
    std::unique_ptr<ItemHostingView> m_view;
    std::vector<MenuEntry> m_entries;
    qreal m_length = 0;
    bool m_isWanted = false;
};

/// Stands in for the desktop's status area where there is none: a strip with one item at the top
/// right of the primary screen, until the user drags it elsewhere.
class OwnBar final : public StatusBar
{
    Q_OBJECT

public:
    explicit OwnBar(const PanelColors &colors, DefaultsStore *store = nullptr,
                    QObject *parent = nullptr);

    /// Whether the desktop lets a program say where its windows stand, as a bar must.
    [[nodiscard]] static bool isPossible();

    void show() { m_item.show(); }
    void hide() { m_item.hide(); }

    [[nodiscard]] qreal thickness() const override { return OwnBarWindow::contentHeight; }
    [[nodiscard]] StatusItem *item() override { return &m_item; }

private:
    OwnBarItem m_item;
};

} // namespace ferrin
