// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packageid.h"
#include "updates/updateengine.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QList>
#include <QObject>
#include <QTimer>
#include <QVariantList>

#include <chrono>
#include <optional>

namespace ferrin {

/// One call of PackageKit's transaction interface.
struct TransactionRequest
{
    QString method;
    QVariantList arguments;
    UpdateManner manner = UpdateManner::interactive;
};

/// All that a transaction reported until its end.
struct TransactionResult
{
    struct FoundPackage
    {
        PackageId id;
        bool isBlocked = false;
    };

    /// Absent when it succeeded.
    std::optional<UpdateTrouble> trouble;
    /// The package manager's own words for it, in lines; empty when there are none.
    QString errors;
    QList<FoundPackage> packages;
    /// Bytes of the download; absent unless details were asked for.
    std::optional<qint64> size;
    /// Plain text; empty unless it was asked for and there is one.
    QString changelog;
};

/// One transaction of PackageKit, from its creation to its end. The service starts with it when it
/// does not run. A service that vanishes and a download that stalls end it as failures. Owned by
/// the task whose step it is.
class Transaction final : public QObject
{
    Q_OBJECT

public:
    /// How long nothing may be heard of a transaction that depends on a server.
    static constexpr std::chrono::seconds usualTimeout { 60 };

    Transaction(const QDBusConnection &bus, TransactionRequest request,
                std::chrono::milliseconds timeout = usualTimeout);

    void start();

    /// Tells nothing more, cancels as soon as PackageKit allows it, and deletes itself at the end.
    /// To cancel earlier would kill the package manager in the middle of its work.
    void abandon();

    /// Fails, as one that nothing was heard of for too long.
    void stall();

    /// How much there is to download, which makes progress a share of it.
    void setDownloadSize(std::optional<qint64> bytes) { m_size = bytes; }

Q_SIGNALS:
    void progressed(const ferrin::UpdateProgress &progress);
    /// Once.
    void finished(const ferrin::TransactionResult &result);

private Q_SLOTS:
    void takeSignal(const QDBusMessage &message);
    void takeChanges(const QString &interface, const QVariantMap &changed,
                     const QStringList &invalidated);

private:
    void create();
    void begin(const QDBusMessage &reply);
    void subscribe();
    void askWhetherItCanBeCancelled();
    void send();
    void takePackage(const QVariantList &arguments);
    void takeError(const QVariantList &arguments);
    void takeEnd(uint exit);
    void cancelIfAllowed();
    void finish(const std::optional<UpdateTrouble> &trouble);
    void tellProgress();
    [[nodiscard]] UpdateActivity activity() const;
    [[nodiscard]] QDBusMessage call(const QString &interface, const QString &method) const;

    QDBusConnection m_bus;
    TransactionRequest m_request;
    /// The service's own name: a call to it never starts another service.
    QString m_owner;
    QString m_path;
    QDBusServiceWatcher m_watcher;
    QTimer m_timeout;
    TransactionResult m_result;
    std::optional<UpdateTrouble> m_error;
    std::optional<qint64> m_size;
    std::optional<qint64> m_remaining;
    uint m_status = 0;
    uint m_percentage = 0;
    /// Until the service has said otherwise.
    bool m_canCancel = false;
    bool m_wantsCancel = false;
    bool m_isAbandoned = false;
    bool m_isFinished = false;
};

} // namespace ferrin
