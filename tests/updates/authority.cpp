// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/authority.h"

#include <QFile>
#include <QProcess>
#include <QSslKey>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

const QStringList newKey { u"req"_s,    u"-x509"_s,    u"-newkey"_s,
                           u"ec"_s,     u"-pkeyopt"_s, u"ec_paramgen_curve:prime256v1"_s,
                           u"-nodes"_s, u"-days"_s,    u"2"_s };

} // namespace

Authority::Authority()
{
    openssl(newKey
            + QStringList { u"-subj"_s, u"/CN=Test authority"_s, u"-keyout"_s, u"ca.key"_s,
                            u"-out"_s, u"ca.pem"_s });
}

QSslConfiguration Authority::trust() const
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(QSslCertificate::fromData(contentsOf(certificatePath())));
    return configuration;
}

QSslConfiguration Authority::serverFor(const QString &name) const
{
    openssl(newKey
            + QStringList { u"-subj"_s, u"/CN=Test server"_s, u"-CA"_s, u"ca.pem"_s, u"-CAkey"_s,
                            u"ca.key"_s, u"-addext"_s, u"subjectAltName=%1"_s.arg(name),
                            u"-addext"_s, u"basicConstraints=critical,CA:FALSE"_s, u"-keyout"_s,
                            u"server.key"_s, u"-out"_s, u"server.pem"_s });
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(
        QSslCertificate(contentsOf(m_folder.filePath(u"server.pem"_s))));
    configuration.setPrivateKey(QSslKey(contentsOf(m_folder.filePath(u"server.key"_s)), QSsl::Ec));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    return configuration;
}

void Authority::openssl(const QStringList &arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(u"openssl"_s, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("openssl: %s", process.readAllStandardError().constData());
}

} // namespace ferrin::test
