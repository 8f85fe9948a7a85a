// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/programstarter.h"

#include "platform/linux/session/applicationsetup.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace ferrin {

bool DetachedProgramStarter::isInstalled(const QString &program) const
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

bool DetachedProgramStarter::start(const CommandLine &command)
{
    QProcess process;
    process.setProgram(command.program);
    process.setArguments(command.arguments);
    auto environment = QProcessEnvironment::systemEnvironment();
    withoutSetUp(environment);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QDir::homePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace ferrin
