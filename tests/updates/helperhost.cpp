// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/networkupdateengine.h"
#include "updates/network/updatehelper.h"

#include <QCoreApplication>
#include <QNetworkProxyFactory>
#include <QSslCertificate>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>

using namespace ferrin;

namespace {

bool limitFiles(rlim_t bytes)
{
    const rlimit limit { bytes, bytes };
    return setrlimit(RLIMIT_FSIZE, &limit) == 0 && std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR;
}

/// From now on the kernel finds no room for anything that is longer than a request to a server.
bool fillDisks()
{
    constexpr unsigned longestRequest = 1024;
    std::array filter {
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_write, 0, 3),
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JGT | BPF_K, longestRequest, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSPC),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program { filter.size(), filter.data() };
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace

/// The update helper for tests: [CERTIFICATE [BYTES | full]]. It trusts the one authority, that of
/// the environment unless it is told another, and cannot write files that are longer, or to any
/// disk.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QNetworkProxyFactory::setUseSystemConfiguration(false);
    NetworkUpdateEngine::Policy policy;
    policy.ssl.setCaCertificates(QSslCertificate::fromPath(
        arguments.value(1, qEnvironmentVariable("FERRIN_TEST_AUTHORITY"))));
    if (const QString room = arguments.value(2); !room.isEmpty()) {
        if (room == QLatin1String("full") ? !fillDisks() : !limitFiles(room.toULong()))
            return EXIT_FAILURE;
    }
    NetworkUpdateEngine engine(policy);
    const UpdateHelper helper(engine);
    return QCoreApplication::exec();
}
