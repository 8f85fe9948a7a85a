// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packagetask.h"

namespace ferrin {

/// Installs a trusted package over an older version, never over a newer one, and asks afterwards
/// whether that has happened: success alone does not mean it.
class InstallTask final : public PackageTask
{
    Q_OBJECT

public:
    InstallTask(PackageSystem system, Release release);

    void start() override;

Q_SIGNALS:
    void installed();

private:
    void compare(const PackageId &present);
    void install();
    void verify();
    [[nodiscard]] bool isOlder(const PackageId &present) const;

    Release m_release;
    PackageId m_wanted;
    VersionOrder m_order = VersionOrder::unknown;
};

} // namespace ferrin
