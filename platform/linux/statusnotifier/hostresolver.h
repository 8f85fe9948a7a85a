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
/// kernel its name and arguments. Asks once for each caller, without blocking; a caller of which
/// nothing can be learnt gets the profile of unknown hosts. In a sandbox, whose bus tells nothing
/// of others, every caller is taken for the desktop's own host.
class HostResolver : public QObject
{
    Q_OBJECT

public:
    using LookUp = std::function<HostProcess(uint processId)>;
    using Answer = std::function<void(const HostProfile &)>;

    /// `desktops` are the names of the running desktop.
    HostResolver(const QDBusConnection &connection, LookUp lookUp, QStringList desktops = {},
                 QObject *parent = nullptr);

    /// Calls `answer` at once if the caller is known, else when it is. Answers come in the order of
    /// the calls; none comes after the resolver is gone.
    void resolve(const QString &uniqueName, Answer answer);

    /// Whether a caller that draws icons by their names, an indicator service, is on the bus.
    [[nodiscard]] bool hasIndicatorService() const;

Q_SIGNALS:
    /// A caller has turned out to be such a host; it has not been answered yet.
    void found(const ferrin::HostProfile &profile, const ferrin::HostProcess &process);
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
    void processFound(const QString &uniqueName, const HostProcess &process);
    void answerWaiting(const QString &uniqueName, const HostProfile &profile);
    void callerLeft(const QString &uniqueName);

    QDBusConnection m_connection;
    LookUp m_lookUp;
    QStringList m_desktops;
    QDBusServiceWatcher m_departures;
    QHash<QString, Caller> m_callers;
};

} // namespace ferrin
