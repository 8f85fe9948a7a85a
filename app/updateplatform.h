// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/connectioncost.h"
#include "platform/linux/session/desktoppackageinstaller.h"
#include "platform/linux/session/programstarter.h"
#include "updates/processupdateengine.h"
#include "updates/updater.h"

namespace ferrin {

/// What the process-wide updater is made of on Linux. Owned by `main`, for the life of the process;
/// it does nothing by itself.
class UpdatePlatform final
{
public:
    explicit UpdatePlatform(const QDBusConnection &systemBus);

    [[nodiscard]] Updater::Parts parts();

private:
    ProcessUpdateEngine m_engine;
    ConnectionCost m_network;
    DetachedProgramStarter m_starter;
    DesktopPackageInstaller m_installer;
};

} // namespace ferrin
