// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/network/httpsfetch.h"
#include "updates/updateengine.h"

#include <QDateTime>
#include <QNetworkAccessManager>
#include <QSslConfiguration>

#include <functional>
#include <memory>

namespace ferrin {

class PackageDownload;

/// Does the engine's tasks itself, in this process. Lives in the update helper, so that nothing of
/// the network stays in the program.
class NetworkUpdateEngine final : public UpdateEngine
{
    Q_OBJECT

public:
    struct Policy
    {
        /// Whom the servers' certificates must come from.
        QSslConfiguration ssl = QSslConfiguration::defaultConfiguration();
        FetchLimits feed = feedLimits();
        FetchLimits package = packageLimits();
        std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc;
    };

    [[nodiscard]] static FetchLimits feedLimits();
    [[nodiscard]] static FetchLimits packageLimits();

    explicit NetworkUpdateEngine(Policy policy);
    ~NetworkUpdateEngine() override;

    void check(const UpdateCheck &check) override;
    void download(const PackageRequest &request) override;
    void cancel() override;

private:
    void judge(const UpdateCheck &check, const std::optional<UpdateTrouble> &trouble);

    Policy m_policy;
    QNetworkAccessManager m_network;
    QByteArray m_feed;
    std::unique_ptr<HttpsFetch> m_fetch;
    std::unique_ptr<PackageDownload> m_download;
};

} // namespace ferrin
