// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/downloadtask.h"

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

DownloadTask::DownloadTask(PackageSystem system, Release release, UpdateManner manner)
    : PackageTask(std::move(system), manner)
    , m_release(std::move(release))
{
}

void DownloadTask::start()
{
    const bool intoArchive = true;
    mustRun(u"DownloadPackages"_s, { intoArchive, QStringList(m_release.package) },
            [this](const TransactionResult &) { Q_EMIT downloaded(); });
    transaction()->setDownloadSize(m_release.size);
}

} // namespace ferrin
