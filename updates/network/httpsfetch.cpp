// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/httpsfetch.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr int redirects = 5;
constexpr int ok = 200;
constexpr int partialContent = 206;
constexpr qint64 bufferSize = 256LL * 1024;

UpdateFailure failureOf(QNetworkReply::NetworkError error)
{
    if (error == QNetworkReply::SslHandshakeFailedError)
        return UpdateFailure::notTheServer;
    if (error == QNetworkReply::InsecureRedirectError
        || error == QNetworkReply::ProtocolUnknownError)
        return UpdateFailure::notEncrypted;
    if (error == QNetworkReply::TooManyRedirectsError
        || error >= QNetworkReply::ContentAccessDenied)
        return UpdateFailure::serverTrouble;
    return UpdateFailure::noConnection;
}

int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// The first byte that a partial answer brings.
std::optional<qint64> beginningOf(const QNetworkReply &reply)
{
    static const QRegularExpression range(u"\\Abytes ([0-9]{1,18})-[0-9]{1,18}/"_s);
    const auto match = range.match(QString::fromLatin1(reply.rawHeader("Content-Range")));
    return match.hasMatch() ? std::optional(match.captured(1).toLongLong()) : std::nullopt;
}

} // namespace

HttpsFetch::HttpsFetch(QNetworkAccessManager &network, const QSslConfiguration &ssl,
                       Request request, Receiver receiver)
    : m_network(network)
    , m_ssl(ssl)
    , m_request(std::move(request))
    , m_receiver(std::move(receiver))
{
    m_totalTimer.setSingleShot(true);
    m_totalTimer.callOnTimeout(this, [this] {
        end(UpdateTrouble { UpdateFailure::tooSlow, u"it took too long"_s });
    });
    m_progressTimer.callOnTimeout(this, &HttpsFetch::checkProgress);
}

HttpsFetch::~HttpsFetch()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
}

void HttpsFetch::start()
{
    m_totalTimer.start(m_request.limits.totalTime);
    m_progressTimer.start(m_request.limits.span);
    if (m_request.url.scheme() != "https"_L1) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                end(UpdateTrouble {
                    UpdateFailure::notEncrypted,
                    u"%1 is not an HTTPS address"_s.arg(m_request.url.toDisplayString()) });
            },
            Qt::QueuedConnection);
        return;
    }
    m_reply = m_network.get(networkRequest(m_ssl));
    m_reply->setReadBufferSize(bufferSize);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpsFetch::receive);
    connect(m_reply, &QNetworkReply::finished, this, &HttpsFetch::conclude);
}

QNetworkRequest HttpsFetch::networkRequest(const QSslConfiguration &ssl) const
{
    QNetworkRequest request(m_request.url);
    request.setSslConfiguration(ssl);
    request.setMaximumRedirectsAllowed(redirects);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    for (const auto attribute :
         { QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
           QNetworkRequest::AuthenticationReuseAttribute })
        request.setAttribute(attribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      u"Ferrin/%1"_s.arg(QCoreApplication::applicationVersion()));
    // The bytes as they were signed, and as many as were announced.
    request.setRawHeader("Accept-Encoding", "identity");
    if (m_request.from > 0)
        request.setRawHeader("Range", "bytes=" + QByteArray::number(m_request.from) + '-');
    return request;
}

void HttpsFetch::receive()
{
    // The body of an error is told by the error.
    const int status = statusOf(*m_reply);
    if (status != ok && status != partialContent) {
        m_reply->readAll();
        return;
    }
    if (const auto trouble = take())
        end(trouble);
}

std::optional<UpdateTrouble> HttpsFetch::begin()
{
    m_hasBegun = true;
    Head head;
    if (statusOf(*m_reply) == partialContent) {
        const auto from = beginningOf(*m_reply);
        if (m_request.from == 0 || from != m_request.from)
            return UpdateTrouble { UpdateFailure::serverTrouble,
                                   u"the server sent another part than was asked for"_s };
        head.from = *from;
    }
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid())
        head.length = length.toLongLong();
    if (head.length > m_request.limits.maximumLength)
        return UpdateTrouble { UpdateFailure::tooLarge, u"the server announced too much"_s };
    return m_receiver.begin(head);
}

std::optional<UpdateTrouble> HttpsFetch::take()
{
    if (!m_hasBegun) {
        if (const auto trouble = begin())
            return trouble;
    }
    const QByteArray piece = m_reply->readAll();
    m_received += piece.size();
    m_receivedInSpan += piece.size();
    if (m_received > m_request.limits.maximumLength)
        return UpdateTrouble { UpdateFailure::tooLarge, u"the server sent too much"_s };
    return piece.isEmpty() ? std::nullopt : m_receiver.take(piece);
}

void HttpsFetch::conclude()
{
    if (m_reply->error() != QNetworkReply::NoError) {
        end(UpdateTrouble { failureOf(m_reply->error()), m_reply->errorString() });
        return;
    }
    const int status = statusOf(*m_reply);
    if (status != ok && status != partialContent) {
        end(UpdateTrouble { UpdateFailure::serverTrouble,
                            u"the server answered %1"_s.arg(status) });
        return;
    }
    end(take());
}

void HttpsFetch::checkProgress()
{
    if (m_receivedInSpan < m_request.limits.leastProgress)
        end(UpdateTrouble { UpdateFailure::tooSlow, u"hardly anything came"_s });
    m_receivedInSpan = 0;
}

void HttpsFetch::end(const std::optional<UpdateTrouble> &trouble)
{
    m_totalTimer.stop();
    m_progressTimer.stop();
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
        std::exchange(m_reply, nullptr)->deleteLater();
    }
    Q_EMIT finished(trouble);
}

} // namespace ferrin
