// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/pendingcalls.h"

#include <QDBusPendingCallWatcher>
#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <limits>
#include <utility>

namespace ferrin {

namespace {

constexpr int noTimeout = std::numeric_limits<int>::max();
constexpr unsigned long pollIntervalInMicroseconds = 200;

} // namespace

PendingCalls::PendingCalls(const QDBusConnection &bus, SteadyNow now, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_now(std::move(now))
{
}

void PendingCalls::call(const QDBusMessage &message, const ReplyHandler &handler)
{
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, noTimeout), this);
    if (m_pending.empty())
        m_pendingSince = m_now();
    m_pending.emplace_back(watcher, handler);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &PendingCalls::finish);
}

void PendingCalls::waitForReplies(const QDeadlineTimer &deadline)
{
    while (!m_pending.empty() && !deadline.hasExpired()) {
        const auto finished
            = std::find_if(m_pending.begin(), m_pending.end(),
                           [](const auto &entry) { return entry.first->isFinished(); });
        if (finished == m_pending.end())
            QThread::usleep(pollIntervalInMicroseconds);
        else
            finish(finished->first);
    }
}

void PendingCalls::abandonAll()
{
    for (const auto &[watcher, handler] : std::exchange(m_pending, {}))
        watcher->deleteLater();
    m_pendingSince.reset();
}

std::chrono::steady_clock::duration PendingCalls::pendingTime() const
{
    return m_pendingSince ? m_now() - *m_pendingSince : std::chrono::steady_clock::duration::zero();
}

void PendingCalls::finish(QDBusPendingCallWatcher *watcher)
{
    const auto found
        = std::find_if(m_pending.begin(), m_pending.end(),
                       [watcher](const auto &entry) { return entry.first == watcher; });
    if (found == m_pending.end())
        return;
    const ReplyHandler handler = std::move(found->second);
    m_pending.erase(found);
    watcher->deleteLater();
    if (m_pending.empty())
        m_pendingSince.reset();
    handler(watcher->reply());
}

} // namespace ferrin
