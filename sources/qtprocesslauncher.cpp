// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/qtprocesslauncher.h"

#include <QDir>
#include <QProcess>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr int forever = -1;

QProcessEnvironment environmentWithPath(const QString &first)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    const QString path = environment.value(u"PATH"_s);
    environment.insert(u"PATH"_s, path.isEmpty() ? first : first + QDir::listSeparator() + path);
    return environment;
}

} // namespace

QtProcessLauncher::QtProcessLauncher(QString firstInPath)
    : m_firstInPath(std::move(firstInPath))
{
}

std::optional<QByteArray> QtProcessLauncher::output(const QString &executable,
                                                    const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(environmentWithPath(m_firstInPath));
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A program that reads its standard input must not wait for input that never comes.
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(executable, arguments);
    if (!process.waitForStarted(forever))
        return std::nullopt;
    // QProcess reads while it waits, so that a full pipe does not block the program.
    process.waitForFinished(forever);
    return process.readAllStandardOutput();
}

} // namespace ferrin
