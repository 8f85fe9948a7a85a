// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/layers/waylandpointer.h"
#include "platform/linux/ownwindows/popupmenu.h"
#include "platform/linux/statusnotifier/dbusmenu.h"
#include "platform/linux/statusnotifier/statusnotifieritem.h"

#include <memory>
#include <optional>

namespace ferrin {

class HostResolver;
class PanelColors;

/// The application's item in the desktop's own status area. Hosts ignore its length: they draw each
/// picture as wide as it is.
class StatusNotifierStatusItem final : public StatusItem
{
    Q_OBJECT

public:
    /// The colours and the resolver outlive it.
    StatusNotifierStatusItem(const QDBusConnection &connection, HostResolver &resolver,
                             const PanelColors &colors, QObject *parent = nullptr);
    ~StatusNotifierStatusItem() override;

    void setLength(qreal length) override { m_length = length; }
    [[nodiscard]] qreal length() const override { return m_length; }
    [[nodiscard]] bool hasButton() const override { return true; }
    void removeContentViews() override;
    void addContentView(std::unique_ptr<ItemHostingView> view) override;
    void setContextMenu(const std::vector<MenuEntry> &entries) override;
    void setHighlighted(bool highlighted) override;
    [[nodiscard]] ItemPlace place() const override { return m_place; }
    void setPanelStanding(bool isStanding) { m_item.setPanelStanding(isStanding); }

    [[nodiscard]] std::optional<PanelAppearance> panelAppearance() const
    {
        return m_item.panelAppearance();
    }

Q_SIGNALS:
    void readersChanged();

private:
    void showContent();
    void activateAt(QPoint reported);
    void activateAtClick(std::optional<QPoint> click);
    void popUpMenu(QPoint reported);

    const PanelColors &m_colors;
    StatusNotifierItem m_item;
    DBusMenu m_menu;
    std::unique_ptr<ItemHostingView> m_view;
    std::unique_ptr<PopupMenu> m_popup;
    WaylandPointer m_pointer;
    ItemPlace m_place;
    qreal m_length = 0;
    bool m_isHighlighted = false;
};

} // namespace ferrin
