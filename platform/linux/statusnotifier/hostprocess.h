// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>

namespace ferrin {

/// A process on the session bus, as the kernel describes it.
struct HostProcess
{
    /// 0 where it is not known.
    uint id = 0;
    /// `/proc/PID/comm`, cut by the kernel after 15 characters; empty for a process that is gone.
    QString name {};
    /// `/proc/PID/cmdline`, the program's own name first; at most the first 4 KiB.
    QStringList arguments {};
};

[[nodiscard]] HostProcess hostProcessFromKernel(uint processId);

/// The host that comes with the first of these desktops that has one, for want of better knowledge:
/// its name alone, as the kernel would cut it.
[[nodiscard]] HostProcess usualHostOf(const QStringList &desktops);

} // namespace ferrin
