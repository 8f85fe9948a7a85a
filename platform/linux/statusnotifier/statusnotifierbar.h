// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/statusnotifier/hostresolver.h"
#include "platform/linux/statusnotifier/itemregistration.h"
#include "platform/linux/statusnotifier/statusnotifierstatusitem.h"

namespace ferrin {

/// The desktop's status area: whatever hosts there are and will be.
class StatusNotifierBar final : public StatusBar
{
    Q_OBJECT

public:
    /// `lookUp` describes the callers' processes.
    StatusNotifierBar(const QDBusConnection &connection, const PanelColors &colors,
                      HostResolver::LookUp lookUp = hostProcessFromKernel,
                      QObject *parent = nullptr);
    ~StatusNotifierBar() override;

    void start();

    /// The host's panel stands at a side of the screen.
    void setPanelStanding(bool isStanding) { m_item.setPanelStanding(isStanding); }

    [[nodiscard]] qreal thickness() const override { return 22; }
    [[nodiscard]] StatusItem *item() override { return &m_item; }
    /// As the last host shows the item that has read it.
    [[nodiscard]] std::optional<PanelAppearance> panelAppearance() const
    {
        return m_item.panelAppearance();
    }

    [[nodiscard]] const HostResolver &resolver() const noexcept { return m_resolver; }
    [[nodiscard]] const ItemRegistration &registration() const noexcept { return m_registration; }

Q_SIGNALS:
    void readersChanged();

private:
    QDBusConnection m_connection;
    /// The bus name that is the item's own.
    QString m_serviceName;
    HostResolver m_resolver;
    StatusNotifierStatusItem m_item;
    ItemRegistration m_registration;
};

} // namespace ferrin
