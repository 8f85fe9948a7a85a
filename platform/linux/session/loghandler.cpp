// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/loghandler.h"

#include "platform/linux/session/journal.h"

#include <cstdio>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

namespace ferrin {

namespace {

struct Level
{
    const char *name;
    int priority;
};

Level levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return { "debug", LOG_DEBUG };
    case QtInfoMsg:
        return { "info", LOG_INFO };
    case QtWarningMsg:
        return { "warning", LOG_WARNING };
    case QtCriticalMsg:
        return { "error", LOG_ERR };
    case QtFatalMsg:
        return { "fatal", LOG_CRIT };
    }
    return { "fatal", LOG_CRIT };
}

QString &subsystemOfProcess()
{
    static QString subsystem;
    return subsystem;
}

void sendToStandardError(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QByteArray line = plainLine(type, text);
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

void sendToJournalOrStandardError(QtMsgType type, const QMessageLogContext &context,
                                  const QString &text)
{
    if (!sendToJournal(journalFields(type, context.category, text, subsystemOfProcess())))
        sendToStandardError(type, context, text);
}

} // namespace

bool isReadDirectly(int fileDescriptor)
{
    struct stat status
    {
    };
    return isatty(fileDescriptor) == 1
        || (fstat(fileDescriptor, &status) == 0 && S_ISFIFO(status.st_mode));
}

QByteArrayList journalFields(QtMsgType type, const char *category, const QString &text,
                             const QString &subsystem)
{
    const QByteArray name(category);
    const qsizetype slash = name.indexOf('/');
    return {
        "MESSAGE=" + text.toUtf8(),
        "PRIORITY=" + QByteArray::number(levelOf(type).priority),
        "SYSLOG_IDENTIFIER=ferrin",
        "CATEGORY=" + name.mid(slash + 1),
        "SUBSYSTEM=" + (slash < 0 ? subsystem.toUtf8() : name.first(slash)),
    };
}

QByteArray plainLine(QtMsgType type, const QString &text)
{
    return QByteArray("ferrin: ") + levelOf(type).name + ": " + text.toUtf8() + '\n';
}

void installLogHandler(const QString &subsystem)
{
    subsystemOfProcess() = subsystem;
    qInstallMessageHandler(isJournalRunning() && !isReadDirectly(STDERR_FILENO)
                               ? sendToJournalOrStandardError
                               : sendToStandardError);
}

} // namespace ferrin
