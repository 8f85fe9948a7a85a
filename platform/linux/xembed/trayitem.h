// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"
#include "menubar/statusitem.h"
#include "platform/linux/ownwindows/popupmenu.h"
#include "platform/linux/ownwindows/tooltip.h"

#include <QTimer>

#include <memory>
#include <vector>

namespace ferrin {

class DockedWindow;
class PanelColors;

/// The application's item in an XEmbed tray: the square form, as large as the tray makes it.
class TrayItem final : public StatusItem
{
    Q_OBJECT

public:
    /// The colours outlive it.
    explicit TrayItem(const PanelColors &colors, QObject *parent = nullptr);
    ~TrayItem() override;

    /// Moves into the tray whose window this is, and back into it whenever that lets go of it; 0
    /// takes it out of the one that it is in.
    void dockInto(quint32 tray);

    /// What the item is painted with in its tray.
    [[nodiscard]] ViewContext context() const;

    void setLength(qreal length) override { m_length = length; }
    [[nodiscard]] qreal length() const override { return m_length; }
    [[nodiscard]] bool hasButton() const override { return true; }
    void removeContentViews() override;
    void addContentView(std::unique_ptr<ItemHostingView> view) override;
    void setContextMenu(const std::vector<MenuEntry> &entries) override { m_entries = entries; }
    void setHighlighted(bool highlighted) override;
    [[nodiscard]] ItemPlace place() const override;

private:
    void showContent();
    void paint();
    void popUpMenu();
    void leave();

    const PanelColors &m_colors;
    quint32 m_tray = 0;
    QTimer m_return;
    /// Null while no tray has it.
    std::unique_ptr<DockedWindow> m_window;
    std::unique_ptr<ItemHostingView> m_view;
    ItemContent m_content;
    std::vector<MenuEntry> m_entries;
    PopupMenu m_popup;
    ToolTip m_toolTip;
    qreal m_length = 0;
    bool m_isHighlighted = false;
};

/// The XEmbed tray, whoever owns it.
class TrayBar final : public StatusBar
{
    Q_OBJECT

public:
    explicit TrayBar(const PanelColors &colors, QObject *parent = nullptr);

    [[nodiscard]] qreal thickness() const override { return 22; }
    [[nodiscard]] TrayItem *item() override { return &m_item; }

private:
    TrayItem m_item;
};

} // namespace ferrin
