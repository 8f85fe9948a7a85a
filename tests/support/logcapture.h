// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QStringList>
#include <QtGlobal>

namespace ferrin::test {

/// Catches what the program logs while it lives, so that a test can say exactly which lines it
/// expects: "error: text", "info: text", "debug: text", "warning: text". Lines that nobody took are
/// printed as the test's own failure when the capture ends.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// The lines so far, and forgets them.
    [[nodiscard]] QStringList take();
    /// How many lines so far contain the text, and forgets all.
    [[nodiscard]] qsizetype takeCount(const QString &text);
    /// Lines that come from now on may be left untaken.
    void ignoreRest() { m_ignoreRest = true; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QStringList m_lines;
    QtMessageHandler m_previous = nullptr;
    bool m_ignoreRest = false;
};

} // namespace ferrin::test
