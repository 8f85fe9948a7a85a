// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/httpsserver.h"

#include <QSslSocket>
#include <QTimer>

namespace ferrin::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 enoughInFlight = 64LL * 1024;

HttpsServer::Request requestFrom(const QByteArray &text)
{
    HttpsServer::Request request;
    const QList<QByteArray> lines = text.split('\n');
    request.path = lines.first().split(' ').value(1);
    for (const QByteArray &line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    return request;
}

/// The part that was asked for by "bytes=FROM-".
HttpsServer::Answer partOf(const QByteArray &file, const QByteArray &range)
{
    const qsizetype from = range.sliced(6).chopped(1).toLongLong();
    if (from >= file.size())
        return { .status = 416 };
    return { .status = 206,
             .body = file.sliced(from),
             .headers
             = { "Content-Range: bytes " + QByteArray::number(from) + '-'
                 + QByteArray::number(file.size() - 1) + '/' + QByteArray::number(file.size()) } };
}

} // namespace

HttpsServer::HttpsServer(const QSslConfiguration &configuration)
{
    m_server.setSslConfiguration(configuration);
    connect(&m_server, &QTcpServer::pendingConnectionAvailable, this, [this] {
        while (QTcpSocket *const socket = m_server.nextPendingConnection())
            serve(socket);
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("The server does not stand");
}

QUrl HttpsServer::url(const QString &file) const
{
    return QUrl(u"https://127.0.0.1:%1/%2"_s.arg(m_server.serverPort()).arg(file));
}

void HttpsServer::serve(QTcpSocket *socket)
{
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    const auto text = std::make_shared<QByteArray>();
    const auto read = [this, socket, text] {
        const bool wasWhole = text->contains("\r\n\r\n");
        *text += socket->readAll();
        if (wasWhole || !text->contains("\r\n\r\n"))
            return;
        requests.append(requestFrom(*text));
        send(answerTo(requests.last()), socket);
    };
    connect(socket, &QTcpSocket::readyRead, this, read);
    read();
}

HttpsServer::Answer HttpsServer::answerTo(const Request &request) const
{
    if (const auto answer = answers.constFind(request.path); answer != answers.cend())
        return (*answer)(request);
    const auto file = files.constFind(request.path);
    if (file == files.cend())
        return { .status = 404 };
    const QByteArray range = request.headers.value("range");
    return range.isEmpty() ? Answer { .body = *file } : partOf(*file, range);
}

void HttpsServer::send(const Answer &answer, QTcpSocket *socket)
{
    QByteArray head
        = "HTTP/1.1 " + QByteArray::number(answer.status) + " So\r\nConnection: close\r\n";
    for (const QByteArray &header : answer.headers)
        head += header + "\r\n";
    const qint64 length = answer.length.value_or(answer.body.size());
    if (length >= 0)
        head += "Content-Length: " + QByteArray::number(length) + "\r\n";
    socket->write(head + "\r\n");

    const auto repeat = [socket](std::chrono::milliseconds pause, const QByteArray &piece) {
        auto *const timer = new QTimer(socket);
        timer->callOnTimeout(socket, [socket, piece] {
            if (socket->bytesToWrite() < enoughInFlight)
                socket->write(piece);
        });
        timer->start(pause);
    };
    switch (answer.manner) {
    case Manner::whole:
        socket->write(answer.body);
        socket->disconnectFromHost();
        return;
    case Manner::cutShort:
        socket->write(answer.body.first(answer.count));
        socket->disconnectFromHost();
        return;
    case Manner::stalled:
        socket->write(answer.body.first(answer.count));
        return;
    case Manner::endless:
        repeat(0ms, answer.body);
        return;
    case Manner::trickling:
        repeat(5ms, "."_ba);
        return;
    }
}

} // namespace ferrin::test
