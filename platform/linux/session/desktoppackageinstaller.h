// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/programstarter.h"
#include "updates/packageinstaller.h"

#include <QStringList>

namespace ferrin {

/// Gives a package to the program that this desktop installs packages with: its software centre or
/// a small installer, else whatever the user opens packages with. The program asks the user, and
/// the system for the rights.
class DesktopPackageInstaller final : public PackageInstaller
{
public:
    /// The names as `currentDesktopNames()` returns them. The starter outlives this.
    DesktopPackageInstaller(ProgramStarter &starter, QStringList desktops);

    [[nodiscard]] bool install(const QString &path) override;

private:
    ProgramStarter &m_starter;
    QStringList m_desktops;
};

} // namespace ferrin
