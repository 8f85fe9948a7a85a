// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/batterydatafromshell.h"

#include "base/logging.h"
#include "sources/processlauncher.h"

#include <QRegularExpression>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

/// The first capture of the first match.
std::optional<QString> firstCapture(const QRegularExpression &pattern, const QString &text)
{
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

/// The list as it is logged: ["first", "second"].
QString printed(const QStringList &list)
{
    QStringList quoted;
    for (QString text : list) {
        text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
        quoted.append(u'"' + text + u'"');
    }
    return u'[' + quoted.join(", "_L1) + u']';
}

} // namespace

BatteryDataFromShell::BatteryDataFromShell(ProcessLauncher &launcher)
    : m_launcher(&launcher)
{
}

std::optional<QString> BatteryDataFromShell::runShell(const QStringList &arguments) const
{
    const auto output = m_launcher->output(u"/bin/sh"_s, QStringList(u"-c"_s) + arguments);
    if (!output) {
        qCCritical(logger, "Shell task run failed: %s", qUtf8Printable(printed(arguments)));
        return std::nullopt;
    }
    return QString::fromUtf8(*output).trimmed();
}

void BatteryDataFromShell::refresh()
{
    m_response = runShell({ u"LANG=C system_profiler SPPowerDataType"_s });
    if (m_response)
        qCInfo(logger, "Connection to shell successful");
    else
        qCCritical(logger, "Not possible to read battery data shell");
}

std::optional<qint64> BatteryDataFromShell::maxCapacity() const
{
    static const QRegularExpression pattern(u"Maximum Capacity: ([0-9]+)"_s);
    if (!m_response)
        return std::nullopt;
    const auto digits = firstCapture(pattern, *m_response);
    if (!digits) {
        qCCritical(logger, "Not possible to read battery max capacity when parsing shell response");
        return std::nullopt;
    }
    bool converted = false;
    const qint64 percent = digits->toLongLong(&converted);
    if (!converted) {
        qCCritical(
            logger,
            "Not possible to convert battery max capacity to Int when parsing shell response");
        return std::nullopt;
    }
    return percent;
}

std::optional<QString> BatteryDataFromShell::condition() const
{
    // (*ANY) makes the dot stop at every kind of line end, not only at a line feed.
    static const QRegularExpression pattern(u"(*ANY)Condition: (.*)"_s);
    if (!m_response)
        return std::nullopt;
    auto text = firstCapture(pattern, *m_response);
    if (!text)
        qCCritical(logger,
                   "Not possible to read battery health condition when parsing shell response");
    return text;
}

} // namespace ferrin
