// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <csignal>
#include <sys/resource.h>

namespace ferrin::test {

/// Makes every write of this process to a file fail, as on a full disk, or succeed again. Pipes are
/// written as ever.
inline void setDiskFull(bool isFull)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = isFull ? 0 : limit.rlim_max;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace ferrin::test
