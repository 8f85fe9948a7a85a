// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/processlauncher.h"

namespace ferrin::test {

/// Starts nothing and returns the output that the test has set, for every program.
class FakeProcessLauncher final : public ProcessLauncher
{
public:
    struct Run
    {
        QString executable;
        QStringList arguments;

        friend bool operator==(const Run &, const Run &) = default;
    };

    [[nodiscard]] std::optional<QByteArray> output(const QString &executable,
                                                   const QStringList &arguments) override
    {
        runs.append({ executable, arguments });
        return answer;
    }

    /// Absent: no program can be started.
    std::optional<QByteArray> answer = QByteArray();
    QList<Run> runs;
};

} // namespace ferrin::test
