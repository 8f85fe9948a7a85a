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

/// Calls over the bus whose answers come whenever they come. No call has a timeout: who hangs
/// answers when he goes on, and for who has died the bus answers with an error; so nothing is asked
/// twice and no timer runs. Owned by whoever asks, and what is unanswered when it goes is never
/// answered.
class BusQuestions final : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const QDBusMessage &)>;

    BusQuestions(const QDBusConnection &bus, SteadyNow now, QObject *parent = nullptr);

    /// Calls the answer once with the reply or the error, never from within.
    void ask(const QDBusMessage &question, const Answer &answer);

    /// Hands out answers until no question is open or the deadline has passed. Runs no event loop,
    /// since nobody else's events may be handled meanwhile.
    void waitForAnswers(const QDeadlineTimer &deadline);

    /// What is open now is not answered any more.
    void forgetAll();

    /// For how long some question has been open without a pause; zero while none is.
    [[nodiscard]] std::chrono::steady_clock::duration openFor() const;

private:
    void finish(QDBusPendingCallWatcher *watcher);

    QDBusConnection m_bus;
    SteadyNow m_now;
    /// In the order in which they were asked.
    std::vector<std::pair<QDBusPendingCallWatcher *, Answer>> m_open;
    std::optional<std::chrono::steady_clock::time_point> m_openSince;
};

} // namespace ferrin
