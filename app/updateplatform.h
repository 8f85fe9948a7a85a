// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packagekitengine.h"
#include "platform/linux/session/connectioncost.h"
#include "platform/linux/session/desktopnotice.h"
#include "updates/updater.h"

namespace ferrin {

/// What the process-wide updater is made of on Linux. Owned by `main`, for the life of the process;
/// it does nothing by itself.
class UpdatePlatform final
{
public:
    /// `program` is the file that this process runs.
    UpdatePlatform(const QDBusConnection &systemBus, const QDBusConnection &sessionBus,
                   const QString &program);

    [[nodiscard]] Updater::Parts parts();

private:
    PackageKitEngine m_engine;
    ConnectionCost m_network;
    DesktopNotice m_notice;
};

} // namespace ferrin
