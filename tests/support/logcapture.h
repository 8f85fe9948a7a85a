// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QStringList>
#include <QtGlobal>

namespace ferrin::test {

/// Captures what the program logs during its lifetime, so that a test can expect exact lines:
/// "error: text", "info: text", "debug: text", "warning: text". Lines that the test did not take
/// fail it when the capture is destroyed.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// Removes and returns the lines so far.
    [[nodiscard]] QStringList take();
    /// Removes all lines so far and returns how many of them contain the text.
    [[nodiscard]] qsizetype takeCount(const QString &text);
    /// From now on, lines that are not taken do not fail the test.
    void ignoreRest() { m_ignoreRest = true; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QStringList m_lines;
    QtMessageHandler m_previous = nullptr;
    bool m_ignoreRest = false;
};

} // namespace ferrin::test
