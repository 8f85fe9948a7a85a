// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace ferrin {

/// Runs a program to its end and keeps what it prints.
class ProcessLauncher
{
public:
    virtual ~ProcessLauncher() = default;

    /// Everything that the program wrote to its standard output until it closed it; absent when the
    /// program could not be started. Blocks until the program has exited; its exit status and its
    /// standard error do not matter here.
    [[nodiscard]] virtual std::optional<QByteArray> output(const QString &executable,
                                                           const QStringList &arguments)
        = 0;
};

} // namespace ferrin
