// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/transaction.h"

#include "platform/linux/packagekit/packagekit.h"
#include "platform/linux/packagekit/packagekiterror.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

/// Long enough for the user to type a password, since the answer may wait for that.
constexpr int callTimeout = 24 * 60 * 60 * 1000;

QStringList hintsOf(UpdateManner manner)
{
    const bool isBackground = manner == UpdateManner::background;
    // The errors are told apart by their English words.
    return { u"locale=C.UTF-8"_s, isBackground ? u"background=true"_s : u"background=false"_s,
             isBackground ? u"interactive=false"_s : u"interactive=true"_s };
}

} // namespace

Transaction::Transaction(const QDBusConnection &bus, TransactionRequest request,
                         std::chrono::milliseconds timeout)
    : m_bus(bus)
    , m_request(std::move(request))
{
    m_timeout.setSingleShot(true);
    m_timeout.setInterval(timeout);
    m_timeout.callOnTimeout(this, &Transaction::stall);
    m_watcher.setConnection(m_bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        finish(UpdateTrouble { UpdateFailure::serviceBroken,
                               u"PackageKit ended during %1"_s.arg(m_request.method) });
    });
}

void Transaction::start()
{
    create();
}

void Transaction::abandon()
{
    m_isAbandoned = true;
    m_wantsCancel = true;
    if (m_isFinished)
        deleteLater();
    else
        cancelIfAllowed();
}

void Transaction::create()
{
    const QDBusMessage message = QDBusMessage::createMethodCall(
        packagekit::service, packagekit::path, packagekit::interface, u"CreateTransaction"_s);
    const auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusObjectPath> reply = *finished;
                if (reply.isError())
                    finish(troubleFrom(reply.error()));
                else if (m_isAbandoned)
                    finish(std::nullopt);
                else
                    begin(reply.reply());
            });
}

void Transaction::begin(const QDBusMessage &reply)
{
    m_owner = reply.service();
    m_path = reply.arguments().constFirst().value<QDBusObjectPath>().path();
    m_watcher.addWatchedService(m_owner);
    subscribe();
    askWhetherItCanBeCancelled();
    send();
    tellProgress();
}

void Transaction::subscribe()
{
    m_bus.connect(m_owner, m_path, packagekit::transactionInterface, QString(), this,
                  SLOT(takeSignal(QDBusMessage)));
    m_bus.connect(m_owner, m_path, propertiesInterface, u"PropertiesChanged"_s, this,
                  SLOT(takeChanges(QString, QVariantMap, QStringList)));
}

void Transaction::askWhetherItCanBeCancelled()
{
    QDBusMessage get = call(propertiesInterface, u"Get"_s);
    get << packagekit::transactionInterface << u"AllowCancel"_s;
    const auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(get), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *finished;
                if (reply.isValid())
                    takeChanges(packagekit::transactionInterface,
                                { { u"AllowCancel"_s, reply.value().variant() } }, {});
            });
}

void Transaction::send()
{
    QDBusMessage hints = call(packagekit::transactionInterface, u"SetHints"_s);
    hints << hintsOf(m_request.manner);
    m_bus.asyncCall(hints);

    QDBusMessage message = call(packagekit::transactionInterface, m_request.method);
    message.setArguments(m_request.arguments);
    const auto *const watcher
        = new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                // Its signals say how it went.
                if (finished->isError())
                    finish(m_error ? *m_error : troubleFrom(finished->error()));
            });
}

void Transaction::takeSignal(const QDBusMessage &message)
{
    const QString member = message.member() + message.signature();
    const QVariantList arguments = message.arguments();
    if (member == "Packageuss"_L1)
        takePackage(arguments);
    else if (member == "Detailsa{sv}"_L1)
        m_result.size = qdbus_cast<QVariantMap>(arguments[0]).value(u"size"_s).toLongLong();
    else if (member == "UpdateDetailsasasasasasussuss"_L1)
        m_result.changelog
            = arguments[7].toString().isEmpty() ? arguments[8].toString() : arguments[7].toString();
    else if (member == "ErrorCodeus"_L1)
        takeError(arguments);
    else if (member == "Finisheduu"_L1)
        takeEnd(arguments[0].toUInt());
    tellProgress();
}

void Transaction::takePackage(const QVariantList &arguments)
{
    const auto id = PackageId::fromText(arguments[1].toString());
    const uint info = arguments[0].toUInt() & packagekit::infoMask;
    if (id)
        m_result.packages.append({ *id, info == packagekit::blockedInfo });
}

void Transaction::takeError(const QVariantList &arguments)
{
    // The first one is the cause: a cancelled transaction tells of another.
    if (m_error)
        return;
    m_result.errors = arguments[1].toString();
    m_error = troubleFrom(arguments[0].toUInt(), m_result.errors);
}

void Transaction::takeEnd(uint exit)
{
    if (exit == packagekit::success)
        finish(std::nullopt);
    else
        finish(m_error.value_or(UpdateTrouble {
            UpdateFailure::serviceError, u"%1 ended with %2"_s.arg(m_request.method).arg(exit) }));
}

void Transaction::takeChanges(const QString &interface, const QVariantMap &changed,
                              const QStringList &)
{
    if (interface != packagekit::transactionInterface)
        return;
    m_status = changed.value(u"Status"_s, m_status).toUInt();
    m_percentage = changed.value(u"Percentage"_s, m_percentage).toUInt();
    // It is told as 0 until PackageKit has counted.
    const qint64 remaining
        = changed.value(u"DownloadSizeRemaining"_s, m_remaining.value_or(0)).toLongLong();
    if (remaining > 0 || m_remaining)
        m_remaining = remaining;
    if (changed.contains(u"AllowCancel"_s)) {
        m_canCancel = changed.value(u"AllowCancel"_s).toBool();
        cancelIfAllowed();
    }
    tellProgress();
}

void Transaction::stall()
{
    m_error = UpdateTrouble { UpdateFailure::tooSlow, u"%1 stood still"_s.arg(m_request.method) };
    m_wantsCancel = true;
    cancelIfAllowed();
}

void Transaction::cancelIfAllowed()
{
    if (!m_wantsCancel || !m_canCancel || m_path.isEmpty() || m_isFinished)
        return;
    m_wantsCancel = false;
    m_bus.asyncCall(call(packagekit::transactionInterface, u"Cancel"_s));
}

void Transaction::finish(const std::optional<UpdateTrouble> &trouble)
{
    if (std::exchange(m_isFinished, true))
        return;
    m_timeout.stop();
    if (m_isAbandoned) {
        deleteLater();
        return;
    }
    m_result.trouble = trouble;
    Q_EMIT finished(m_result);
}

void Transaction::tellProgress()
{
    if (m_isFinished || m_isAbandoned)
        return;
    const UpdateActivity now = activity();
    // Only a server is waited for with a limit; a user or another installation takes its time.
    if (now == UpdateActivity::working || now == UpdateActivity::downloading)
        m_timeout.start();
    else
        m_timeout.stop();

    UpdateProgress progress { now, std::nullopt, m_canCancel };
    if (now == UpdateActivity::downloading && m_size.value_or(0) > 0 && m_remaining)
        progress.done = std::clamp(1 - double(*m_remaining) / double(*m_size), 0.0, 1.0);
    else if (now == UpdateActivity::installing && m_percentage <= packagekit::allPercent)
        progress.done = double(m_percentage) / packagekit::allPercent;
    Q_EMIT progressed(progress);
}

UpdateActivity Transaction::activity() const
{
    switch (m_status) {
    case packagekit::waitsForTurn:
    case packagekit::waitsForLock:
        return UpdateActivity::waiting;
    case packagekit::waitsForAuthorization:
        return UpdateActivity::authorizing;
    case packagekit::downloads:
        return UpdateActivity::downloading;
    case packagekit::installs:
        return UpdateActivity::installing;
    default:
        return UpdateActivity::working;
    }
}

QDBusMessage Transaction::call(const QString &interface, const QString &method) const
{
    return QDBusMessage::createMethodCall(m_owner, m_path, interface, method);
}

} // namespace ferrin
