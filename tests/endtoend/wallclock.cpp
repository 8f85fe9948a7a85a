// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A library for LD_PRELOAD that shifts the time of day of one program by the seconds that the file
// FERRIN_TEST_CLOCK holds at the moment. It asks the kernel directly, since the laptop's library
// replaces the C library's functions for files.

#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

time_t shift()
{
    const char *const path = std::getenv("FERRIN_TEST_CLOCK");
    char text[32] = {};
    const long file = path ? ::syscall(SYS_openat, AT_FDCWD, path, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0)
        return 0;
    const bool isRead = ::syscall(SYS_read, file, text, sizeof text - 1) > 0;
    ::syscall(SYS_close, file);
    return isRead ? std::atoll(text) : 0;
}

} // namespace

extern "C" {

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const long result = ::syscall(SYS_clock_gettime, clock, time);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE))
        time->tv_sec += shift();
    return int(result);
}

int gettimeofday(timeval *time, void *) noexcept
{
    timespec now {};
    const int result = clock_gettime(CLOCK_REALTIME, &now);
    *time = { now.tv_sec, now.tv_nsec / 1000 };
    return result;
}

time_t time(time_t *result) noexcept
{
    timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}
}
