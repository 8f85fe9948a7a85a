// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/packagedownload.h"

#include <QUrl>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

/// Whether what has come may be the beginning of the package, and has room where it lies.
bool isWorthKeepingAfter(UpdateFailure failure)
{
    return failure != UpdateFailure::badPackage && failure != UpdateFailure::tooLarge
        && failure != UpdateFailure::diskFull && failure != UpdateFailure::cannotWrite;
}

} // namespace

PackageDownload::PackageDownload(QNetworkAccessManager &network, const QSslConfiguration &ssl,
                                 const PackageRequest &request, const FetchLimits &limits)
    : m_network(network)
    , m_ssl(ssl)
    , m_request(request)
    , m_limits(limits)
    , m_store(request.folder, request.package)
{
    m_limits.maximumLength = request.package.length;
}

void PackageDownload::start()
{
    if (const auto trouble = m_store.open()) {
        end(trouble);
        return;
    }
    if (m_store.isWhole()) {
        m_store.throwAway();
        end(std::nullopt);
        return;
    }
    fetch();
}

void PackageDownload::fetch()
{
    const qint64 have = m_store.have();
    m_isContinued = have > 0;
    if (have >= m_request.package.length) {
        conclude(std::nullopt);
        return;
    }
    // The name is a plain one, so this stays beside the feed.
    const QUrl url = m_request.feed.resolved(QUrl(u"./"_s + m_request.package.file));
    m_fetch = std::make_unique<HttpsFetch>(
        m_network, m_ssl, HttpsFetch::Request { url, have, m_limits },
        HttpsFetch::Receiver { [this](const auto &head) { return begin(head); },
                               [this](const auto &piece) { return take(piece); } });
    connect(m_fetch.get(), &HttpsFetch::finished, this, &PackageDownload::conclude);
    m_fetch->start();
}

std::optional<UpdateTrouble> PackageDownload::begin(const HttpsFetch::Head &head)
{
    if (head.length && head.from + *head.length != m_request.package.length)
        return UpdateTrouble { UpdateFailure::badPackage,
                               u"%1 has another length than the feed tells"_s.arg(
                                   m_request.package.file) };
    return m_store.beginAt(head.from);
}

std::optional<UpdateTrouble> PackageDownload::take(const QByteArray &piece)
{
    if (const auto trouble = m_store.append(piece))
        return trouble;
    Q_EMIT progressed(m_store.have(), m_request.package.length);
    return std::nullopt;
}

void PackageDownload::conclude(const std::optional<UpdateTrouble> &fetched)
{
    const auto trouble = fetched ? fetched : m_store.complete();
    if (trouble && m_isContinued && maySucceedFromTheStart(trouble->failure)) {
        if (const auto stillTrouble = m_store.beginAt(0)) {
            end(stillTrouble);
            return;
        }
        // The fetch that has ended is on the stack.
        if (m_fetch)
            m_fetch.release()->deleteLater();
        fetch();
        return;
    }
    if (trouble && !isWorthKeepingAfter(trouble->failure))
        m_store.throwAway();
    end(trouble);
}

void PackageDownload::end(const std::optional<UpdateTrouble> &trouble)
{
    // Before anybody hears of it and begins again.
    m_store.close();
    Q_EMIT finished(trouble);
}

bool PackageDownload::maySucceedFromTheStart(UpdateFailure failure) const
{
    // The part was of another file, or the server does not care for parts.
    return failure == UpdateFailure::badPackage || failure == UpdateFailure::serverTrouble;
}

} // namespace ferrin
