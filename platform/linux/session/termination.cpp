// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/termination.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array endings { SIGTERM, SIGINT, SIGHUP };

// A signal handler can call next to nothing: it writes a byte, and the event loop reads it.
std::array<int, 2> channel { -1, -1 };

void tellEventLoop(int)
{
    const char byte = 1;
    const ssize_t written = write(channel[1], &byte, 1);
    static_cast<void>(written);
}

} // namespace

Termination::Termination(const QDBusConnection &session, QObject *parent)
    : QObject(parent)
{
    listenToSignals();
    QDBusConnection(session).connect(QString(), u"/org/freedesktop/DBus/Local"_s,
                                     u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                                     SLOT(sessionEnded()));
}

Termination::~Termination()
{
    for (const int ending : endings)
        std::signal(ending, SIG_DFL);
    for (int &end : channel)
        close(std::exchange(end, -1));
}

void Termination::listenToSignals()
{
    if (pipe2(channel.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(channel[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    struct sigaction action
    {
    };
    action.sa_handler = tellEventLoop;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    for (const int ending : endings)
        sigaction(ending, &action, nullptr);
}

void Termination::sessionEnded()
{
    QCoreApplication::quit();
}

} // namespace ferrin
