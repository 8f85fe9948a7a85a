// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/privatebus.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>

#include <csignal>
#include <sys/prctl.h>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

const QString configuration = uR"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%1/bus</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%1/services</servicedir>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_type="method_call"/>
    <allow send_type="signal"/>
    <allow send_requested_reply="true" send_type="method_return"/>
    <allow send_requested_reply="true" send_type="error"/>
    <allow receive_type="method_call"/>
    <allow receive_type="method_return"/>
    <allow receive_type="error"/>
    <allow receive_type="signal"/>
  </policy>
</busconfig>
)"_s;

void write(const QString &path, const QString &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace

PrivateBus::PrivateBus()
{
    QDir(m_folder.path()).mkdir(u"services"_s);
    const QString file = m_folder.filePath(u"bus.conf"_s);
    write(file, configuration.arg(m_folder.path()));
    endWithTest(&m_process);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(u"dbus-daemon"_s,
                    { u"--config-file=%1"_s.arg(file), u"--nofork"_s, u"--print-address=1"_s });
    while (!m_process.canReadLine() && m_process.waitForReadyRead()) { }
    m_address = QString::fromUtf8(m_process.readLine()).trimmed();
    if (m_address.isEmpty())
        qFatal("the private bus did not start");
}

PrivateBus::~PrivateBus()
{
    for (const QString &name : std::as_const(m_connections))
        QDBusConnection::disconnectFromBus(name);
    stop();
}

QDBusConnection PrivateBus::connect()
{
    static int count = 0;
    m_connections.append(u"test-%1"_s.arg(++count));
    return QDBusConnection::connectToBus(m_address, m_connections.last());
}

void PrivateBus::addService(const QString &name, const QString &command)
{
    write(m_folder.filePath(u"services/%1.service"_s.arg(name)),
          u"[D-BUS Service]\nName=%1\nExec=%2\n"_s.arg(name, command));
    connect().interface()->call(u"ReloadConfig"_s);
}

void PrivateBus::stop()
{
    m_process.terminate();
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished();
}

void PrivateBus::endWithTest(QProcess *process)
{
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

} // namespace ferrin::test
