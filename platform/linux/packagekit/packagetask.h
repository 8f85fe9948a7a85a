// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/commandreader.h"
#include "platform/linux/packagekit/transaction.h"
#include "updates/packageversion.h"
#include "updates/updateengine.h"

#include <QDBusConnection>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

namespace ferrin {

/// What tasks need to know of the system.
struct PackageSystem
{
    QDBusConnection bus;
    /// The file that a package may own, absolute.
    QString program;
    /// Whether the program runs in a sandbox, from which no package can be reached.
    bool isSandboxed = false;
    CommandReader read = &readCommand;
    std::chrono::milliseconds timeout = Transaction::usualTimeout;
};

/// A task of the engine: transactions one after the other, until it tells how it ended. Owned by
/// the engine; what is left of an abandoned one ends by itself.
class PackageTask : public QObject
{
    Q_OBJECT

public:
    PackageTask(PackageSystem system, UpdateManner manner);

    virtual void start() = 0;
    /// Tells nothing more and goes once PackageKit has let go of its transaction.
    void abandon();

Q_SIGNALS:
    void progressed(const ferrin::UpdateProgress &progress);
    void failed(const ferrin::UpdateTrouble &trouble);

protected:
    using Then = std::function<void(const TransactionResult &)>;

    /// Makes the next transaction, whose end is handed to `then`, whatever it is.
    void run(const QString &method, const QVariantList &arguments, Then then);
    /// As `run`; a failure ends the task, and `then` is not called.
    void mustRun(const QString &method, const QVariantList &arguments, Then then);
    /// The installed package that owns the program. Without one the task fails.
    void findInstalled(std::function<void(const PackageId &)> then);
    /// Whose rules versions follow on this system.
    void findVersionOrder(std::function<void(VersionOrder)> then);
    /// Fails if the package manager did not finish setting the package up.
    void mustBeSetUp(const PackageId &installed, std::function<void()> then);
    void read(const QString &program, const QStringList &arguments,
              const std::function<void(const QByteArray &)> &then);

    [[nodiscard]] Transaction *transaction() const { return m_transaction; }

private:
    void tellWhyNoneIsInstalled();

    PackageSystem m_system;
    UpdateManner m_manner;
    QPointer<Transaction> m_transaction;
};

} // namespace ferrin
