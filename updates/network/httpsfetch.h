// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updatefailure.h"

#include <QByteArray>
#include <QObject>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace ferrin {

/// How patient a fetch is.
struct FetchLimits
{
    /// Bytes; a longer body is refused as soon as it shows.
    qint64 maximumLength = 0;
    /// From the first to the last byte, redirects included.
    std::chrono::milliseconds totalTime {};
    /// In each span of this length at least `leastProgress` bytes must come.
    std::chrono::milliseconds span {};
    qint64 leastProgress = 0;
};

/// One file from an HTTPS server, handed on piece by piece. Follows redirects to HTTPS alone, at
/// most five of them, whatever the host: what was fetched proves itself by its signature or its
/// hash. Sends no cookies, no credentials and no name beside the program's. Owned by the task that
/// needs the file; ends at once when it is destroyed, without a word.
class HttpsFetch final : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        QUrl url;
        /// Bytes that are there already; the server may decline and begin at the first.
        qint64 from = 0;
        FetchLimits limits;
    };
    /// What the answer says before its body.
    struct Head
    {
        /// Byte at which the body begins: what was asked for, or 0.
        qint64 from = 0;
        /// Of the body that comes, in bytes; absent when the server does not say.
        std::optional<qint64> length;
    };
    /// Each may refuse to go on; the fetch then ends with that trouble.
    struct Receiver
    {
        std::function<std::optional<UpdateTrouble>(const Head &)> begin;
        std::function<std::optional<UpdateTrouble>(const QByteArray &)> take;
    };

    HttpsFetch(QNetworkAccessManager &network, const QSslConfiguration &ssl, Request request,
               Receiver receiver);
    ~HttpsFetch() override;

    /// `finished` follows, never before this has returned.
    void start();

Q_SIGNALS:
    /// Absent when all of the body was taken.
    void finished(const std::optional<ferrin::UpdateTrouble> &trouble);

private:
    [[nodiscard]] QNetworkRequest networkRequest(const QSslConfiguration &ssl) const;
    void receive();
    void conclude();
    void checkProgress();
    void end(const std::optional<UpdateTrouble> &trouble);
    [[nodiscard]] std::optional<UpdateTrouble> begin();
    [[nodiscard]] std::optional<UpdateTrouble> take();

    QNetworkAccessManager &m_network;
    QSslConfiguration m_ssl;
    Request m_request;
    Receiver m_receiver;
    QNetworkReply *m_reply = nullptr;
    QTimer m_totalTimer;
    QTimer m_progressTimer;
    bool m_hasBegun = false;
    /// Bytes of the body, all of them and those of the present span.
    qint64 m_received = 0;
    qint64 m_receivedInSpan = 0;
};

} // namespace ferrin
