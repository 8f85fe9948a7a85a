// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/updates/authority.h"
#include "tests/updates/httpsserver.h"
#include "tests/updates/testfeed.h"
#include "updates/network/networkupdateengine.h"

#include <QNetworkProxyFactory>
#include <QTemporaryDir>
#include <QTest>

#include <optional>
#include <variant>

namespace ferrin::test {

/// An engine that trusts one authority, and a server that it certifies.
struct NetworkBench
{
    using Answer = std::variant<UpdateOffer, QString, UpdateTrouble>;

    NetworkBench()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        server.files.insert("/feed", signedJson(goodFeed(package), key));
        server.files.insert("/" + package.file.toUtf8(), bytes);
    }

    [[nodiscard]] UpdateEngine &engine()
    {
        if (!m_engine) {
            m_engine.emplace(policy);
            QObject::connect(&*m_engine, &UpdateEngine::checked, &server,
                             [this](const UpdateOffer &offer) { answers.append(offer); });
            QObject::connect(&*m_engine, &UpdateEngine::downloaded, &server,
                             [this](const QString &path) { answers.append(path); });
            QObject::connect(&*m_engine, &UpdateEngine::failed, &server,
                             [this](const UpdateTrouble &trouble) { answers.append(trouble); });
        }
        return *m_engine;
    }

    /// The one answer to a task; empty when none came in any good time.
    [[nodiscard]] std::optional<Answer> answer()
    {
        constexpr int patience = 60000;
        if (!QTest::qWaitFor([this] { return !answers.isEmpty(); }, patience)
            || answers.size() != 1)
            return std::nullopt;
        return answers.takeFirst();
    }

    [[nodiscard]] std::optional<Answer> check(std::optional<UpdateCheck> check = std::nullopt)
    {
        engine().check(check.value_or(checkOf(server.url(QStringLiteral("feed")), key)));
        return answer();
    }

    [[nodiscard]] std::optional<Answer> download()
    {
        engine().download(request());
        return answer();
    }

    [[nodiscard]] PackageRequest request() const
    {
        return { server.url(QStringLiteral("feed")), package, downloads() };
    }

    [[nodiscard]] QString downloads() const
    {
        return folder.filePath(QStringLiteral("cache/ferrin/updates"));
    }

    /// The names of what lies among the downloads.
    [[nodiscard]] QStringList downloaded() const
    {
        return QDir(downloads()).entryList(QDir::Files, QDir::Name);
    }

    [[nodiscard]] QByteArray contents(const QString &name) const
    {
        QFile file(downloads() + QLatin1Char('/') + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const QString &name, const QByteArray &bytesOfFile) const
    {
        QFile file(downloads() + QLatin1Char('/') + name);
        QVERIFY(QDir().mkpath(downloads()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytesOfFile), bytesOfFile.size());
    }

    Authority authority;
    HttpsServer server { authority.serverFor(QStringLiteral("IP:127.0.0.1")) };
    SigningKey key = newSigningKey();
    QByteArray bytes = somePackage(300'000);
    Package package = packageOf(bytes, QStringLiteral("ferrin_1.3.0_amd64.deb"));
    QTemporaryDir folder;
    NetworkUpdateEngine::Policy policy { .ssl = authority.trust(),
                                         .now = [] { return readingTime; } };
    QList<Answer> answers;

private:
    std::optional<NetworkUpdateEngine> m_engine;
};

/// The name of the failure of an answer that is one; else empty.
inline QString failureOf(const std::optional<NetworkBench::Answer> &answer)
{
    const auto *const trouble = answer ? std::get_if<UpdateTrouble>(&*answer) : nullptr;
    return trouble ? rawValue(trouble->failure) : QString();
}

} // namespace ferrin::test
