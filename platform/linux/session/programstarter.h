// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>

namespace ferrin {

/// A program and its arguments.
struct CommandLine
{
    QString program;
    QStringList arguments;

    friend bool operator==(const CommandLine &, const CommandLine &) = default;
};

/// Starts programs that live on their own.
class ProgramStarter
{
public:
    virtual ~ProgramStarter() = default;

    /// Whether a program of this name can be started at all.
    [[nodiscard]] virtual bool isInstalled(const QString &program) const = 0;

    /// Does not wait for it; false when it could not be started.
    [[nodiscard]] virtual bool start(const CommandLine &command) = 0;
};

/// Looks in PATH. What it starts outlives this process and says nothing on its outputs.
class DetachedProgramStarter final : public ProgramStarter
{
public:
    [[nodiscard]] bool isInstalled(const QString &program) const override;
    [[nodiscard]] bool start(const CommandLine &command) override;
};

} // namespace ferrin
