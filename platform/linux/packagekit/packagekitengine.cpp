// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packagekitengine.h"

#include "platform/linux/packagekit/checktask.h"
#include "platform/linux/packagekit/downloadtask.h"
#include "platform/linux/packagekit/installtask.h"
#include "platform/linux/packagekit/packagekit.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

bool isInPackageFolder(const QString &program)
{
    return program.startsWith("/usr/"_L1) && !program.startsWith("/usr/local/"_L1);
}

namespace {

UpdateSupport supportAtFirst(const PackageSystem &system)
{
    if (system.isSandboxed)
        return UpdateSupport::sandboxed;
    return isInPackageFolder(system.program) ? UpdateSupport::full : UpdateSupport::notPackaged;
}

} // namespace

PackageKitEngine::PackageKitEngine(PackageSystem system)
    : m_system(std::move(system))
    , m_support(supportAtFirst(m_system))
{
}

PackageKitEngine::~PackageKitEngine()
{
    delete m_task;
}

void PackageKitEngine::refreshSupport()
{
    if (m_support == UpdateSupport::notPackaged || m_support == UpdateSupport::sandboxed)
        return;
    const QDBusMessage message
        = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                         u"org.freedesktop.DBus"_s, u"ListActivatableNames"_s);
    const auto *const watcher = new QDBusPendingCallWatcher(m_system.bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QStringList> reply = *finished;
                const bool exists = reply.isValid() && reply.value().contains(packagekit::service);
                setSupport(exists ? UpdateSupport::full : UpdateSupport::noService);
            });
}

void PackageKitEngine::check(UpdateManner manner)
{
    auto *const task = new CheckTask(m_system, manner);
    connect(task, &CheckTask::checked, this, [this](const std::optional<Release> &release) {
        end();
        Q_EMIT checked(release);
    });
    begin(task);
}

void PackageKitEngine::download(const Release &release, UpdateManner manner)
{
    auto *const task = new DownloadTask(m_system, release, manner);
    connect(task, &DownloadTask::downloaded, this, [this] {
        end();
        Q_EMIT downloaded();
    });
    begin(task);
}

void PackageKitEngine::install(const Release &release)
{
    auto *const task = new InstallTask(m_system, release);
    connect(task, &InstallTask::installed, this, [this] {
        end();
        Q_EMIT installed();
    });
    begin(task);
}

void PackageKitEngine::cancel()
{
    if (m_task)
        std::exchange(m_task, nullptr)->abandon();
}

template <typename Task>
void PackageKitEngine::begin(Task *task)
{
    cancel();
    m_task = task;
    connect(task, &PackageTask::progressed, this, &PackageKitEngine::progressed);
    connect(task, &PackageTask::failed, this, &PackageKitEngine::takeFailure);
    task->start();
}

void PackageKitEngine::end()
{
    if (m_task)
        std::exchange(m_task, nullptr)->deleteLater();
}

void PackageKitEngine::takeFailure(const UpdateTrouble &trouble)
{
    end();
    if (trouble.failure == UpdateFailure::notPackaged)
        setSupport(UpdateSupport::notPackaged);
    else if (trouble.failure == UpdateFailure::noService)
        setSupport(UpdateSupport::noService);
    Q_EMIT failed(trouble);
}

void PackageKitEngine::setSupport(UpdateSupport support)
{
    if (std::exchange(m_support, support) != support)
        Q_EMIT supportChanged();
}

} // namespace ferrin
