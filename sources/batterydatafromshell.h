// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace ferrin {

class ProcessLauncher;

/// Reads the two health figures that only the hardware report tool provides. A value held by the
/// provider. It runs the tool in refresh() only, which is slow; everything else parses the text of
/// the last run.
class BatteryDataFromShell
{
public:
    /// The launcher must outlive this value.
    explicit BatteryDataFromShell(ProcessLauncher &launcher);

    /// The trimmed report of the last run; absent before the first run and after one that could not
    /// be started.
    [[nodiscard]] const std::optional<QString> &response() const noexcept { return m_response; }

    /// The output of the shell for the arguments after "-c", decoded and trimmed; absent when it
    /// could not be started. Blocks until the shell has exited.
    [[nodiscard]] std::optional<QString> runShell(const QStringList &arguments) const;

    /// Runs the report tool and replaces the response, which becomes absent when that fails. Blocks
    /// until the tool has exited.
    void refresh();

    /// Percent of the design capacity; absent when the report does not contain it.
    [[nodiscard]] std::optional<qint64> maxCapacity() const;

    /// The text up to the end of its line, possibly empty; absent when the report does not contain
    /// it.
    [[nodiscard]] std::optional<QString> condition() const;

private:
    ProcessLauncher *m_launcher;
    std::optional<QString> m_response;
};

} // namespace ferrin
