// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostresolver.h"

#include "platform/linux/dbus/asynccall.h"
#include "platform/linux/sandbox/sandbox.h"

#include <QDBusMessage>
#include <QDBusReply>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// No session has this many hosts; further callers are not remembered.
constexpr qsizetype mostCallers = 64;

} // namespace

HostResolver::HostResolver(const QDBusConnection &connection, LookUp lookUp, QStringList desktops,
                           QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_lookUp(std::move(lookUp))
    , m_desktops(std::move(desktops))
{
    m_departures.setConnection(connection);
    m_departures.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_departures, &QDBusServiceWatcher::serviceUnregistered, this,
            &HostResolver::callerLeft);
}

void HostResolver::resolve(const QString &uniqueName, Answer answer)
{
    const auto known = m_callers.find(uniqueName);
    if (known != m_callers.end() && known->profile) {
        answer(*known->profile);
        return;
    }
    if (known != m_callers.end()) {
        known->waiting.push_back(std::move(answer));
        return;
    }
    if (m_callers.size() >= mostCallers) {
        answer(unknownProfile());
        return;
    }
    m_callers[uniqueName].waiting.push_back(std::move(answer));
    ask(uniqueName);
}

void HostResolver::ask(const QString &uniqueName)
{
    // There the bus and the kernel tell of no other process.
    if (isInSandbox()) {
        processFound(uniqueName, usualHostOf(m_desktops));
        return;
    }
    m_departures.addWatchedService(uniqueName);
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s,
        u"GetConnectionUnixProcessID"_s);
    call.setArguments({ uniqueName });
    callAsync(m_connection, call, this, [this, uniqueName](const QDBusMessage &message) {
        const QDBusReply<uint> reply = message;
        if (reply.isValid()) {
            processFound(uniqueName, m_lookUp(reply.value()));
            return;
        }
        // It has left before it was known, so its departure will not be announced.
        answerWaiting(uniqueName, unknownProfile());
        callerLeft(uniqueName);
    });
}

void HostResolver::processFound(const QString &uniqueName, const HostProcess &process)
{
    const HostProfile &profile = profileFor(process, m_desktops);
    Q_EMIT found(profile, process);
    answerWaiting(uniqueName, profile);
}

void HostResolver::answerWaiting(const QString &uniqueName, const HostProfile &profile)
{
    const auto caller = m_callers.find(uniqueName);
    if (caller == m_callers.end())
        return;
    caller->profile = &profile;
    const std::vector<Answer> waiting = std::exchange(caller->waiting, {});
    for (const Answer &answer : waiting)
        answer(profile);
}

bool HostResolver::hasIndicatorService() const
{
    return std::any_of(m_callers.cbegin(), m_callers.cend(), [](const Caller &caller) {
        return caller.profile && caller.profile->iconName;
    });
}

void HostResolver::callerLeft(const QString &uniqueName)
{
    m_departures.removeWatchedService(uniqueName);
    m_callers.remove(uniqueName);
    Q_EMIT left(uniqueName);
}

} // namespace ferrin
