// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packagetask.h"

namespace ferrin {

/// Has the package manager download a package into its own archive, where the installation finds
/// it. Needs no authorization, and leaves an update that is prepared for the next start alone.
class DownloadTask final : public PackageTask
{
    Q_OBJECT

public:
    DownloadTask(PackageSystem system, Release release, UpdateManner manner);

    void start() override;

Q_SIGNALS:
    void downloaded();

private:
    Release m_release;
};

} // namespace ferrin
