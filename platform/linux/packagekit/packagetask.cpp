// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packagetask.h"

#include "platform/linux/packagekit/packagekit.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

VersionOrder orderOf(const QString &backend)
{
    if (backend.startsWith("apt"_L1))
        return VersionOrder::debian;
    const bool isOfRpm = backend.startsWith("dnf"_L1) || backend == "zypp"_L1;
    return isOfRpm ? VersionOrder::rpm : VersionOrder::unknown;
}

} // namespace

PackageTask::PackageTask(PackageSystem system, UpdateManner manner)
    : m_system(std::move(system))
    , m_manner(manner)
{
}

void PackageTask::abandon()
{
    if (m_transaction) {
        m_transaction->setParent(nullptr);
        m_transaction->disconnect(this);
        m_transaction->abandon();
    }
    disconnect();
    deleteLater();
}

void PackageTask::run(const QString &method, const QVariantList &arguments, Then then)
{
    m_transaction
        = new Transaction(m_system.bus, { method, arguments, m_manner }, m_system.timeout);
    m_transaction->setParent(this);
    connect(m_transaction, &Transaction::progressed, this, &PackageTask::progressed);
    connect(m_transaction, &Transaction::finished, this,
            [transaction = m_transaction.data(),
             then = std::move(then)](const TransactionResult &result) {
                transaction->deleteLater();
                then(result);
            });
    m_transaction->start();
}

void PackageTask::mustRun(const QString &method, const QVariantList &arguments, Then then)
{
    run(method, arguments, [this, then = std::move(then)](const TransactionResult &result) {
        if (result.trouble)
            Q_EMIT failed(*result.trouble);
        else
            then(result);
    });
}

void PackageTask::findInstalled(std::function<void(const PackageId &)> then)
{
    mustRun(u"SearchFiles"_s, { packagekit::installedOnly, QStringList(m_system.program) },
            [this, then = std::move(then)](const TransactionResult &result) {
                if (result.packages.isEmpty())
                    tellWhyNoneIsInstalled();
                else
                    then(result.packages.constFirst().id);
            });
}

void PackageTask::tellWhyNoneIsInstalled()
{
    // To PackageKit a package that dpkg has not set up completely is not installed.
    read(u"dpkg-query"_s, { u"--search"_s, m_system.program }, [this](const QByteArray &owner) {
        if (owner.isEmpty())
            Q_EMIT failed(
                { UpdateFailure::notPackaged, u"no package owns %1"_s.arg(m_system.program) });
        else
            Q_EMIT failed(
                { UpdateFailure::setupFailed,
                  u"dpkg has not set up %1"_s.arg(QString::fromUtf8(owner).simplified()) });
    });
}

void PackageTask::findVersionOrder(std::function<void(VersionOrder)> then)
{
    QDBusMessage get = QDBusMessage::createMethodCall(
        packagekit::service, packagekit::path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << packagekit::interface << u"BackendName"_s;
    const auto *const watcher = new QDBusPendingCallWatcher(m_system.bus.asyncCall(get), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [then = std::move(then)](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *finished;
                then(orderOf(reply.isValid() ? reply.value().variant().toString() : QString()));
            });
}

void PackageTask::mustBeSetUp(const PackageId &installed, std::function<void()> then)
{
    // PackageKit shows a half-configured package as any other.
    read(u"dpkg-query"_s,
         { u"--show"_s, u"--showformat=${db:Status-Status}"_s,
           installed.name + u':' + installed.architecture },
         [this, then = std::move(then)](const QByteArray &state) {
             if (state.isEmpty() || state == "installed")
                 then();
             else
                 Q_EMIT failed(
                     { UpdateFailure::setupFailed,
                       u"dpkg calls the package \"%1\""_s.arg(QString::fromUtf8(state)) });
         });
}

void PackageTask::read(const QString &program, const QStringList &arguments,
                       const std::function<void(const QByteArray &)> &then)
{
    m_system.read(this, program, arguments, then);
}

} // namespace ferrin
