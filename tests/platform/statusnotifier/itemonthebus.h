// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/statusnotifier/hostresolver.h"
#include "platform/linux/statusnotifier/statusnotifieritem.h"
#include "tests/platform/support/buspeer.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>
#include <vector>

namespace ferrin::test {

inline const QString itemPath = QStringLiteral("/StatusNotifierItem");
inline const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
inline const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

/// What the tests of the item on the bus stand on: a bus of its own, the item there with usual
/// content, and as many hosts of any kind as a test wants.
class ItemOnTheBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// A caller whose process goes by this name, that hears every signal of the item.
    BusPeer *newHost(const QString &process);
    QVariant read(BusPeer *host, const QString &name);

    std::unique_ptr<PrivateBus> m_bus;
    QDBusConnection m_connection { QStringLiteral("none") };
    QString m_service;
    QString m_process;
    int m_lookUps = 0;
    std::unique_ptr<HostResolver> m_resolver;
    std::unique_ptr<PanelColors> m_colors;
    std::unique_ptr<StatusNotifierItem> m_item;
    std::vector<std::unique_ptr<BusPeer>> m_hosts;
};

} // namespace ferrin::test
