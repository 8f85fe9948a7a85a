// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/network/httpsfetch.h"
#include "updates/network/packagestore.h"
#include "updates/updateengine.h"

#include <QObject>
#include <QSslConfiguration>

#include <memory>
#include <optional>

class QNetworkAccessManager;

namespace ferrin {

/// Brings a package to the disk: takes one that is whole there, continues a part of it, and begins
/// again, once, where the continuation does not lead to the package. Owned by the engine; ends
/// without a word when it is destroyed.
class PackageDownload final : public QObject
{
    Q_OBJECT

public:
    /// The limits' length is the package's own.
    PackageDownload(QNetworkAccessManager &network, const QSslConfiguration &ssl,
                    const PackageRequest &request, const FetchLimits &limits);

    /// The rest follows by signals.
    void start();

    [[nodiscard]] const QString &path() const noexcept { return m_store.path(); }

Q_SIGNALS:
    /// Bytes on the disk.
    void progressed(qint64 received, qint64 total);
    /// Absent when the package is whole at `path()`.
    void finished(const std::optional<ferrin::UpdateTrouble> &trouble);

private:
    void fetch();
    void end(const std::optional<UpdateTrouble> &trouble);
    void conclude(const std::optional<UpdateTrouble> &trouble);
    [[nodiscard]] bool maySucceedFromTheStart(UpdateFailure failure) const;
    [[nodiscard]] std::optional<UpdateTrouble> begin(const HttpsFetch::Head &head);
    [[nodiscard]] std::optional<UpdateTrouble> take(const QByteArray &piece);

    QNetworkAccessManager &m_network;
    QSslConfiguration m_ssl;
    PackageRequest m_request;
    FetchLimits m_limits;
    PackageStore m_store;
    std::unique_ptr<HttpsFetch> m_fetch;
    /// The present fetch goes on where an earlier one ended.
    bool m_isContinued = false;
};

} // namespace ferrin
