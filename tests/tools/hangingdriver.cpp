// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include <csignal>
#include <cstring>
#include <sys/syscall.h>
#include <unistd.h>

// Preloaded into a process, this makes every access to one attribute hang, with all signals ignored
// that can be.
namespace {

int openOrHang(int directory, const char *path, int flags)
{
    if (std::strcmp(path, "energy_full") == 0) {
        sigset_t all;
        sigfillset(&all);
        sigprocmask(SIG_BLOCK, &all, nullptr);
        for (;;)
            pause();
    }
    return static_cast<int>(syscall(SYS_openat, directory, path, flags, 0));
}

} // namespace

extern "C" int openat(int directory, const char *path, int flags, ...)
{
    return openOrHang(directory, path, flags);
}

extern "C" int openat64(int directory, const char *path, int flags, ...)
{
    return openOrHang(directory, path, flags);
}
