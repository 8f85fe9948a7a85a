// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/steadynow.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QDBusPendingCallWatcher;
class QDeadlineTimer;

namespace ferrin {

/// Asynchronous D-Bus calls without a timeout: a service that hangs replies once it continues, and
/// for one that has died the bus replies with an error. So no call is repeated and no timer runs.
/// Calls that are pending when this object is destroyed are abandoned.
class PendingCalls final : public QObject
{
    Q_OBJECT

public:
    using ReplyHandler = std::function<void(const QDBusMessage &)>;

    PendingCalls(const QDBusConnection &bus, SteadyNow now, QObject *parent = nullptr);

    /// The handler is called once, with the reply or the error, never from within this function.
    void call(const QDBusMessage &message, const ReplyHandler &handler);

    /// Handles replies until no call is pending or the deadline has passed. Runs no event loop, so
    /// that no other event is handled meanwhile.
    void waitForReplies(const QDeadlineTimer &deadline);

    /// The handlers of the pending calls will not be called.
    void abandonAll();

    /// For how long at least one call has been pending without interruption; zero while none is.
    [[nodiscard]] std::chrono::steady_clock::duration pendingTime() const;

private:
    void finish(QDBusPendingCallWatcher *watcher);

    QDBusConnection m_bus;
    SteadyNow m_now;
    /// In the order in which they were made.
    std::vector<std::pair<QDBusPendingCallWatcher *, ReplyHandler>> m_pending;
    std::optional<std::chrono::steady_clock::time_point> m_pendingSince;
};

} // namespace ferrin
