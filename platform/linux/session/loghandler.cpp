// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The place in the source would be this file, whoever logs.
#define SD_JOURNAL_SUPPRESS_LOCATION

#include "platform/linux/session/loghandler.h"

#include <QFileInfo>

#include <cstdio>
#include <sys/stat.h>
#include <sys/uio.h>
#include <syslog.h>
#include <systemd/sd-journal.h>
#include <unistd.h>
#include <vector>

namespace ferrin {

using namespace Qt::StringLiterals;

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

void sendToJournal(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    QByteArrayList fields = journalFields(type, context.category, text, subsystemOfProcess());
    std::vector<iovec> parts;
    for (QByteArray &field : fields)
        parts.push_back({ field.data(), static_cast<std::size_t>(field.size()) });
    if (sd_journal_sendv(parts.data(), static_cast<int>(parts.size())) < 0)
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
    const bool hasJournal = QFileInfo::exists(u"/run/systemd/journal/socket"_s);
    qInstallMessageHandler(hasJournal && !isReadDirectly(STDERR_FILENO) ? sendToJournal
                                                                        : sendToStandardError);
}

} // namespace ferrin
