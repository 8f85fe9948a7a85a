// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSslServer>
#include <QTcpServer>
#include <QUrl>

#include <functional>
#include <memory>

namespace ferrin::test {

/// An HTTPS server on the loopback device, in the test's own event loop. It serves its files, parts
/// of them too, unless the test has it answer in some other manner.
class HttpsServer final : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        QByteArray path;
        /// By their names in lower case.
        QHash<QByteArray, QByteArray> headers;
    };
    enum class Manner {
        whole,
        /// Only the first `count` bytes, and then the connection is closed.
        cutShort,
        /// Only the first `count` bytes, and then nothing more ever comes.
        stalled,
        /// The body again and again.
        endless,
        /// A byte now and then.
        trickling,
    };
    struct Answer
    {
        int status = 200;
        QByteArray body {};
        QList<QByteArray> headers {};
        Manner manner = Manner::whole;
        qsizetype count = 0;
        /// What the answer says is its length; by default the body's, none at all when negative.
        std::optional<qint64> length {};
    };

    explicit HttpsServer(const QSslConfiguration &configuration);

    /// Of a file of the server.
    [[nodiscard]] QUrl url(const QString &file) const;

    QHash<QByteArray, QByteArray> files;
    /// What is answered for this path, in place of the file.
    QHash<QByteArray, std::function<Answer(const Request &)>> answers;
    /// So far, in their order.
    QList<Request> requests;

private:
    void serve(QTcpSocket *socket);
    [[nodiscard]] Answer answerTo(const Request &request) const;
    static void send(const Answer &answer, QTcpSocket *socket);

    QSslServer m_server;
};

} // namespace ferrin::test
