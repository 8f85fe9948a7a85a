// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace ferrin {

/// Runs a program until it exits and returns its output.
class ProcessLauncher
{
public:
    virtual ~ProcessLauncher() = default;

    /// Everything that the program wrote to its standard output; absent when it could not be
    /// started. Blocks until the program has exited. Its exit status and its standard error are
    /// ignored.
    [[nodiscard]] virtual std::optional<QByteArray> output(const QString &executable,
                                                           const QStringList &arguments)
        = 0;
};

} // namespace ferrin
