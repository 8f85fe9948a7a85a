// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/statusarea/dbusmenu.h"
#include "platform/linux/statusarea/hostresolver.h"
#include "platform/linux/statusarea/itemregistration.h"
#include "platform/linux/statusarea/popupmenu.h"
#include "platform/linux/statusarea/statusnotifieritem.h"
#include "platform/linux/statusarea/waylandpointer.h"

#include <memory>
#include <optional>

namespace ferrin {

class PanelColours;

/// The application's item in the desktop's own status area. Its length is kept but binds nobody: a
/// host draws each picture as wide as it is.
class StatusNotifierStatusItem final : public StatusItem
{
    Q_OBJECT

public:
    /// The colours and the resolver outlive it.
    StatusNotifierStatusItem(const QDBusConnection &connection, HostResolver &resolver,
                             const PanelColours &colours, QObject *parent = nullptr);
    ~StatusNotifierStatusItem() override;

    void setLength(qreal length) override { m_length = length; }
    [[nodiscard]] qreal length() const override { return m_length; }
    [[nodiscard]] bool hasButton() const override { return true; }
    void removeContentViews() override;
    void addContentView(std::unique_ptr<ItemHostingView> view) override;
    void setContextMenu(const std::vector<MenuEntry> &entries) override;
    void setHighlighted(bool highlighted) override;
    [[nodiscard]] ItemPlace place() const override { return m_place; }

private:
    void showContent();
    void activateAt(QPoint told);
    void activateAtClick(std::optional<QPoint> click);
    void popUpMenu(QPoint told);

    const PanelColours &m_colours;
    StatusNotifierItem m_item;
    DBusMenu m_menu;
    std::unique_ptr<ItemHostingView> m_view;
    std::unique_ptr<PopupMenu> m_popup;
    WaylandPointer m_pointer;
    ItemPlace m_place;
    qreal m_length = 0;
    bool m_isHighlighted = false;
};

/// The desktop's status area: whatever hosts there are and will be.
class StatusNotifierBar final : public StatusBar
{
    Q_OBJECT

public:
    /// `processName` says what the callers' processes are called.
    StatusNotifierBar(const QDBusConnection &connection, const PanelColours &colours,
                      HostResolver::ProcessName processName = processNameFromKernel,
                      QObject *parent = nullptr);
    ~StatusNotifierBar() override;

    void start();

    [[nodiscard]] qreal thickness() const override { return 22; }
    [[nodiscard]] StatusItem *item() override { return &m_item; }
    [[nodiscard]] const HostResolver &resolver() const noexcept { return m_resolver; }
    [[nodiscard]] const ItemRegistration &registration() const noexcept { return m_registration; }

private:
    QDBusConnection m_connection;
    /// The bus name that is the item's own.
    QString m_serviceName;
    HostResolver m_resolver;
    StatusNotifierStatusItem m_item;
    ItemRegistration m_registration;
};

} // namespace ferrin
