// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateconditions.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace ferrin {

/// How the machine is connected: by a default route or not at all, as the kernel tells; metered or
/// not, as NetworkManager tells or guesses. Where there is no NetworkManager, nobody knows of
/// limits. It asks when it is asked, waits for nobody and starts nothing. Owned by the application.
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
