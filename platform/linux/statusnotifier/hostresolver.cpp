// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostresolver.h"

#include "platform/linux/dbus/asynccall.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QFile>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// More callers than this at a time are no hosts; they need not be remembered.
constexpr qsizetype mostCallers = 64;

} // namespace

QString processNameFromKernel(uint processId)
{
    QFile comm(u"/proc/%1/comm"_s.arg(processId));
    if (!comm.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(comm.read(64)).trimmed();
}

HostResolver::HostResolver(const QDBusConnection &connection, ProcessName processName,
                           QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_processName(std::move(processName))
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
        answer(mixedProfile());
        return;
    }
    m_callers[uniqueName].waiting.push_back(std::move(answer));
    ask(uniqueName);
}

void HostResolver::ask(const QString &uniqueName)
{
    m_departures.addWatchedService(uniqueName);
    QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s,
        u"GetConnectionUnixProcessID"_s);
    question.setArguments({ uniqueName });
    callAsync(m_connection, question, this, [this, uniqueName](const QDBusMessage &message) {
        const QDBusReply<uint> reply = message;
        if (!reply.isValid()) {
            settle(uniqueName, mixedProfile());
            return;
        }
        const HostProfile &profile = profileForProcess(m_processName(reply.value()));
        Q_EMIT found(profile, reply.value());
        settle(uniqueName, profile);
    });
}

void HostResolver::settle(const QString &uniqueName, const HostProfile &profile)
{
    const auto caller = m_callers.find(uniqueName);
    if (caller == m_callers.end())
        return;
    caller->profile = &profile;
    const std::vector<Answer> waiting = std::exchange(caller->waiting, {});
    for (const Answer &answer : waiting)
        answer(profile);
}

void HostResolver::callerLeft(const QString &uniqueName)
{
    m_departures.removeWatchedService(uniqueName);
    m_callers.remove(uniqueName);
    Q_EMIT left(uniqueName);
}

} // namespace ferrin
