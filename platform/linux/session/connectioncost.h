// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateconditions.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace ferrin {

/// How the machine is connected: whether it has a default route, by the kernel's tables, and
/// whether that is metered, by NetworkManager; without NetworkManager no connection counts as
/// metered. Never blocks and activates no service. Owned by the application.
class ConnectionCost final : public QObject, public NetworkCost
{
    Q_OBJECT

public:
    /// The folder holds the kernel's tables of routes.
    explicit ConnectionCost(const QDBusConnection &systemBus,
                            QString routes = QStringLiteral("/proc/net"));

    void ask(std::function<void(NetworkReach)> answer) override;

private:
    [[nodiscard]] bool hasDefaultRoute() const;

    QDBusConnection m_bus;
    QString m_routes;
};

} // namespace ferrin
