// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace ferrin {

class ProcessLauncher;

/// The two health figures that only the hardware report tool states. A value held by the provider.
/// It runs the tool only when it is told to refresh, which is slow, and answers from the text that
/// the last run left.
class BatteryDataFromShell
{
public:
    /// The launcher must outlive this value.
    explicit BatteryDataFromShell(ProcessLauncher &launcher);

    /// The trimmed report of the last run; absent before the first run and after one that could not
    /// be started.
    [[nodiscard]] const std::optional<QString> &response() const noexcept { return m_response; }

    /// What the shell prints when it is given the arguments after its "-c": decoded and trimmed,
    /// absent when it could not be started. Blocks until the shell has exited.
    [[nodiscard]] std::optional<QString> runShell(const QStringList &arguments) const;

    /// Runs the report tool and replaces the response, with nothing too. Blocks as long as it runs.
    void refresh();

    /// Percent of the design capacity, as the report states it.
    [[nodiscard]] std::optional<qint64> maxCapacity() const;

    /// The text to the end of its line, possibly empty.
    [[nodiscard]] std::optional<QString> condition() const;

private:
    ProcessLauncher *m_launcher;
    std::optional<QString> m_response;
};

} // namespace ferrin
