// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tools/boundedtask.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ferrin {

namespace {

using Clock = std::chrono::steady_clock;

// Sent by the child when it is done, so that half a report is not taken for a whole one.
constexpr char complete = '\0';

void writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR)
            return;
        text.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
}

[[noreturn]] void runChild(int output, const std::function<std::string()> &task)
{
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    for (int standard : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO })
        ::dup2(nothing, standard);
    writeAll(output, task() + complete);
    ::_exit(0);
}

bool waitForInput(int descriptor, Clock::time_point end)
{
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        if (left.count() <= 0)
            return false;
        pollfd input { descriptor, POLLIN, 0 };
        const int ready = ::poll(&input, 1, static_cast<int>(left.count()));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

std::optional<std::string> readAll(int descriptor, Clock::time_point end)
{
    std::string text;
    std::array<char, 4096> part;
    while (waitForInput(descriptor, end)) {
        const ssize_t size = ::read(descriptor, part.data(), part.size());
        if (size <= 0)
            break;
        text.append(part.data(), static_cast<std::size_t>(size));
    }
    if (text.empty() || text.back() != complete)
        return std::nullopt;
    text.pop_back();
    return text;
}

} // namespace

std::optional<std::string> resultWithin(std::chrono::milliseconds limit,
                                        const std::function<std::string()> &task)
{
    const Clock::time_point end = Clock::now() + limit;
    std::array<int, 2> ends {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    const pid_t child = ::fork();
    if (child == 0)
        runChild(ends[1], task);
    ::close(ends[1]);
    std::optional<std::string> result;
    if (child > 0) {
        result = readAll(ends[0], end);
        // A child that hangs in a driver dies when the driver returns; it is not waited for.
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, result ? 0 : WNOHANG);
    }
    ::close(ends[0]);
    return result;
}

} // namespace ferrin
