// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArrayList>
#include <QString>
#include <QtGlobal>

namespace ferrin {

/// Where the log of the process goes, decided once at the start. With a terminal or a pipe on
/// standard error somebody reads it there, a plain line a message; else it goes to the system's
/// journal with its level, category and subsystem, and to standard error where there is no journal.
void installLogHandler(const QString &subsystem);

/// Somebody reads this file descriptor as it is: a terminal or a pipe.
[[nodiscard]] bool isReadDirectly(int fileDescriptor);

/// One message as the journal's fields, "NAME=value" each. The priority is syslog's. A category of
/// the form "subsystem/category" names its own subsystem, any other belongs to the one given.
[[nodiscard]] QByteArrayList journalFields(QtMsgType type, const char *category,
                                           const QString &text, const QString &subsystem);

/// One message as a line for people: "ferrin: error: text".
[[nodiscard]] QByteArray plainLine(QtMsgType type, const QString &text);

} // namespace ferrin
