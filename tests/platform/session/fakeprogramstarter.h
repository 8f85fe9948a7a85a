// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/programstarter.h"

#include <QList>
#include <QStringList>

namespace ferrin::test {

/// Starts nothing and writes down what it was asked to start.
class FakeProgramStarter final : public ProgramStarter
{
public:
    [[nodiscard]] bool isInstalled(const QString &program) const override
    {
        return installed.contains(program);
    }

    [[nodiscard]] bool start(const CommandLine &command) override
    {
        started.append(command);
        return !broken.contains(command.program);
    }

    QStringList installed;
    /// Installed, and fails to start.
    QStringList broken;
    QList<CommandLine> started;
};

} // namespace ferrin::test
