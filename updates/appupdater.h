// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updater.h"

#include <QObject>

namespace ferrin {

/// Makes the updater and starts it at once. Owned by AppUpdater.
class UpdaterController final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ferrin::Updater *updater READ updater CONSTANT)

public:
    explicit UpdaterController(const Updater::Parts &parts);

    [[nodiscard]] Updater *updater() noexcept { return &m_updater; }

private:
    Updater m_updater;
};

/// The updater of the whole process. It is made while the application is constructed and lives
/// until the process ends.
class AppUpdater final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ferrin::UpdaterController *controller READ controller CONSTANT)

public:
    /// Hands over what the process-wide one is made of; the application does so once, before
    /// anything asks for it.
    static void setParts(const Updater::Parts &parts);
    /// The one of the process, made on first use and never destroyed. Asking before its parts were
    /// handed over is a programming error and stops the process.
    [[nodiscard]] static AppUpdater &shared();

    explicit AppUpdater(const Updater::Parts &parts);

    [[nodiscard]] UpdaterController *controller() noexcept { return &m_controller; }

private:
    UpdaterController m_controller;
};

} // namespace ferrin
