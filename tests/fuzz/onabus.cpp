// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/fuzz/onabus.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>

namespace ferrin::fuzz {

void wait(const QDBusPendingCallWatcher &call)
{
    while (!call.isFinished())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace ferrin::fuzz

// What QtDBus' own thread holds between two calls is no leak; the end-to-end tests watch the
// memory.
extern "C" const char *__asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "detect_leaks=0";
}
