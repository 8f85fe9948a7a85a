// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QString>
#include <QTemporaryDir>

namespace ferrin::test {

/// A certificate authority of the test's own, which nobody else trusts.
class Authority
{
public:
    Authority();

    /// For a client that trusts this authority and no other.
    [[nodiscard]] QSslConfiguration trust() const;
    [[nodiscard]] QString certificatePath() const
    {
        return m_folder.filePath(QStringLiteral("ca.pem"));
    }

    /// For a server that proves to be this: "IP:127.0.0.1", "DNS:example.org".
    [[nodiscard]] QSslConfiguration serverFor(const QString &name) const;

private:
    void openssl(const QStringList &arguments) const;

    QTemporaryDir m_folder;
};

} // namespace ferrin::test
