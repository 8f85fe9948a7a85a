// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// What Qt needs before a fuzzer's first input.

#ifdef QT_GUI_LIB
#include <QGuiApplication>
#else
#include <QCoreApplication>
#endif

namespace {

#ifdef QT_GUI_LIB
using Application = QGuiApplication;
#else
using Application = QCoreApplication;
#endif

} // namespace

// Nothing is logged, or a log would be all there is. Nor does a warning end the process, as in
// other tests: Qt warns of much that only a fuzzer asks of it.
extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qunsetenv("QT_FATAL_WARNINGS");
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = { name, nullptr };
    static const Application application(count, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}
