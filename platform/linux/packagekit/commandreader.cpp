// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/commandreader.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>

#include <chrono>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds longest { 10 };
constexpr qsizetype mostBytes = 1 << 20;

QProcessEnvironment plainEnvironment()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    return environment;
}

QByteArray outputOf(QProcess &process)
{
    const QByteArray output = process.readAllStandardOutput();
    const bool isGood = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
        && output.size() <= mostBytes;
    return isGood ? output : QByteArray();
}

} // namespace

void readCommand(QObject *context, const QString &program, const QStringList &arguments,
                 const std::function<void(const QByteArray &)> &answer)
{
    // No child of the context: a process that is destroyed while it runs is waited for.
    auto *const process = new QProcess;
    QObject::connect(context, &QObject::destroyed, process, &QProcess::kill);
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->setProcessEnvironment(plainEnvironment());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setStandardInputFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, context,
                     [process, answer] { answer(outputOf(*process)); });
    QObject::connect(process, &QProcess::errorOccurred, context,
                     [process, answer](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         process->deleteLater();
                         answer({});
                     });
    QTimer::singleShot(longest, process, &QProcess::kill);
    process->start(program, arguments);
}

} // namespace ferrin
