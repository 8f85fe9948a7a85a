// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/installtask.h"

#include "platform/linux/packagekit/packagekit.h"

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

InstallTask::InstallTask(PackageSystem system, Release release)
    : PackageTask(std::move(system), UpdateManner::interactive)
    , m_release(std::move(release))
    , m_wanted(PackageId::fromText(m_release.package).value_or(PackageId()))
{
}

void InstallTask::start()
{
    findInstalled([this](const PackageId &present) {
        findVersionOrder([this, present](VersionOrder order) {
            m_order = order;
            compare(present);
        });
    });
}

void InstallTask::compare(const PackageId &present)
{
    // Somebody else may have installed it meanwhile, or a newer one that this would replace.
    if (isOlder(present))
        install();
    else
        mustBeSetUp(present, [this] { Q_EMIT installed(); });
}

bool InstallTask::isOlder(const PackageId &present) const
{
    return present.isSibling(m_wanted)
        && is_lt(compareVersions(present.version, m_wanted.version, m_order));
}

void InstallTask::install()
{
    mustRun(u"UpdatePackages"_s, { packagekit::onlyTrusted, QStringList(m_release.package) },
            [this](const TransactionResult &) { verify(); });
    transaction()->setDownloadSize(m_release.size);
}

void InstallTask::verify()
{
    findInstalled([this](const PackageId &present) {
        if (isOlder(present) || !present.isSibling(m_wanted))
            Q_EMIT failed(
                { UpdateFailure::nothingDone, u"%1 is still installed"_s.arg(present.text()) });
        else
            mustBeSetUp(present, [this] { Q_EMIT installed(); });
    });
}

} // namespace ferrin
