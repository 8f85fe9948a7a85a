// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/upower/fakeupower.h"

#include "tests/support/privatebus.h"

#include <QCoreApplication>
#include <QDBusMessage>

#include <csignal>

namespace ferrin::test {

using namespace Qt::StringLiterals;

FakeUPower::FakeUPower(const QString &busAddress, const QDBusConnection &control)
    : m_control(control)
{
    PrivateBus::endWithTest(&m_process);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program(), { busAddress });
    while (!m_process.canReadLine() && m_process.waitForReadyRead()) { }
    if (m_process.readLine().trimmed() != "ready")
        qFatal("the fake UPower did not start");
}

FakeUPower::~FakeUPower()
{
    kill();
}

QString FakeUPower::program()
{
    return QCoreApplication::applicationDirPath() + u"/fakeupower"_s;
}

QString FakeUPower::path(const QString &name)
{
    return u"/org/freedesktop/UPower/devices/"_s + name;
}

void FakeUPower::setDevice(const QString &name, const QVariantMap &properties)
{
    control(u"SetDevice"_s, { path(name), properties });
}

void FakeUPower::setDeviceQuietly(const QString &name, const QVariantMap &properties)
{
    control(u"SetDeviceQuietly"_s, { path(name), properties });
}

void FakeUPower::removeDevice(const QString &name)
{
    control(u"RemoveDevice"_s, { path(name) });
}

void FakeUPower::addMany(const QString &prefix, uint count, const QVariantMap &properties)
{
    control(u"AddMany"_s, { path(prefix), count, properties });
}

void FakeUPower::makeShy(const QString &name)
{
    control(u"MakeShy"_s, { path(name) });
}

void FakeUPower::talkNonsense()
{
    control(u"TalkNonsense"_s);
}

void FakeUPower::refuse(const QString &text)
{
    control(u"Refuse"_s, { text });
}

uint FakeUPower::questions()
{
    return control(u"Questions"_s);
}

void FakeUPower::hang()
{
    ::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP);
}

void FakeUPower::resume()
{
    ::kill(static_cast<pid_t>(m_process.processId()), SIGCONT);
}

void FakeUPower::kill()
{
    m_process.kill();
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished();
}

uint FakeUPower::control(const QString &method, const QVariantList &arguments)
{
    QDBusMessage order = QDBusMessage::createMethodCall(u"org.freedesktop.UPower"_s, u"/control"_s,
                                                        u"org.ferrin.FakeUPower"_s, method);
    order.setArguments(arguments);
    const QDBusMessage answer = m_control.call(order);
    if (answer.type() != QDBusMessage::ReplyMessage)
        qFatal("the fake UPower did not obey: %s", qPrintable(answer.errorMessage()));
    return answer.arguments().value(0).toUInt();
}

QVariantMap battery()
{
    return { { u"Type"_s, 2U },
             { u"PowerSupply"_s, true },
             { u"IsPresent"_s, true },
             { u"State"_s, 2U },
             { u"Percentage"_s, 50.0 },
             { u"TimeToEmpty"_s, qlonglong(3600) },
             { u"TimeToFull"_s, qlonglong(0) },
             { u"Model"_s, u"DELL 70N2F95"_s },
             { u"NativePath"_s, u"BAT0"_s } };
}

QVariantMap battery(const QVariantMap &other)
{
    QVariantMap properties = battery();
    properties.insert(other);
    return properties;
}

QVariantMap mouse()
{
    return battery({ { u"Type"_s, 5U }, { u"PowerSupply"_s, false } });
}

} // namespace ferrin::test
