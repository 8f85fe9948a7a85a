// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/checktask.h"

#include "base/logging.h"
#include "platform/linux/packagekit/appstreamnotes.h"
#include "platform/linux/packagekit/packagekit.h"
#include "platform/linux/packagekit/packagesources.h"

#include <QTimer>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

/// The notes are worth no longer wait. A server that sends them may stall.
constexpr std::chrono::seconds changelogTimeout { 10 };

/// How it is known that there is no changelog.
constexpr QLatin1StringView noChangelog = "not yet available"_L1;

/// As people read it, unless that does not tell it from the installed one.
QString shownVersion(const PackageId &newest, const PackageId &installed)
{
    const QString upstream = upstreamVersion(newest.version);
    return upstream == upstreamVersion(installed.version) ? newest.version : upstream;
}

/// "manual:" and the like stand before the origin of an installed package.
QString originOf(const PackageId &package)
{
    return package.source.section(u':', -1);
}

} // namespace

void CheckTask::start()
{
    findInstalled([this](const PackageId &installed) {
        m_installed = installed;
        findVersionOrder([this](VersionOrder order) {
            m_order = order;
            refresh();
        });
    });
}

void CheckTask::refresh()
{
    run(u"RefreshCache"_s, { true }, [this](const TransactionResult &result) {
        if (result.trouble)
            judge(result);
        else
            findUpdate();
    });
}

void CheckTask::judge(const TransactionResult &refresh)
{
    // The installed version alone does not tell: it may be in no list any more.
    run(u"Resolve"_s, { packagekit::noFilter, QStringList(m_installed.name) },
        [this, refresh](const TransactionResult &known) {
            QStringList origins;
            for (const auto &found : known.packages)
                origins.append(originOf(found.id));
            judge(refresh, origins);
        });
}

void CheckTask::judge(const TransactionResult &refresh, const QStringList &origins)
{
    read(u"apt-get"_s,
         { u"indextargets"_s, u"--format"_s, targetsFormat, u"Created-By: Packages"_s },
         [this, refresh, origins](const QByteArray &targets) {
             if (!isOfOtherSources(refresh.errors, sourceNames(targets, origins))) {
                 Q_EMIT failed(*refresh.trouble);
                 return;
             }
             qCInfo(logger, "Another package source failed: %s",
                    qUtf8Printable(refresh.trouble->detail));
             findUpdate();
         });
}

void CheckTask::findUpdate()
{
    mustRun(u"GetUpdates"_s, { packagekit::noFilter }, [this](const TransactionResult &updates) {
        if (const auto newest = newestOf(updates))
            describe(*newest);
        else
            mustBeSetUp(m_installed, [this] { Q_EMIT checked(std::nullopt); });
    });
}

std::optional<PackageId> CheckTask::newestOf(const TransactionResult &updates) const
{
    std::optional<PackageId> newest;
    for (const auto &[id, isBlocked] : updates.packages) {
        const QString &least = newest ? newest->version : m_installed.version;
        if (!isBlocked && id.isSibling(m_installed)
            && is_gt(compareVersions(id.version, least, m_order)))
            newest = id;
    }
    return newest;
}

void CheckTask::describe(const PackageId &newest)
{
    m_release = { .version = shownVersion(newest, m_installed),
                  .package = newest.text(),
                  .date = std::nullopt,
                  .size = std::nullopt,
                  .notes = QString() };
    run(u"GetDetails"_s, { QStringList(newest.text()) },
        [this, newest](const TransactionResult &result) {
            m_release.size = result.size;
            findNotes(newest);
        });
}

void CheckTask::findNotes(const PackageId &newest)
{
    read(u"appstreamcli"_s, { u"dump"_s, u"org.ferrin.Ferrin"_s },
         [this, newest](const QByteArray &xml) {
             const auto notes = notesFromAppStream(xml, upstreamVersion(newest.version));
             m_release.notes = notes.text;
             m_release.date = notes.date;
             if (notes.text.isEmpty())
                 readChangelog(newest);
             else
                 Q_EMIT checked(m_release);
         });
}

void CheckTask::readChangelog(const PackageId &newest)
{
    run(u"GetUpdateDetail"_s, { QStringList(newest.text()) },
        [this](const TransactionResult &result) {
            if (!result.changelog.contains(noChangelog))
                m_release.notes = harmlessNotes(result.changelog);
            Q_EMIT checked(m_release);
        });
    QTimer::singleShot(changelogTimeout, transaction(), &Transaction::stall);
}

} // namespace ferrin
