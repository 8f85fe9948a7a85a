// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/busquestions.h"

#include <QDBusPendingCallWatcher>
#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <limits>
#include <utility>

namespace ferrin {

namespace {

constexpr int noTimeout = std::numeric_limits<int>::max();
constexpr unsigned long microsecondsBetweenLooks = 200;

} // namespace

BusQuestions::BusQuestions(const QDBusConnection &bus, SteadyNow now, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_now(std::move(now))
{
}

void BusQuestions::ask(const QDBusMessage &question, const Answer &answer)
{
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question, noTimeout), this);
    if (m_open.empty())
        m_openSince = m_now();
    m_open.emplace_back(watcher, answer);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &BusQuestions::finish);
}

void BusQuestions::waitForAnswers(const QDeadlineTimer &deadline)
{
    while (!m_open.empty() && !deadline.hasExpired()) {
        const auto answered = std::find_if(m_open.begin(), m_open.end(), [](const auto &entry) {
            return entry.first->isFinished();
        });
        if (answered == m_open.end())
            QThread::usleep(microsecondsBetweenLooks);
        else
            finish(answered->first);
    }
}

void BusQuestions::forgetAll()
{
    for (const auto &[watcher, answer] : std::exchange(m_open, {}))
        watcher->deleteLater();
    m_openSince.reset();
}

std::chrono::steady_clock::duration BusQuestions::openFor() const
{
    return m_openSince ? m_now() - *m_openSince : std::chrono::steady_clock::duration::zero();
}

void BusQuestions::finish(QDBusPendingCallWatcher *watcher)
{
    const auto found = std::find_if(m_open.begin(), m_open.end(), [watcher](const auto &entry) {
        return entry.first == watcher;
    });
    if (found == m_open.end())
        return;
    const Answer answer = std::move(found->second);
    m_open.erase(found);
    watcher->deleteLater();
    if (m_open.empty())
        m_openSince.reset();
    answer(watcher->reply());
}

} // namespace ferrin
