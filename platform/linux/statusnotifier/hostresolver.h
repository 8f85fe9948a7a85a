// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/statusnotifier/hosttable.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>

#include <functional>
#include <vector>

namespace ferrin {

/// Knows what kind of host stands behind a caller's unique bus name: the bus tells the process, the
/// kernel its name. Asks once a caller and never waits; a caller of whom nothing can be learnt gets
/// the mixed profile.
class HostResolver : public QObject
{
    Q_OBJECT

public:
    using ProcessName = std::function<QString(uint processId)>;
    using Answer = std::function<void(const HostProfile &)>;

    explicit HostResolver(const QDBusConnection &connection, ProcessName processName,
                          QObject *parent = nullptr);

    /// Calls `answer` at once if the caller is known, else when it is. Answers come in the order of
    /// the questions; none comes after the resolver is gone.
    void resolve(const QString &uniqueName, Answer answer);

Q_SIGNALS:
    /// A caller has turned out to be such a host; it has not been answered yet.
    void found(const ferrin::HostProfile &profile, uint processId);
    /// The caller has left the bus.
    void left(const QString &uniqueName);

private:
    struct Caller
    {
        /// Null until the bus has answered.
        const HostProfile *profile = nullptr;
        std::vector<Answer> waiting;
    };

    void ask(const QString &uniqueName);
    void settle(const QString &uniqueName, const HostProfile &profile);
    void callerLeft(const QString &uniqueName);

    QDBusConnection m_connection;
    ProcessName m_processName;
    QDBusServiceWatcher m_departures;
    QHash<QString, Caller> m_callers;
};

/// The name that the kernel has for the process; empty when there is none such.
[[nodiscard]] QString processNameFromKernel(uint processId);

} // namespace ferrin
