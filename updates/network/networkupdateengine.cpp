// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/networkupdateengine.h"

#include "updates/network/feedjudgement.h"
#include "updates/network/packagedownload.h"

#include <utility>

namespace ferrin {

using namespace std::chrono_literals;

FetchLimits NetworkUpdateEngine::feedLimits()
{
    return { .maximumLength = 256LL * 1024, .totalTime = 1min, .span = 20s, .leastProgress = 1 };
}

FetchLimits NetworkUpdateEngine::packageLimits()
{
    return { .maximumLength = Package::maximumLength,
             .totalTime = 3h,
             .span = 30s,
             .leastProgress = 30LL * 1024 };
}

NetworkUpdateEngine::NetworkUpdateEngine(Policy policy)
    : m_policy(std::move(policy))
{
}

NetworkUpdateEngine::~NetworkUpdateEngine() = default;

void NetworkUpdateEngine::check(const UpdateCheck &check)
{
    m_feed.clear();
    m_fetch = std::make_unique<HttpsFetch>(
        m_network, m_policy.ssl, HttpsFetch::Request { check.feed, 0, m_policy.feed },
        HttpsFetch::Receiver { [](const auto &) { return std::nullopt; },
                               [this](const QByteArray &piece) -> std::optional<UpdateTrouble> {
                                   m_feed += piece;
                                   return std::nullopt;
                               } });
    connect(m_fetch.get(), &HttpsFetch::finished, this,
            [this, check](const auto &trouble) { judge(check, trouble); });
    m_fetch->start();
}

void NetworkUpdateEngine::judge(const UpdateCheck &check,
                                const std::optional<UpdateTrouble> &trouble)
{
    if (trouble) {
        Q_EMIT failed(*trouble);
        return;
    }
    const auto judged = judgeFeed(m_feed, check, m_policy.now());
    if (const auto *const offer = std::get_if<UpdateOffer>(&judged))
        Q_EMIT checked(*offer);
    else
        Q_EMIT failed(std::get<UpdateTrouble>(judged));
}

void NetworkUpdateEngine::download(const PackageRequest &request)
{
    m_download
        = std::make_unique<PackageDownload>(m_network, m_policy.ssl, request, m_policy.package);
    connect(m_download.get(), &PackageDownload::progressed, this, &UpdateEngine::progressed);
    connect(m_download.get(), &PackageDownload::finished, this, [this](const auto &trouble) {
        if (trouble)
            Q_EMIT failed(*trouble);
        else
            Q_EMIT downloaded(m_download->path());
    });
    // Even what is there already is told later.
    QMetaObject::invokeMethod(m_download.get(), &PackageDownload::start, Qt::QueuedConnection);
}

void NetworkUpdateEngine::cancel()
{
    m_fetch.reset();
    m_download.reset();
}

} // namespace ferrin
