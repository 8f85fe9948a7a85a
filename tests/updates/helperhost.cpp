// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/networkupdateengine.h"
#include "updates/network/updatehelper.h"

#include <QCoreApplication>
#include <QNetworkProxyFactory>
#include <QSslCertificate>

#include <csignal>
#include <sys/resource.h>

using namespace ferrin;

/// The update helper for tests: [CERTIFICATE [BYTES]]. It trusts the one authority, that of the
/// environment unless it is told another, and cannot write files that are longer.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QNetworkProxyFactory::setUseSystemConfiguration(false);
    NetworkUpdateEngine::Policy policy;
    policy.ssl.setCaCertificates(QSslCertificate::fromPath(
        arguments.value(1, qEnvironmentVariable("FERRIN_TEST_AUTHORITY"))));
    if (arguments.size() > 2) {
        const rlimit limit { arguments.at(2).toULong(), arguments.at(2).toULong() };
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR)
            return EXIT_FAILURE;
    }
    NetworkUpdateEngine engine(policy);
    const UpdateHelper helper(engine);
    return QCoreApplication::exec();
}
