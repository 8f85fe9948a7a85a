// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/appupdater.h"

#include <optional>

namespace ferrin {

namespace {

std::optional<Updater::Parts> &handedOver()
{
    static std::optional<Updater::Parts> parts;
    return parts;
}

} // namespace

UpdaterController::UpdaterController(const Updater::Parts &parts)
    : m_updater(parts)
{
    m_updater.start();
}

void AppUpdater::setParts(const Updater::Parts &parts)
{
    handedOver().emplace(parts);
}

AppUpdater &AppUpdater::shared()
{
    static auto *const instance = [] {
        if (!handedOver())
            qFatal("The updater was asked for before its parts were handed over");
        return new AppUpdater(*handedOver());
    }();
    return *instance;
}

AppUpdater::AppUpdater(const Updater::Parts &parts)
    : m_controller(parts)
{
}

} // namespace ferrin
